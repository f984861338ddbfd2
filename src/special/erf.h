// The error function.
#pragma once

#include "protocol/errors.h"

namespace ansatz {

/// The C library's erf (within 1 ulp), which never reports an error: some libraries set the indicator where the
/// result is subnormal, which models must not see.
inline Real erf(Real t) {
    const int before = indicator();
    const Real r = std::erf(t);
    indicator() = before;
    return r;
}

} // namespace ansatz
