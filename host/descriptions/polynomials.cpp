// Polynomials, rational functions, powers, hyperbolas and periodic models.

#include "families.hpp"

namespace ansatz::host::descriptions {

Family polynomials() {
    return {.title = "Polynomials, powers and waves", .models = {}};
}

} // namespace ansatz::host::descriptions
