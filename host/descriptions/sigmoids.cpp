// Transitions between two levels, dose-response, binding and growth curves.

#include "families.hpp"

namespace ansatz::host::descriptions {

Family sigmoids() {
    return {.title = "Sigmoids", .models = {}};
}

} // namespace ansatz::host::descriptions
