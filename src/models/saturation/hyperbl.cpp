// Hyperbl. The value fails for nParams <= 0 too. No library function is called, so a pending error passes
// through unseen.

#include "protocol/forms.h"

namespace ansatz::hyperbl {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (n < 1) return fail(at);
    const Real s = P[2] + x[1];
    if (s == 0) return fail(at);
    y[1] = P[1] * x[1] / s;
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Real s = P[2] + x[1];
    if (s == 0) return fail(at, 1, 2);
    const Real share = x[1] / s;
    const Real v = share * P[1];
    dyda[1] = share;
    dyda[2] = -v / s;
    y[1] = v;
    return success;
}

} // namespace

ANSATZ_MODEL(Hyperbl, BothPaths<value, derivatives>)

ANSATZ_PAGE(Hyperbl, .title = "Saturation along a hyperbola through the origin, by its capacity and half-point",
            .formula = "y = A x/(K + x)",
            .parameters = {{"A", "capacity, the level for large x", Trait::ceiling},
                           {"K", "x at which half of it is reached", Trait::half_point, positive}},
            .typical = {{8, 2}, 0, 20}, .same_as = "MicMent(Vmax = A, Km = K)",
            .known_as = "rectangular hyperbola", .notes = "Fails at x = -K.")

} // namespace ansatz::hyperbl
