// Pulse, and Pulse1 without a baseline.
//
// The value of Pulse1 forgives more than the other paths: it accepts negative times and any power, where
// neither an exponential overflows nor the power of 1 - e^(..) is undefined, and an amplitude of 0 makes it 0
// untested. The value of Pulse also fails for nParams <= 0.
//
// At the start, and so near to it that the rise is lost in rounding, the derivatives return status 1 with a
// usable value and amplitude slot: the slots of start, times and power do not exist there and are missing.

#include "protocol/forms.h"

namespace ansatz::pulse {
namespace {

Status pulse_value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (n <= 0 || P[4] <= 0 || P[6] <= 0 || P[5] <= 0) return fail(at);
    const Real d = x[1] - P[2];
    if (d < 0) {
        y[1] = P[1];
        return success;
    }
    const Real e1 = safe_exp(-d / P[4]);
    const Real e2 = safe_exp(-d / P[6]);
    const Real p = safe_pow(1 - e1, P[5]);
    if (math_error()) return fail(at);
    y[1] = P[1] + P[3] * p * e2;
    return success;
}

Status pulse1_value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    y[1] = 0;
    if (P[2] == 0) return success;
    if (P[3] == 0 || P[5] == 0) return fail(at);
    const Real d = x[1] - P[1];
    if (d <= 0) return success;
    const Real e1 = safe_exp(-d / P[3]);
    const Real p = safe_pow(1 - e1, P[4]);
    const Real e2 = safe_exp(-d / P[5]);
    y[1] = P[2] * p * e2;
    return math_error() ? fail(at) : success;
}

/// Value and derivatives at d = x - start >= 0; the parameters of the pulse proper lie from P[start] on, after
/// the baseline where there is one.
template <int start> Status slopes(const Point& at, Real d) {
    const auto [n, P, x, y, dyda] = at;
    constexpr int amplitude = start + 1, rise = start + 2, power = start + 3, decay = start + 4;
    constexpr bool baseline = start == 2;
    const Real a = -d / P[rise], b = -d / P[decay];
    const Real e1 = safe_exp(a);
    const Real e2 = safe_exp(b);
    if (range_error()) return fail(at, start, amplitude, rise, power, decay);
    const Real g = 1 - e1;
    const Real shape = safe_pow(g, P[power]) * e2;
    if (math_error()) return fail(at, start, amplitude, rise, power, decay);
    dyda[amplitude] = shape;
    const Real v = P[amplitude] * shape;
    y[1] = baseline ? P[1] + v : v;
    if (e1 == 1) {
        dyda[start] = dyda[rise] = dyda[power] = dyda[decay] = MISSING_VALUE;
        return failure;
    }
    const Real c = e1 * P[power] / (g * P[rise]);
    dyda[start] = (1 / P[decay] - c) * v;
    dyda[rise] = v * a * c;
    dyda[decay] = -v * b / P[decay];
    dyda[power] = log(g) * v; // 0 < g <= 1: no error is possible
    return success;
}

Status pulse_derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (P[4] <= 0 || P[6] <= 0 || P[5] <= 0) return fail_all(at, 6);
    dyda[1] = 1;
    const Real d = x[1] - P[2];
    if (d < 0) {
        dyda[2] = dyda[3] = dyda[4] = dyda[5] = dyda[6] = 0;
        y[1] = P[1];
        return success;
    }
    return slopes<2>(at, d);
}

Status pulse1_derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (P[3] <= 0 || P[5] <= 0 || P[4] <= 0) return fail_all(at, 5);
    const Real d = x[1] - P[1];
    if (d < 0) {
        dyda[1] = dyda[2] = dyda[3] = dyda[4] = dyda[5] = 0;
        y[1] = 0;
        return success;
    }
    return slopes<1>(at, d);
}

} // namespace

ANSATZ_MODEL(Pulse, BothPaths<pulse_value, pulse_derivatives, Answers{.probe = true}>)

ANSATZ_PAGE(Pulse, .title = "Pulse on a baseline, a rise to some power times a decay",
            .formula = "y = y0 + A (1 - exp(-(x - x0)/t1))^p exp(-(x - x0)/t2) for x >= x0, y0 otherwise",
            .parameters = {{"y0", "offset, the baseline", Trait::offset},
                           {"x0", "start of the pulse", Trait::threshold},
                           {"A", "amplitude, larger than the height of the pulse", Trait::amplitude},
                           {"t1", "rise time, unit of x", Trait::time, positive},
                           {"p", "power of the rise", Trait::shape, positive},
                           {"t2", "decay time, unit of x", Trait::time, positive}},
            .typical = {{0.5, 2, 4, 1, 2, 3}, 0, 15},
            .notes = "Fails for a time or power <= 0. There are no derivatives at x = x0: start a fit with x0 "
                     "off the data, or take numerical derivatives.")

ANSATZ_MODEL(Pulse1, BothPaths<pulse1_value, pulse1_derivatives>)

ANSATZ_PAGE(
    Pulse1, .title = "Pulse from 0, a rise to some power times a decay",
    .formula = "y = A (1 - exp(-(x - x0)/t1))^p exp(-(x - x0)/t2) for x > x0, 0 otherwise",
    .parameters = {{"x0", "start of the pulse", Trait::threshold},
                   {"A", "amplitude, larger than the height of the pulse", Trait::amplitude},
                   {"t1", "rise time, unit of x", Trait::time, positive},
                   {"p", "power of the rise", Trait::shape, positive},
                   {"t2", "decay time, unit of x", Trait::time, positive}},
    .typical = {{2, 4, 1, 2, 3}, 0, 15}, .same_as = "Pulse(y0 = 0, x0 = x0, A = A, t1 = t1, p = p, t2 = t2)",
    .notes = "Fails for a time of 0; the derivatives, and so a fit, for a time or power <= 0. There are "
             "no derivatives at x = x0: start a fit with x0 off the data, or take numerical derivatives.")

} // namespace ansatz::pulse
