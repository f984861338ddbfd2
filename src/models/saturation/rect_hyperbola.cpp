// RectHyperbola. A failure of the derivatives marks y[1] only. The derivatives divide by P2, which no test
// guards: where it is 0 they are no numbers, with status 0. No library function is called, so a pending error
// passes through unseen.

#include "protocol/handbook_law.h"

namespace ansatz::rect_hyperbola {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Real u = P[2] * x[1];
    if (u == -1) return fail(at);
    y[1] = P[1] * P[2] * x[1] / (1 + u);
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Real u = P[2] * x[1];
    if (u == -1) return fail(at);
    const Real h = u / (u + 1);
    dyda[1] = h;
    y[1] = P[1] * h;
    dyda[2] = y[1] * (1 - h) / P[2];
    return success;
}

} // namespace

ANSATZ_MODEL(RectHyperbola, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(RectHyperbola,
            .title = "Saturation along a hyperbola through the origin, by its maximum and affinity",
            .formula = "y = a b x/(1 + b x)",
            .parameters = {{"a", "maximum, the limit for large x", Trait::ceiling},
                           {"b", "affinity, 1/(unit of x): y is a/2 at x = 1/b", Trait::rate, positive}},
            .typical = {{8, 0.5}, 0, 20}, .same_as = "MicMent(Vmax = a, Km = 1/b)",
            .known_as = "rectangular hyperbola, Langmuir isotherm", .source = "Langmuir, 1918",
            .notes = "Fails where b x = -1. b = 0 has a value but no derivatives: do not start a fit there.")

} // namespace ansatz::rect_hyperbola
