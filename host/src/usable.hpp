// Which numbers of a model count.
#pragma once

#include <ansatz/ansatz.h>

#include <cmath>

namespace ansatz::host {

inline bool usable(double value) {
    return std::isfinite(value) && value != MISSING_VALUE;
}

} // namespace ansatz::host
