// The error function.
#pragma once

#include "protocol/errors.h"

namespace ansatz {

/// The C library's erf (within 1 ulp), which never reports an error: some libraries set the indicator where the
/// result is subnormal, and that is none of a model's business.
inline double erf(double t) {
    const int before = indicator();
    const double r = std::erf(t);
    indicator() = before;
    return r;
}

} // namespace ansatz
