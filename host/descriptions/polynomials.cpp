// Polynomials and rational functions.

#include "families.hpp"

namespace ansatz::host::descriptions {

Family polynomials() {
    return {.title = "Polynomials and rational functions", .models = {}};
}

} // namespace ansatz::host::descriptions
