// What the surfaces without derivatives that still accept FF_DERIV do with it.
#pragma once

#include "protocol/forms.h"

namespace ansatz::surfaces {

/// The derivative path of such a surface: y[1] becomes the bare offset, with status 0. A call with both bits
/// therefore ends with it too, beside the components of the value path; ask with FF_VALUE alone.
inline Status reset_to_offset(const Point& at) {
    at.y[1] = at.P[1];
    return success;
}

template <Path value> using ValueThenOffset = BothPaths<value, reset_to_offset, Answers{.query = 0}>;

} // namespace ansatz::surfaces
