// Models of two dependent variables, and curves given as the zeros of an equation.

#include "families.hpp"

namespace ansatz::host::descriptions {

Family multi() {
    return {.title = "Several outputs, implicit curves", .models = {}};
}

} // namespace ansatz::host::descriptions
