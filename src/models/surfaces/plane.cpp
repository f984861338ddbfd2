// Plane. Never fails, whatever nParams is.

#include "protocol/forms.h"

namespace ansatz::plane {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    y[1] = P[2] * x[1] + P[1] + P[3] * x[2];
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    dyda[1] = 1;
    dyda[2] = x[1];
    dyda[3] = x[2];
    return value(at);
}

} // namespace

ANSATZ_MODEL(Plane, BothPaths<value, derivatives>)

ANSATZ_PAGE(Plane, .title = "A plane over x1 and x2", .formula = "y = y0 + a x1 + b x2",
            .parameters = {{"y0", "level at the origin", Trait::offset},
                           {"a", "slope along x1", Trait::slope},
                           {"b", "slope along x2", Trait::slope, Dimension{.y = 1, .x2 = -1}}},
            .typical = {{1, 0.5, -0.3}, 0, 10, 0, 10},
            .known_as = "linear regression on two variables, first-order response surface")

} // namespace ansatz::plane
