// How the models with two dependent variables fail.
#pragma once

#include "protocol/forms.h"

namespace ansatz {

/// MISSING_VALUE into y[1] .. y[n], indicator reset, status 1.
inline Status missing_fill(const Point& at, int n) {
    for (int k = 1; k <= n; ++k) at.y[k] = MISSING_VALUE;
    clear_error();
    return failure;
}

} // namespace ansatz
