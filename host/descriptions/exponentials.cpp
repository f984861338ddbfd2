// Exponential decay, growth, association and pulses.

#include "families.hpp"

namespace ansatz::host::descriptions {

Family exponentials() {
    return {.title = "Exponentials", .models = {}};
}

} // namespace ansatz::host::descriptions
