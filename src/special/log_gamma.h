// The logarithm of the gamma function, on every platform the same.
#pragma once

#include "build/arithmetic.h"

namespace ansatz {

/// ln |Gamma(x)|. A pole (x = 0, -1, -2, ...) and an overflow are range errors with an infinite result; NaN and
/// the infinities pass through without an error. Touches no shared state, unlike the C library's function,
/// which stores the sign of Gamma in a global variable.
///
/// Measured against 50 digits at 195000 points: below 7 ulp of the result for x > 0 (3 ulp outside 0.5 .. 1.5),
/// and near the zeros x = 1 and x = 2 no worse; below 7 ulp of max(1, |result|) for x < 0.
Real log_gamma(Real x);

} // namespace ansatz
