// Sine, SineSqr, SineDamp. A failure of the derivatives marks every slot.
//
// How an infinite argument of the wave ends: SineSqr fails, and so does the value of SineDamp; Sine and the
// derivatives of SineDamp return NaN with status 0, and the error indicator stays at a domain error.

#include "protocol/forms.h"

namespace ansatz::sine {
namespace {

constexpr Scalar pi = 3.141592653589793;

Real phase(Real x, Scalar shift, Scalar period) {
    return pi * (x - shift) / period;
}

Status sine_value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (P[3] == 0) return fail(at);
    y[1] = sin(phase(x[1], P[2], P[3])) * P[4] + P[1];
    return success;
}

Status sine_derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (P[3] == 0) return fail_all(at, 4);
    const Real t = phase(x[1], P[2], P[3]);
    const Real s = sin(t);
    const Real by_shift = cos(t) * (P[4] * -pi) / P[3];
    y[1] = P[4] * s + P[1];
    dyda[1] = 1;
    dyda[4] = s;
    dyda[3] = by_shift * (x[1] - P[2]) / P[3];
    dyda[2] = by_shift;
    return success;
}

Status sine_sqr_value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (P[3] == 0) return fail(at);
    const Real s = sin(phase(x[1], P[2], P[3]));
    if (math_error()) return fail(at);
    y[1] = P[4] * (s * s) + P[1];
    return success;
}

Status sine_sqr_derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (P[3] == 0) return fail_all(at, 4);
    const Real t = phase(x[1], P[2], P[3]);
    const Real s = sin(t);
    if (math_error()) return fail_all(at, 4);
    const Real by_shift = cos(t) * (P[4] * -2.0 * pi) * s / P[3];
    y[1] = P[4] * (s * s) + P[1];
    dyda[1] = 1;
    dyda[4] = s * s;
    dyda[3] = by_shift * (x[1] - P[2]) / P[3];
    dyda[2] = by_shift;
    return success;
}

Status sine_damp_value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (P[4] == 0 || P[3] == 0) return fail(at);
    y[1] = safe_exp(-x[1] / P[4]) * P[5] * sin(phase(x[1], P[2], P[3])) + P[1];
    return math_error() ? fail(at) : success;
}

Status sine_damp_derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (P[4] == 0 || P[3] == 0) return fail_all(at, 5);
    const Real e = safe_exp(-x[1] / P[4]);
    if (math_error()) return fail_all(at, 5);
    const Real t = phase(x[1], P[2], P[3]);
    const Real wave = sin(t) * e;
    const Real by_decay = wave * P[5] * x[1] / P[4] / P[4];
    const Real by_shift = cos(t) * (P[5] * e * -pi) / P[3];
    y[1] = wave * P[5] + P[1];
    dyda[1] = 1;
    dyda[5] = wave;
    dyda[4] = by_decay;
    dyda[3] = by_shift * (x[1] - P[2]) / P[3];
    dyda[2] = by_shift;
    return success;
}

} // namespace

ANSATZ_MODEL(Sine, BothPaths<sine_value, sine_derivatives, Answers{.probe = true}>)

ANSATZ_PAGE(Sine, .title = "Sine wave on an offset, by its half period",
            .formula = "y = y0 + A sin(pi (x - xc)/w)",
            .parameters = {{"y0", "offset", Trait::offset},
                           {"xc", "phase shift, an upward zero crossing for A > 0, unit of x", Trait::position},
                           {"w", "half period, unit of x", Trait::period, positive},
                           {"A", "amplitude", Trait::amplitude}},
            .typical = {{1, 1, 2, 3}, 0, 10}, .known_as = "sinusoid, harmonic wave",
            .notes = "Fails for w = 0. A fit finds only a nearby period: start xc at a crossing in the middle "
                     "of the data and w so near that the waves stay in step to both ends.")

ANSATZ_MODEL(SineSqr, BothPaths<sine_sqr_value, sine_sqr_derivatives, Answers{.probe = true}>)

ANSATZ_PAGE(SineSqr, .title = "Squared sine wave on an offset, by its period",
            .formula = "y = y0 + A sin(pi (x - xc)/w)^2",
            .parameters = {{"y0", "offset", Trait::offset},
                           {"xc", "phase shift, where y = y0, unit of x", Trait::position},
                           {"w", "period of the squared wave, unit of x", Trait::period, positive},
                           {"A", "amplitude, from trough to crest", Trait::amplitude}},
            .typical = {{1, 1, 4, 3}, 0, 10}, .same_as = "Sine(y0 = y0 + A/2, xc = xc + w/4, w = w/2, A = A/2)",
            .known_as = "sine squared",
            .notes = "Fails for w = 0. A fit finds only a nearby period: start xc at a trough, for A < 0 at a "
                     "crest, in the middle of the data and w so near that the waves stay in step to both ends.")

ANSATZ_MODEL(SineDamp, BothPaths<sine_damp_value, sine_damp_derivatives, Answers{.probe = true}>)

ANSATZ_PAGE(SineDamp, .title = "Sine wave on an offset with an exponential decay",
            .formula = "y = y0 + A exp(-x/t) sin(pi (x - xc)/w)",
            .parameters = {{"y0", "offset", Trait::offset},
                           {"xc", "phase shift, an upward zero crossing for A > 0, unit of x", Trait::position},
                           {"w", "half period, unit of x", Trait::period, positive},
                           {"t", "decay time, unit of x", Trait::time, not_zero},
                           {"A", "amplitude, of the envelope at x = 0", Trait::amplitude}},
            .typical = {{1, 0.5, 1, 4, 3}, 0, 12}, .known_as = "damped oscillation",
            .notes =
                "Fails for w = 0 or t = 0 and where the exponential overflows. A negative t lets the wave "
                "grow. A fit finds only a nearby period: start w close to half the distance of two crests.")

} // namespace ansatz::sine
