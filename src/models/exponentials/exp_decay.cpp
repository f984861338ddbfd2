// ExpDecay1, ExpDecay2, ExpDecay3: exponential decay from a start time. A failure of the derivatives marks
// every slot.

#include "from_start.h"

namespace ansatz::from_start {
namespace {

template <int terms> Status decay_value(const Point& at) {
    return value<decay>(at, terms);
}

template <int terms> Status decay_derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    constexpr int slots = time_constant(terms);
    for (int i = 1; i <= terms; ++i) {
        if (P[time_constant(i)] <= 0) return fail_all(at, slots);
    }
    const Real d = x[1] - P[2];
    Real sum = P[1], by_start = -0.0; // so that a term of -0 stays -0
    for (int i = 1; i <= terms; ++i) {
        const Scalar A = P[amplitude(i)], T = P[time_constant(i)], rate = A / T;
        const Real u = d / T;
        const Real e = safe_exp(-u);
        if (range_error()) return fail_all(at, slots); // a pending domain error passes
        dyda[amplitude(i)] = e;
        dyda[time_constant(i)] = terms == 1 ? rate * u * e : e * u * rate;
        by_start += rate * e;
        sum += A * e;
    }
    dyda[1] = 1;
    dyda[2] = by_start;
    y[1] = sum;
    return success;
}

} // namespace

ANSATZ_MODEL(ExpDecay1, BothPaths<decay_value<1>, decay_derivatives<1>>)

ANSATZ_PAGE(ExpDecay1, .title = "Exponential decay from a start time to an offset",
            .formula = "y = y0 + A1 exp(-(x - x0)/t1)",
            .parameters = {{"y0", "offset", Trait::offset},
                           {"x0", "start time", Trait::threshold},
                           {"A1", "amplitude, height above the offset at x = x0", Trait::amplitude},
                           {"t1", "decay time, unit of x; half-life t1 ln 2", Trait::time, positive}},
            .typical = {{1, 2, 5, 3}, 2, 16}, .same_as = "ExpDec1(y0 = y0, A1 = A1 exp(x0/t1), t1 = t1)",
            .known_as = "one-phase decay, first-order decay",
            .notes = "Fails for t1 <= 0 and where the exponential overflows. Another x0 only rescales A1: hold "
                     "it fixed in a fit.")

ANSATZ_MODEL(ExpDecay2, BothPaths<decay_value<2>, decay_derivatives<2>>)

ANSATZ_PAGE(ExpDecay2, .title = "Sum of two exponential decays from a start time to an offset",
            .formula = "y = y0 + A1 exp(-(x - x0)/t1) + A2 exp(-(x - x0)/t2)",
            .parameters = {{"y0", "offset", Trait::offset},
                           {"x0", "start time", Trait::threshold},
                           {"A1", "first amplitude, at x = x0", Trait::amplitude},
                           {"t1", "first decay time, unit of x", Trait::time, positive},
                           {"A2", "second amplitude, at x = x0", Trait::amplitude},
                           {"t2", "second decay time, unit of x", Trait::time, positive}},
            .typical = {{1, 2, 4, 0.8, 3, 5}, 2, 17},
            .same_as = "ExpDec2(y0 = y0, A1 = A1 exp(x0/t1), t1 = t1, A2 = A2 exp(x0/t2), t2 = t2)",
            .known_as = "biexponential decay, two-phase decay",
            .notes = "Fails for a time <= 0 and where an exponential overflows. Another x0 only rescales the "
                     "amplitudes: hold it fixed in a fit, and start with times that differ.")

ANSATZ_MODEL(ExpDecay3, BothPaths<decay_value<3>, decay_derivatives<3>>)

ANSATZ_PAGE(ExpDecay3, .title = "Sum of three exponential decays from a start time to an offset",
            .formula = "y = y0 + A1 exp(-(x - x0)/t1) + A2 exp(-(x - x0)/t2) + A3 exp(-(x - x0)/t3)",
            .parameters = {{"y0", "offset", Trait::offset},
                           {"x0", "start time", Trait::threshold},
                           {"A1", "first amplitude, at x = x0", Trait::amplitude},
                           {"t1", "first decay time, unit of x", Trait::time, positive},
                           {"A2", "second amplitude, at x = x0", Trait::amplitude},
                           {"t2", "second decay time, unit of x", Trait::time, positive},
                           {"A3", "third amplitude, at x = x0", Trait::amplitude},
                           {"t3", "third decay time, unit of x", Trait::time, positive}},
            .typical = {{1, 2, 4, 0.5, 3, 3, 2, 15}, 2, 32},
            .same_as = "ExpDec3(y0 = y0, A1 = A1 exp(x0/t1), t1 = t1, A2 = A2 exp(x0/t2), t2 = t2, "
                       "A3 = A3 exp(x0/t3), t3 = t3)",
            .known_as = "triexponential decay",
            .notes = "Fails for a time <= 0 and where an exponential overflows. Another x0 only rescales the "
                     "amplitudes: hold it fixed in a fit, and start with times that differ by factors.")

} // namespace ansatz::from_start
