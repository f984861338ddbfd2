// Named and numbered laws of the regression handbooks, with their expected-value forms.

#include "families.hpp"

namespace ansatz::host::descriptions {

Family handbook() {
    return {.title = "Handbook laws", .models = {}};
}

} // namespace ansatz::host::descriptions
