// What the exponentials from a start time share: the decays ExpDecay1 .. ExpDecay3, Kinetic, and the growths
// ExpGrow1 and ExpGrow2.
//
// The value skips a term of amplitude 0, whatever its time constant. The derivatives test that time constant
// too.
#pragma once

#include "protocol/forms.h"

namespace ansatz::from_start {

inline constexpr int decay = -1, growth = 1;

constexpr int amplitude(int term) {
    return 2 * term + 1;
}
constexpr int time_constant(int term) {
    return 2 * term + 2;
}

/// The number of terms is a constant to most callers: inlined, the loop unrolls.
template <int direction> [[gnu::always_inline]] inline Status value(const Point& at, int terms) {
    const auto [n, P, x, y, dyda] = at;
    if (n <= 0) return fail(at);
    Real sum = P[1];
    for (int i = 1; i <= terms; ++i) {
        const Scalar A = P[amplitude(i)], T = P[time_constant(i)];
        if (A == 0) continue;
        if (T <= 0) return fail(at);
        sum += A * safe_exp(direction * (x[1] - P[2]) / T);
        if (math_error()) return fail(at);
    }
    y[1] = sum;
    return success;
}

} // namespace ansatz::from_start
