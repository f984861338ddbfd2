// Dhyperbl. The value fails for nParams <= 0 too; a failure of the derivatives marks y only. No library
// function is called, so a pending error passes through unseen.

#include "protocol/forms.h"

namespace ansatz::dhyperbl {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (n < 1) return fail(at);
    const Real s1 = P[2] + x[1], s2 = P[4] + x[1];
    if (s1 == 0 || s2 == 0) return fail(at);
    y[1] = P[1] * x[1] / s1 + (P[3] * x[1] / s2 + P[5] * x[1]);
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Real s1 = P[2] + x[1], s2 = P[4] + x[1];
    if (s1 == 0 || s2 == 0) return fail(at);
    const Real share1 = x[1] / s1, share2 = x[1] / s2;
    y[1] = P[3] * share2 + P[1] * share1 + P[5] * x[1];
    dyda[1] = share1;
    dyda[2] = -P[1] * share1 / s1;
    dyda[3] = share2;
    dyda[4] = -P[3] * share2 / s2;
    dyda[5] = x[1];
    return success;
}

} // namespace

ANSATZ_MODEL(Dhyperbl, BothPaths<value, derivatives>)

ANSATZ_PAGE(Dhyperbl, .title = "Saturation of two sites, with a linear part that does not saturate",
            .formula = "y = A1 x/(K1 + x) + A2 x/(K2 + x) + s x",
            .parameters = {{"A1", "capacity of the first site", Trait::ceiling},
                           {"K1", "x at which half of it is reached", Trait::half_point, positive},
                           {"A2", "capacity of the second site", Trait::ceiling},
                           {"K2", "x at which half of it is reached", Trait::half_point, positive},
                           {"s", "slope of the part that does not saturate", Trait::slope}},
            .typical = {{4, 0.3, 6, 8, 0.05}, 0, 40},
            .known_as = "double rectangular hyperbola, two-site binding with nonspecific binding",
            .notes = "Fails at x = -K1 and x = -K2. Start a fit with K1 and K2 that differ by a factor.")

} // namespace ansatz::dhyperbl
