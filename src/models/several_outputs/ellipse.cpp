// Ellipse and Circle: implicit curves; y is the residual, 0 for points on the curve, negative inside, -1 at the
// centre.
//
//   Ellipse   y = ((x2 - P2)/P4)^2 + ((x1 - P1)/P3)^2 - 1
//   Circle    the same with the radius P3 for both axes
//
//   P1, P2 centre; P3 semi-axis along x1 (Circle: radius); P4 semi-axis along x2. Their signs do not matter.
//
//   A semi-axis of 0 makes y infinite or not a number. The status is always 0: an error indicator left set by
//   the caller shows as MISSING_VALUE in y alone, and stays set. No derivatives; a derivative request alone
//   writes nothing.

#include "models/several_outputs/residual.h"

namespace ansatz::ellipse {
namespace {

double squares(double u, double v) {
    return v * v + u * u - 1;
}

Status ellipse(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    return residual(at, squares((x[1] - P[1]) / P[3], (x[2] - P[2]) / P[4]));
}

Status circle(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    return residual(at, squares((x[1] - P[1]) / P[3], (x[2] - P[2]) / P[3]));
}

} // namespace

ANSATZ_MODEL(Ellipse, ValueOrNothing<ellipse>)

ANSATZ_PAGE(Ellipse, .title = "", .formula = "0 = ((x1 - xc)/a)^2 + ((x2 - yc)/b)^2 - 1", .implicit = true,
            .parameters = {{"xc", "centre in x1", Trait::position},
                           {"yc", "centre in x2", Trait::position},
                           {"a", "semi-axis along x1", Trait::constant},
                           {"b", "semi-axis along x2", Trait::constant}},
            .notes = "Upright: its axes are those of x1 and x2. The signs of a and b do not matter.")

ANSATZ_MODEL(Circle, ValueOrNothing<circle>)

ANSATZ_PAGE(Circle, .title = "", .formula = "0 = ((x1 - xc)/r)^2 + ((x2 - yc)/r)^2 - 1", .implicit = true,
            .parameters = {{"xc", "centre in x1", Trait::position},
                           {"yc", "centre in x2", Trait::position},
                           {"r", "radius", Trait::constant}},
            .notes = "The sign of r does not matter.")

} // namespace ansatz::ellipse
