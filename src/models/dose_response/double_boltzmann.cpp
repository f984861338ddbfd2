// DoubleBoltzmann. An overflow of an exponential is no limit here but a failure, which marks y only; on a
// request for derivatives dyda[1] is 1 by then. A width of 0 is not tested for: the step is then a jump, with
// slopes that are no numbers.

#include "protocol/forms.h"

namespace ansatz::double_boltzmann {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Real s1 = 1 + safe_exp((x[1] - P[4]) / P[6]);
    if (math_error()) return fail(at);
    const Real s2 = 1 + safe_exp((x[1] - P[5]) / P[7]);
    if (math_error()) return fail(at);
    y[1] = (P[3] / s1 + (1 - P[3]) / s2) * P[2] + P[1];
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    dyda[1] = 1;
    const Scalar span = P[2], first = P[3], second = 1 - P[3], w1 = P[6], w2 = P[7];
    const Real u1 = x[1] - P[4], u2 = x[1] - P[5];
    const Real s1 = 1 + safe_exp(u1 / w1);
    if (math_error()) return fail(at);
    const Real s2 = 1 + safe_exp(u2 / w2);
    if (math_error()) return fail(at);
    const Real f = first / s1 + second / s2;
    const Real by_centre1 = (s1 - 1) * span * first / (s1 * s1 * w1);
    const Real by_centre2 = (s2 - 1) * span * second / (s2 * s2 * w2);
    y[1] = f * span + P[1];
    dyda[2] = f;
    dyda[3] = (1 / s1 - 1 / s2) * span;
    dyda[4] = by_centre1;
    dyda[5] = by_centre2;
    dyda[6] = u1 * by_centre1 / w1;
    dyda[7] = u2 * by_centre2 / w2;
    return success;
}

} // namespace

ANSATZ_MODEL(DoubleBoltzmann, OnePath<value, derivatives>)

ANSATZ_PAGE(
    DoubleBoltzmann, .title = "Two sigmoid steps, sharing one span by a fraction",
    .formula = "y = y0 + A (f/(1 + exp((x - x01)/dx1)) + (1 - f)/(1 + exp((x - x02)/dx2)))",
    .parameters = {{"y0", "base: the level at large x, for widths > 0", Trait::offset},
                   {"A", "span of both steps together", Trait::amplitude},
                   {"f", "fraction of the first step", Trait::fraction, from_to(0, 1)},
                   {"x01", "centre of the first step", Trait::position},
                   {"x02", "centre of the second step", Trait::position},
                   {"dx1", "width of the first step; negative: it rises, for A > 0", Trait::width, not_zero},
                   {"dx2", "width of the second step; negative: it rises, for A > 0", Trait::width, not_zero}},
    .typical = {{1, 5, 0.4, 3, 7, 0.3, 0.5}, 0, 10},
    .notes = "Falls from y0 + A to y0 for widths > 0; negative widths make it rise. Fails where (x - "
             "centre)/width exceeds 709, so keep the widths away from 0.")

} // namespace ansatz::double_boltzmann
