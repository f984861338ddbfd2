// A power for quantities that come as powers themselves and may be huge.
#pragma once

#include "protocol/guards.h"

#include <type_traits>

namespace ansatz {

/// a^b into *result, with a and b both replaced by 140 where both exceed it: 140^140, about 2.9e300, is the
/// largest power of two like numbers that a double holds with room to spare. False if the library reported an
/// error.
template <class T> bool try_bounded_pow(std::type_identity_t<T> a, std::type_identity_t<T> b, T* result) {
    if (a > 140 && b > 140) {
        *result = safe_pow(140, 140);
        return true;
    }
    *result = safe_pow(a, b);
    return !math_error();
}

/// The same as a value, of arguments that depend on x or, with T = Scalar, on parameters alone; MISSING_VALUE
/// if the library reported an error, which stays set for the caller to see, or if an argument is MISSING_VALUE
/// itself.
template <class T = Real> T bounded_pow(std::type_identity_t<T> a, std::type_identity_t<T> b) {
    if (a == MISSING_VALUE || b == MISSING_VALUE) return MISSING_VALUE;
    T result = 0;
    return try_bounded_pow(a, b, &result) ? result : MISSING_VALUE;
}

} // namespace ansatz
