// What the sigmoidal models share: an overflow that is no failure, and powers of ten.
#pragma once

#include "protocol/forms.h"

namespace ansatz {

/// Ends a path where the exponential or the power has left the range of a double: the curve has come to this
/// level. The slopes, if given, go into dyda[1], dyda[2], ...; the indicator is reset; status 0.
template <class... Slopes> Status reaches(const Point& at, Scalar level, Slopes... slopes) {
    clear_error();
    [[maybe_unused]] int k = 0;
    ((at.dyda[++k] = slopes), ...);
    at.y[1] = level;
    return success;
}

/// The logarithm of 10 as the slopes of the base-10 curves have it: ten digits, and hosts rely on them.
inline constexpr Scalar ln10 = 2.302585093;

inline Real power_of_ten(Real u) {
    return safe_pow(10, u);
}

} // namespace ansatz
