// Distribution functions and densities.

#include "families.hpp"

namespace ansatz::host::descriptions {

Family distributions() {
    return {.title = "Distributions", .models = {}};
}

} // namespace ansatz::host::descriptions
