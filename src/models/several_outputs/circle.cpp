// Circle. A radius of 0 makes y infinite or not a number. The status is always 0: an error indicator left set
// by the caller shows as MISSING_VALUE in y alone, and stays set. A derivative request alone writes nothing.

#include "models/several_outputs/residual.h"

namespace ansatz::circle {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Real u = (x[1] - P[1]) / P[3], v = (x[2] - P[2]) / P[3];
    return residual(at, v * v + u * u - 1);
}

} // namespace

ANSATZ_MODEL(Circle, ValueOrNothing<value>)

ANSATZ_PAGE(
    Circle, .title = "A circle", .formula = "0 = ((x1 - xc)/r)^2 + ((x2 - yc)/r)^2 - 1", .implicit = true,
    .parameters = {{"xc", "centre on x1", Trait::position},
                   {"yc", "centre on x2", Trait::position},
                   {"r", "radius", Trait::width, positive}},
    .typical = {{3, 2, 1.5}, 1, 5, 0, 4}, .scales = Scales::neither,
    .notes = "x1 and x2 need the same unit. The residual is negative inside, -1 at the centre. The sign "
             "of r does not matter.")

} // namespace ansatz::circle
