// ExpGrow1, ExpGrow2: exponential growth from a start time. The value of ExpGrow2 leaves the second term out
// below 5 parameters, its derivatives never do. The derivatives accept a negative time constant, which the
// value does not; a failure leaves the slots as far as they were written.

#include "from_start.h"

namespace ansatz::from_start {
namespace {

Status grow1_value(const Point& at) {
    return value<growth>(at, 1);
}

Status grow2_value(const Point& at) {
    return value<growth>(at, at.n > 4 ? 2 : 1);
}

template <int terms> Status growth_derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    for (int i = 1; i <= terms; ++i) {
        if (P[time_constant(i)] == 0) return fail(at);
    }
    dyda[1] = 1;
    const Real d = x[1] - P[2];
    Real e[terms + 1];
    for (int i = 1; i <= terms; ++i) {
        dyda[amplitude(i)] = e[i] = safe_exp(d / P[time_constant(i)]);
        if (math_error()) return fail(at);
    }
    Real sum = P[1], by_start = -0.0; // so that a term of -0 stays -0
    for (int i = 1; i <= terms; ++i) {
        const Scalar T = P[time_constant(i)];
        const Real term = P[amplitude(i)] * e[i];
        const Real slope = term / T;
        dyda[time_constant(i)] = -slope * d / T;
        by_start -= slope;
        sum += term;
    }
    dyda[2] = by_start;
    y[1] = sum;
    return success;
}

} // namespace

ANSATZ_MODEL(ExpGrow1, BothPaths<grow1_value, growth_derivatives<1>>)

ANSATZ_PAGE(ExpGrow1, .title = "Exponential growth from a start time and an offset",
            .formula = "y = y0 + A1 exp((x - x0)/t1)",
            .parameters = {{"y0", "offset", Trait::offset},
                           {"x0", "start time", Trait::threshold},
                           {"A1", "amplitude, height above the offset at x = x0", Trait::amplitude},
                           {"t1", "growth time, unit of x; doubling time t1 ln 2", Trait::time, positive}},
            .typical = {{1, 2, 0.5, 3}, 2, 12}, .same_as = "ExpDec1(y0 = y0, A1 = A1 exp(-x0/t1), t1 = -t1)",
            .notes = "Fails for t1 <= 0 and where the exponential overflows. Another x0 only rescales A1: hold "
                     "it fixed in a fit.")

ANSATZ_MODEL(ExpGrow2, BothPaths<grow2_value, growth_derivatives<2>>)

ANSATZ_PAGE(ExpGrow2, .title = "Sum of two exponential growths from a start time and an offset",
            .formula = "y = y0 + A1 exp((x - x0)/t1) + A2 exp((x - x0)/t2)",
            .parameters = {{"y0", "offset", Trait::offset},
                           {"x0", "start time", Trait::threshold},
                           {"A1", "first amplitude, at x = x0", Trait::amplitude},
                           {"t1", "first growth time, unit of x", Trait::time, positive},
                           {"A2", "second amplitude, at x = x0", Trait::amplitude},
                           {"t2", "second growth time, unit of x", Trait::time, positive}},
            .typical = {{1, 2, 2, 8, 0.05, 1.8}, 2, 12},
            .same_as = "ExpDec2(y0 = y0, A1 = A1 exp(-x0/t1), t1 = -t1, A2 = A2 exp(-x0/t2), t2 = -t2)",
            .notes = "Fails for a time <= 0 and where an exponential overflows. Another x0 only rescales the "
                     "amplitudes: hold it fixed in a fit, and start with times that differ.")

} // namespace ansatz::from_start
