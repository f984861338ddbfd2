// ExpDec1, ExpDec2, ExpDec3: exponential decay from x = 0.

#include "from_zero.h"

namespace ansatz::from_zero {
namespace {

/// Fails on a pending domain error too.
Status dec1_derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (P[3] == 0) return fail(at);
    dyda[1] = 1;
    const Real e = safe_exp(-x[1] / P[3]);
    dyda[2] = e;
    if (math_error()) return fail(at);
    dyda[3] = x[1] * P[2] * e / (P[3] * P[3]);
    y[1] = e * P[2] + P[1];
    return success;
}

/// The slot of the offset is written before the exponentials: it stays 1 when one of them overflows.
Status dec2_derivatives(const Point& at) {
    if (zero_time<2>(at.P)) return fail(at);
    at.dyda[1] = 1;
    return slopes<decay, 2>(at);
}

} // namespace

ANSATZ_MODEL(ExpDec1, BothPaths<value<decay, 1>, dec1_derivatives>)

ANSATZ_PAGE(ExpDec1, .title = "Exponential decay to an offset", .formula = "y = y0 + A1 exp(-x/t1)",
            .parameters = {{"y0", "offset", Trait::offset},
                           {"A1", "amplitude, height above the offset at x = 0", Trait::amplitude},
                           {"t1", "decay time, unit of x; half-life t1 ln 2", Trait::time, not_zero}},
            .typical = {{1, 5, 2}, 0, 10}, .known_as = "one-phase decay, first-order decay",
            .notes = "Fails for t1 = 0 and where the exponential overflows. A negative t1 makes it a growth; a "
                     "fit cannot cross t1 = 0, so start with the right sign.")

ANSATZ_MODEL(ExpDec2, BothPaths<value<decay, 2>, dec2_derivatives>)

ANSATZ_PAGE(ExpDec2, .title = "Sum of two exponential decays to an offset",
            .formula = "y = y0 + A1 exp(-x/t1) + A2 exp(-x/t2)",
            .parameters = {{"y0", "offset", Trait::offset},
                           {"A1", "first amplitude, at x = 0", Trait::amplitude},
                           {"t1", "first decay time, unit of x", Trait::time, not_zero},
                           {"A2", "second amplitude, at x = 0", Trait::amplitude},
                           {"t2", "second decay time, unit of x", Trait::time, not_zero}},
            .typical = {{1, 4, 0.8, 3, 5}, 0, 15}, .known_as = "biexponential decay, two-phase decay",
            .notes = "Fails for a time of 0 and where an exponential overflows. Negative times are accepted. "
                     "Start a fit with times that differ.")

ANSATZ_MODEL(ExpDec3, BothPaths<value<decay, 3>, derivatives<decay, 3>>)

ANSATZ_PAGE(ExpDec3, .title = "Sum of three exponential decays to an offset",
            .formula = "y = y0 + A1 exp(-x/t1) + A2 exp(-x/t2) + A3 exp(-x/t3)",
            .parameters = {{"y0", "offset", Trait::offset},
                           {"A1", "first amplitude, at x = 0", Trait::amplitude},
                           {"t1", "first decay time, unit of x", Trait::time, not_zero},
                           {"A2", "second amplitude, at x = 0", Trait::amplitude},
                           {"t2", "second decay time, unit of x", Trait::time, not_zero},
                           {"A3", "third amplitude, at x = 0", Trait::amplitude},
                           {"t3", "third decay time, unit of x", Trait::time, not_zero}},
            .typical = {{1, 4, 0.5, 3, 3, 2, 15}, 0, 30}, .known_as = "triexponential decay",
            .notes = "Fails for a time of 0 and where an exponential overflows. Negative times are accepted. "
                     "Start a fit with times that differ by factors: three terms are hard to tell apart.")

} // namespace ansatz::from_zero
