// Hill and Hill1. A failure of the logarithm in the slope by the steepness, where half-point/x is 0, takes that
// slope alone: y is good, and the status is 1. For Hill a half-point of 0 still has a value but no derivatives,
// and a call for both ends as a failure.
//
// x == 0 and an overflowing power are answered with the start level (Hill: 0, or P1 at x == 0 for a negative
// steepness). Asked for both at once, such a point gets no derivatives at all; asked for derivatives alone,
// they are 0. After an overflow on a request for derivatives the error indicator stays set.

#include "protocol/limits.h"

namespace ansatz::hill {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (x[1] < 0 || P[2] < 0) return fail(at);
    if (x[1] == 0) {
        y[1] = P[3] < 0 ? P[1] : 0;
        return ends_call;
    }
    const Real t = safe_pow(P[2] / x[1], P[3]);
    if (range_error()) {
        reaches(at, 0);
        return ends_call;
    }
    if (math_error()) return fail(at);
    y[1] = P[1] / (1 + t);
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (x[1] < 0 || P[2] <= 0) return fail(at, 1, 2, 3);
    if (x[1] == 0) {
        dyda[1] = dyda[2] = dyda[3] = 0;
        y[1] = P[3] >= 0 ? 0 : P[1];
        return success;
    }
    const Real ratio = P[2] / x[1];
    const Real t = safe_pow(ratio, P[3]);
    if (range_error()) { // and the indicator stays set
        dyda[1] = dyda[2] = dyda[3] = 0;
        y[1] = 0;
        return success;
    }
    const Real share = 1 / (1 + t);
    const Real level = P[1] * share;
    const Real q = -t * level * share;
    dyda[1] = share;
    dyda[2] = P[3] / P[2] * q;
    dyda[3] = q * log(ratio);
    y[1] = level;
    if (math_error()) return fail_slots(at, 3);
    return success;
}

} // namespace

ANSATZ_MODEL(Hill, BothPaths<value, derivatives>)

ANSATZ_PAGE(
    Hill, .title = "Saturation whose steepness is a parameter, as of cooperative binding",
    .formula = "y = Vmax/(1 + (k/x)^n)",
    .parameters = {{"Vmax", "ceiling", Trait::ceiling},
                   {"k", "x of half the ceiling", Trait::half_point, positive},
                   {"n", "steepness; negative: the curve falls from Vmax to 0", Trait::exponent}},
    .x = {not_negative}, .typical = {{8, 3, 2.5}, 0.05, 15}, .departures = {{1, "x = 0, n < 0"}},
    .known_as = "Hill equation", .source = "Hill, 1910",
    .notes =
        "Fails for x < 0 and for k < 0; k = 0 has no derivatives, so do not start a fit there. For n < 0 the "
        "derivatives at x = 0 are answered with 0, though the one by Vmax is 1: leave such a point out.")

} // namespace ansatz::hill

namespace ansatz::hill1 {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (x[1] < 0 || P[3] < 0) return fail(at);
    if (x[1] == 0) { // also for a negative steepness
        y[1] = P[1];
        return ends_call;
    }
    const Real t = safe_pow(P[3] / x[1], P[4]);
    if (range_error()) {
        reaches(at, P[1]);
        return ends_call;
    }
    if (math_error()) return fail(at);
    y[1] = P[1] + (P[2] - P[1]) / (t + 1);
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (x[1] < 0 || P[3] < 0) return fail(at, 1, 2, 3, 4);
    if (x[1] == 0) {
        y[1] = P[1];
        dyda[1] = dyda[2] = dyda[3] = dyda[4] = 0;
        return success;
    }
    const Real ratio = P[3] / x[1];
    const Real t = safe_pow(ratio, P[4]);
    if (range_error()) { // and the indicator stays set
        y[1] = P[1];
        dyda[1] = dyda[2] = dyda[3] = dyda[4] = 0;
        return success;
    }
    const Real d = 1 / (t + 1);
    const Scalar span = P[2] - P[1];
    const Real q = -t * span * (d * d);
    y[1] = d * span + P[1];
    dyda[1] = 1 - d;
    dyda[2] = d;
    dyda[3] = P[4] / P[3] * q;
    dyda[4] = q * log(ratio);
    if (math_error()) return fail_slots(at, 4);
    return success;
}

} // namespace

ANSATZ_MODEL(Hill1, BothPaths<value, derivatives>)

ANSATZ_PAGE(
    Hill1, .title = "Saturation from a start level to an end level, with its steepness",
    .formula = "y = A1 + (A2 - A1)/(1 + (k/x)^n)",
    .parameters = {{"A1", "start level, at x = 0 for n > 0", Trait::level},
                   {"A2", "end level", Trait::level},
                   {"k", "x half-way between the levels", Trait::half_point, positive},
                   {"n", "steepness", Trait::exponent}},
    .x = {not_negative}, .typical = {{1, 8, 3, 2.5}, 0.05, 15},
    .departures = {{1, "x = 0"}, {1, "n ln(k/x) > 709"}},
    .same_as = "Logistic(A1 = A1, A2 = A2, x0 = k, p = n)", .known_as = "Hill equation with offset",
    .notes = "Fails for x < 0 and for k < 0; k = 0 has no derivatives. At x = 0, where y is A1 for either sign "
             "of n, all derivatives are answered with 0, though the one by A1 is 1: a fit with such a point "
             "stops short of the minimum, so leave it out or take numerical derivatives (--numerical). "
             "Exchanging A1 with A2 and changing the sign of n gives the same curve elsewhere.")

} // namespace ansatz::hill1
