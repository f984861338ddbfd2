// Hill and Hill1: saturation curves whose steepness is a parameter, for binding with cooperation.
//
//   Hill    y = P1 / (1 + (P2/x)^P3)                P1 ceiling, P2 half-point, P3 steepness
//   Hill1   y = P1 + (P2 - P1) / (1 + (P3/x)^P4)    P1 start level, P2 end level, P3 half-point, P4 steepness
//
//   The half-point is the x at which the curve is half-way between its levels; the steepness is a pure number.
//   A negative steepness turns the curve round: Hill then falls from the ceiling to 0.
//
//   Fails for x < 0 and for a negative half-point. For Hill a half-point of 0 still has a value, but no
//   derivatives: a call for both ends as a failure. The logarithm in the slope by the steepness may fail where
//   half-point/x is 0: then that slope alone is missing, y is good, and the status is 1.
//
//   x == 0 and an overflowing power are answered with the start level (Hill: 0, or P1 at x == 0 for a negative
//   steepness). Asked for both at once, such a point gets no derivatives at all; asked for derivatives alone,
//   they are 0. After an overflow on a request for derivatives the error indicator stays set: clear it.

#include "models/sigmoidal/limits.h"

namespace ansatz::hill {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (x[1] < 0 || P[2] < 0) return fail(at);
    if (x[1] == 0) {
        y[1] = P[3] < 0 ? P[1] : 0;
        return ends_call;
    }
    const double t = safe_pow(P[2] / x[1], P[3]);
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
    const double ratio = P[2] / x[1];
    const double t = safe_pow(ratio, P[3]);
    if (range_error()) { // and the indicator stays set
        dyda[1] = dyda[2] = dyda[3] = 0;
        y[1] = 0;
        return success;
    }
    const double share = 1 / (1 + t);
    const double level = P[1] * share;
    const double q = -t * level * share;
    dyda[1] = share;
    dyda[2] = P[3] / P[2] * q;
    dyda[3] = q * log(ratio);
    y[1] = level;
    if (math_error()) return fail_slots(at, 3);
    return success;
}

} // namespace
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
    const double t = safe_pow(P[3] / x[1], P[4]);
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
    const double ratio = P[3] / x[1];
    const double t = safe_pow(ratio, P[4]);
    if (range_error()) { // and the indicator stays set
        y[1] = P[1];
        dyda[1] = dyda[2] = dyda[3] = dyda[4] = 0;
        return success;
    }
    const double d = 1 / (t + 1);
    const double span = P[2] - P[1];
    const double q = -t * span * (d * d);
    y[1] = d * span + P[1];
    dyda[1] = 1 - d;
    dyda[2] = d;
    dyda[3] = P[4] / P[3] * q;
    dyda[4] = q * log(ratio);
    if (math_error()) return fail_slots(at, 4);
    return success;
}

} // namespace
} // namespace ansatz::hill1

ANSATZ_MODEL(Hill, ansatz::FormD<ansatz::hill::value, ansatz::hill::derivatives>)
ANSATZ_MODEL(Hill1, ansatz::FormD<ansatz::hill1::value, ansatz::hill1::derivatives>)
