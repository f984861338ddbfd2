// Ellipse. A semi-axis of 0 makes y infinite or not a number. The status is always 0: an error indicator left
// set by the caller shows as MISSING_VALUE in y alone, and stays set. A derivative request alone writes
// nothing.

#include "models/several_outputs/residual.h"

namespace ansatz::ellipse {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Real u = (x[1] - P[1]) / P[3], v = (x[2] - P[2]) / P[4];
    return residual(at, v * v + u * u - 1);
}

} // namespace

ANSATZ_MODEL(Ellipse, ValueOrNothing<value>)

ANSATZ_PAGE(Ellipse, .title = "An upright ellipse", .formula = "0 = ((x1 - xc)/a)^2 + ((x2 - yc)/b)^2 - 1",
            .implicit = true,
            .parameters = {{"xc", "centre on x1", Trait::position},
                           {"yc", "centre on x2", Trait::position, Dimension{.x2 = 1}},
                           {"a", "semi-axis along x1", Trait::width, positive},
                           {"b", "semi-axis along x2", Trait::width, Dimension{.x2 = 1}, positive}},
            .typical = {{3, 2, 2.5, 1.5}, 0, 6, 0, 4},
            .notes = "Its axes are those of x1 and x2. The residual is negative inside, -1 at the centre. The "
                     "signs of a and b do not matter.")

} // namespace ansatz::ellipse
