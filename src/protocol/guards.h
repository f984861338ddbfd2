// The numeric guards through which models take their exponentials and powers.
#pragma once

#include "protocol/errors.h"

namespace ansatz {

/// e^t, exactly 0 below t = -300 without a library call: a far tail is no error. Overflow is a range error.
inline double safe_exp(double t) {
    return t < -300.0 ? 0.0 : exp(t);
}

/// a^b, exactly 0 for a == 0 with b > 0 without a library call; 0 to a negative power is a range error, a
/// negative base with a broken exponent a domain error.
inline double safe_pow(double a, double b) {
    return a == 0 && b > 0 ? 0.0 : pow(a, b);
}

/// e^t between two limits: 0 below -300, and above 300 the tiny number MISSING_VALUE, without an error, so that
/// such a term counts as practically zero instead of failing the model.
inline double clamped_exp(double t) {
    if (t < -300.0) return 0.0;
    if (t > 300.0) return MISSING_VALUE;
    return safe_exp(t);
}

} // namespace ansatz
