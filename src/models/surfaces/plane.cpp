// Plane: z = P1 + P2 x1 + P3 x2.
//
//   P1 level at the origin, P2 slope along x1, P3 slope along x2. Never fails.

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

ANSATZ_PAGE(Plane, .title = "", .formula = "y = y0 + a x1 + b x2",
            .parameters = {{"y0", "level at the origin", Trait::offset},
                           {"a", "slope along x1", Trait::slope},
                           {"b", "slope along x2", Trait::slope}})

} // namespace ansatz::plane
