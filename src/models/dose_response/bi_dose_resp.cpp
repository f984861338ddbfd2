// BiDoseResp. Any overflow of a power fails, marking y only.

#include "protocol/limits.h"

namespace ansatz::bi_dose_resp {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Real s1 = power_of_ten((P[3] - x[1]) * P[5]) + 1;
    if (math_error()) return fail(at);
    const Real s2 = power_of_ten((P[4] - x[1]) * P[6]) + 1;
    if (math_error()) return fail(at);
    y[1] = (P[7] / s1 + (1 - P[7]) / s2) * (P[2] - P[1]) + P[1];
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Real u1 = P[3] - x[1], u2 = P[4] - x[1];
    const Scalar slope1 = P[5], slope2 = P[6];
    const Real s1 = power_of_ten(u1 * slope1) + 1;
    if (math_error()) return fail(at);
    const Real s2 = power_of_ten(u2 * slope2) + 1;
    if (math_error()) return fail(at);
    const Scalar span = P[2] - P[1], first = P[7], second = 1 - P[7];
    const Real f = first / s1 + second / s2;
    const Real by_centre1 = (1 - s1) * span * slope1 * first * ln10 / (s1 * s1);
    const Real by_centre2 = ln10 * (1 - s2) * span * slope2 * second / (s2 * s2);
    y[1] = span * f + P[1];
    dyda[1] = 1 - f;
    dyda[2] = f;
    dyda[3] = by_centre1;
    dyda[4] = by_centre2;
    dyda[5] = u1 * by_centre1 / slope1;
    dyda[6] = u2 * by_centre2 / slope2;
    dyda[7] = (1 / s1 - 1 / s2) * span;
    return success;
}

} // namespace

ANSATZ_MODEL(BiDoseResp, OnePath<value, derivatives>)

ANSATZ_PAGE(
    BiDoseResp, .title = "Two sigmoids over the logarithm of a dose, sharing one span by a fraction",
    .formula =
        "y = bottom + (top - bottom) (f/(1 + 10^((logEC50_1 - x) p1)) + (1 - f)/(1 + 10^((logEC50_2 - x) p2)))",
    .parameters = {{"bottom", "lower level", Trait::level},
                   {"top", "upper level", Trait::level},
                   {"logEC50_1", "decadic logarithm of the half-way dose of the first phase",
                    Trait::log_position},
                   {"logEC50_2", "the same of the second phase", Trait::log_position},
                   {"p1", "steepness of the first phase; negative: it falls", Trait::exponent, not_zero},
                   {"p2", "steepness of the second phase; negative: it falls", Trait::exponent, not_zero},
                   {"f", "fraction of the first phase", Trait::fraction, from_to(0, 1)}},
    .typical = {{1, 10, -8, -5, 1, 1.3, 0.4}, -11, -2}, .scales = Scales::y_only,
    .same_as = "DoubleBoltzmann(y0 = bottom, A = top - bottom, f = f, x01 = logEC50_1, x02 = logEC50_2, dx1 = "
               "-1/(p1 ln(10)), dx2 = -1/(p2 ln(10)))",
    .known_as = "biphasic dose-response curve",
    .notes = "x is the decadic logarithm of the dose. A slope of 0 has no derivatives: do not start a fit "
             "there. Fails where an exponent (logEC50 - x) p exceeds 308: bound steep slopes.")

} // namespace ansatz::bi_dose_resp
