// Nelder. The value is 0 where x + P1 is 0, and the call ends there: no derivatives, even when both were
// requested; asked for alone they are there. No library function is called, so a pending error passes through
// unseen.

#include "protocol/forms.h"

namespace ansatz::nelder {
namespace {

Real denominator(const Scalar* P, Real u) {
    return P[2] + P[3] * u + P[4] * (u * u);
}

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Real u = x[1] + P[1];
    const Real D = denominator(P, u);
    if (D == 0) return fail(at);
    if (u == 0) {
        y[1] = 0;
        return ends_call;
    }
    y[1] = u / D;
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Real u = x[1] + P[1];
    const Real D = denominator(P, u);
    if (D == 0) return fail(at, 1, 2, 3, 4);
    const Real r = u / D;
    const Real slope = -r / D;
    dyda[1] = -(P[4] * (u * u) - P[2]) / (D * D);
    dyda[2] = slope;
    dyda[3] = slope * u;
    dyda[4] = slope * u * u;
    y[1] = r;
    return success;
}

} // namespace

ANSATZ_MODEL(Nelder, BothPaths<value, derivatives>)

ANSATZ_PAGE(Nelder,
            .title = "Yield of an area against the density of planting: an inverse polynomial with a shift",
            .formula = "y = (x + s)/(a + b (x + s) + c (x + s)^2)",
            .parameters = {{"s", "shift of x: y is 0 at x = -s", Trait::constant, Dimension{.x = 1}},
                           {"a", "(x + s)/y at x = -s", Trait::coefficient, Dimension{.x = 1, .y = -1}},
                           {"b", "linear coefficient", Trait::inverse_level},
                           {"c", "quadratic coefficient", Trait::coefficient, Dimension{.x = -1, .y = -1}}},
            .typical = {{0.5, 0.2, 0.05, 0.02}, 0, 15}, .known_as = "inverse polynomial",
            .source = "Nelder, 1966", .notes = "Fails only where the denominator is exactly 0.")

} // namespace ansatz::nelder
