// Models of two independent variables.

#include "families.hpp"

namespace ansatz::host::descriptions {

Family surfaces() {
    return {.title = "Surfaces", .models = {}};
}

} // namespace ansatz::host::descriptions
