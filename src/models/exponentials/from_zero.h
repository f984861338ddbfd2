// What the exponentials from x = 0 share: the decays ExpDec1 .. ExpDec3 and the growths ExpGro1 .. ExpGro3.
//
// Where all amplitudes are 0 the value is the offset, whatever the times; the derivatives still fail for a time
// of 0. A failure of the derivatives leaves the slots as far as they were written.
#pragma once

#include "protocol/forms.h"

namespace ansatz::from_zero {

inline constexpr int decay = -1, growth = 1;

constexpr int amplitude(int term) {
    return 2 * term;
}
constexpr int time(int term) {
    return 2 * term + 1;
}

template <int terms> bool no_amplitude(const Scalar* P) {
    for (int i = 1; i <= terms; ++i) {
        if (!(P[amplitude(i)] == 0)) return false;
    }
    return true;
}

template <int terms> bool zero_time(const Scalar* P) {
    for (int i = 1; i <= terms; ++i) {
        if (P[time(i)] == 0) return true;
    }
    return false;
}

template <int direction, int terms> Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (no_amplitude<terms>(P)) {
        y[1] = P[1];
        return success;
    }
    if (zero_time<terms>(P)) return fail(at);
    Real sum = P[1];
    for (int i = 1; i <= terms; ++i) sum += P[amplitude(i)] * safe_exp(direction * x[1] / P[time(i)]);
    if (math_error()) return fail(at);
    y[1] = sum;
    return success;
}

/// All but the test of the times.
template <int direction, int terms> Status slopes(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    Real u[terms + 1], e[terms + 1];
    for (int i = 1; i <= terms; ++i) {
        u[i] = direction * x[1] / P[time(i)];
        dyda[amplitude(i)] = e[i] = safe_exp(u[i]);
        if (range_error()) return fail(at); // a pending domain error passes
    }
    dyda[1] = 1;
    Real sum = P[1];
    for (int i = 1; i <= terms; ++i) {
        const Scalar A = P[amplitude(i)], T = P[time(i)];
        dyda[time(i)] = -u[i] * A * e[i] / T;
        sum += A * e[i];
    }
    y[1] = sum;
    return success;
}

template <int direction, int terms> Status derivatives(const Point& at) {
    if (zero_time<terms>(at.P)) return fail(at);
    return slopes<direction, terms>(at);
}

} // namespace ansatz::from_zero
