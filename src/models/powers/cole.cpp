// Cole: a power of one variable, scaled by a straight line in a second one.
//
//   y = x1^P1 (P2 + P3 x2)
//
//   P1 exponent, P2 and P3 intercept and slope of the scale in x[2].
//
//   Fails on an error of the power alone: x1 == 0 with P1 < 0, x1 < 0 with a broken exponent, overflow. Where
//   the line is exactly 0 the value is 0 and no power is taken. Values only: a derivative request is ignored.

#include "protocol/forms.h"

namespace ansatz::cole {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const double line = P[2] + P[3] * x[2];
    if (line == 0) {
        y[1] = 0;
        return success;
    }
    y[1] = safe_pow(x[1], P[1]) * line;
    return math_error() ? fail(at) : success;
}

} // namespace

ANSATZ_MODEL(Cole, ValueOrNothing<value>)

ANSATZ_PAGE(Cole, .title = "", .formula = "y = x1^a (b + c x2)",
            .parameters = {{"a", "exponent of x1", Trait::exponent},
                           {"b", "scale at x2 = 0", Trait::constant},
                           {"c", "change of the scale per unit of x2", Trait::constant}},
            .notes = "Fails where the power does not exist: x1 = 0 with a < 0, x1 < 0 with a broken a.")

} // namespace ansatz::cole
