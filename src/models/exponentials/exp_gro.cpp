// ExpGro1, ExpGro2, ExpGro3: exponential growth from x = 0.

#include "from_zero.h"

namespace ansatz::from_zero {
namespace {

/// Above 1000 the exponential overflows anyway, unless the quotient is infinite.
Status gro1_value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (P[2] != 0 && x[1] / P[3] > 1000) return fail(at);
    return value<growth, 1>(at);
}

} // namespace

ANSATZ_MODEL(ExpGro1, BothPaths<gro1_value, derivatives<growth, 1>>)

ANSATZ_PAGE(ExpGro1, .title = "Exponential growth from an offset", .formula = "y = y0 + A1 exp(x/t1)",
            .parameters = {{"y0", "offset", Trait::offset},
                           {"A1", "amplitude, height above the offset at x = 0", Trait::amplitude},
                           {"t1", "growth time, unit of x; doubling time t1 ln 2", Trait::time, not_zero}},
            .typical = {{1, 0.5, 3}, 0, 10}, .same_as = "ExpDec1(y0 = y0, A1 = A1, t1 = -t1)",
            .notes = "Fails for t1 = 0 and where the exponential overflows. A negative t1 makes it a decay; a "
                     "fit cannot cross t1 = 0, so start with the right sign.")

ANSATZ_MODEL(ExpGro2, BothPaths<value<growth, 2>, derivatives<growth, 2>>)

ANSATZ_PAGE(ExpGro2, .title = "Sum of two exponential growths from an offset",
            .formula = "y = y0 + A1 exp(x/t1) + A2 exp(x/t2)",
            .parameters = {{"y0", "offset", Trait::offset},
                           {"A1", "first amplitude, at x = 0", Trait::amplitude},
                           {"t1", "first growth time, unit of x", Trait::time, not_zero},
                           {"A2", "second amplitude, at x = 0", Trait::amplitude},
                           {"t2", "second growth time, unit of x", Trait::time, not_zero}},
            .typical = {{1, 2, 8, 0.05, 1.8}, 0, 10},
            .same_as = "ExpDec2(y0 = y0, A1 = A1, t1 = -t1, A2 = A2, t2 = -t2)",
            .notes = "Fails for a time of 0 and where an exponential overflows. Negative times are accepted. "
                     "Start a fit with times that differ.")

ANSATZ_MODEL(ExpGro3, BothPaths<value<growth, 3>, derivatives<growth, 3>>)

ANSATZ_PAGE(ExpGro3, .title = "Sum of three exponential growths from an offset",
            .formula = "y = y0 + A1 exp(x/t1) + A2 exp(x/t2) + A3 exp(x/t3)",
            .parameters = {{"y0", "offset", Trait::offset},
                           {"A1", "first amplitude, at x = 0", Trait::amplitude},
                           {"t1", "first growth time, unit of x", Trait::time, not_zero},
                           {"A2", "second amplitude, at x = 0", Trait::amplitude},
                           {"t2", "second growth time, unit of x", Trait::time, not_zero},
                           {"A3", "third amplitude, at x = 0", Trait::amplitude},
                           {"t3", "third growth time, unit of x", Trait::time, not_zero}},
            .typical = {{1, 2, 20, 1, 5, 0.01, 1.4}, 0, 10},
            .same_as = "ExpDec3(y0 = y0, A1 = A1, t1 = -t1, A2 = A2, t2 = -t2, A3 = A3, t3 = -t3)",
            .notes = "Fails for a time of 0 and where an exponential overflows. Negative times are accepted. "
                     "Start a fit with times that differ by factors: three terms are hard to tell apart.")

} // namespace ansatz::from_zero
