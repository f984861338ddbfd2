// Sine waves: Sine, SineSqr, SineDamp.
//
//   Sine       y = P1 + P4 sin(t)                P1 offset, P2 phase shift, P3 half period, P4 amplitude
//   SineSqr    y = P1 + P4 sin(t)^2              the same; P3 is the full period of the squared wave
//   SineDamp   y = P1 + P5 e^(-x/P4) sin(t)      as Sine; P4 decay time, P5 amplitude
//
//   with t = pi (x - P2) / P3. Shift, period and decay time have the unit of x.
//
//   Fails where P3 is 0, SineDamp also where P4 is 0 and on an overflow of the exponential; a failure of the
//   derivatives marks every slot. A negative period is accepted, and so is a negative decay time, which lets
//   the wave grow.
//
//   How an infinite t ends: SineSqr fails, and so does the value of SineDamp; Sine and the derivatives of
//   SineDamp return NaN with status 0, and the error indicator stays at a domain error.

#include "protocol/forms.h"

namespace ansatz::periodic {
namespace {

constexpr double pi = 3.141592653589793;

double phase(double x, double shift, double period) {
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
    const double t = phase(x[1], P[2], P[3]);
    const double s = sin(t);
    const double by_shift = cos(t) * (P[4] * -pi) / P[3];
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
    const double s = sin(phase(x[1], P[2], P[3]));
    if (math_error()) return fail(at);
    y[1] = P[4] * (s * s) + P[1];
    return success;
}

Status sine_sqr_derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (P[3] == 0) return fail_all(at, 4);
    const double t = phase(x[1], P[2], P[3]);
    const double s = sin(t);
    if (math_error()) return fail_all(at, 4);
    const double by_shift = cos(t) * (P[4] * -2.0 * pi) * s / P[3];
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
    const double e = safe_exp(-x[1] / P[4]);
    if (math_error()) return fail_all(at, 5);
    const double t = phase(x[1], P[2], P[3]);
    const double wave = sin(t) * e;
    const double by_decay = wave * P[5] * x[1] / P[4] / P[4];
    const double by_shift = cos(t) * (P[5] * e * -pi) / P[3];
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

ANSATZ_PAGE(Sine, .title = "", .formula = "y = y0 + A sin(pi (x - xc)/w)",
            .parameters = {{"y0", "offset", Trait::offset},
                           {"xc", "phase shift, an upward zero crossing, unit of x", Trait::constant},
                           {"w", "half period, unit of x", Trait::constant},
                           {"A", "amplitude", Trait::amplitude}},
            .notes = "Fails for w = 0. A fit finds only a nearby period: start xc at a crossing in the middle "
                     "of the data and w so near that the waves stay in step to both ends.")

ANSATZ_MODEL(SineSqr, BothPaths<sine_sqr_value, sine_sqr_derivatives, Answers{.probe = true}>)

ANSATZ_PAGE(SineSqr, .title = "", .formula = "y = y0 + A sin(pi (x - xc)/w)^2",
            .parameters = {{"y0", "offset", Trait::offset},
                           {"xc", "phase shift, where y = y0, unit of x", Trait::constant},
                           {"w", "period of the squared wave, unit of x", Trait::constant},
                           {"A", "amplitude, from trough to crest", Trait::amplitude}},
            .notes = "Fails for w = 0. A fit finds only a nearby period: start xc at a trough or crest in the "
                     "middle of the data and w so near that the waves stay in step to both ends.")

ANSATZ_MODEL(SineDamp, BothPaths<sine_damp_value, sine_damp_derivatives, Answers{.probe = true}>)

ANSATZ_PAGE(
    SineDamp, .title = "", .formula = "y = y0 + A exp(-x/t) sin(pi (x - xc)/w)",
    .parameters = {{"y0", "offset", Trait::offset},
                   {"xc", "phase shift, an upward zero crossing, unit of x", Trait::constant},
                   {"w", "half period, unit of x", Trait::constant},
                   {"t", "decay time, unit of x", Trait::constant},
                   {"A", "amplitude, of the envelope at x = 0", Trait::amplitude}},
    .notes = "Fails for w = 0 or t = 0 and where the exponential overflows. A negative t lets the wave grow. A "
             "fit finds only a nearby period: start w close to half the distance of two crests.")

} // namespace ansatz::periodic
