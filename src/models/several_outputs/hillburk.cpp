// HillBurk: a saturation curve and a straight line, each over its own independent variable.
//
//   y[1] = P1 x1 / (P2 + x1),   y[2] = (P4 x2 + 1) / P3
//
//   P1 maximum, P2 half-saturation constant (same unit as x1), P3 divisor, P4 slope.
//
//   A zero divisor is not tested: it makes its output infinite or not a number, with status 0. A failure, which
//   only an error indicator left set by the caller can cause, marks both outputs. No derivatives; a derivative
//   request alone returns 0 and writes nothing.

#include "models/several_outputs/missing_fill.h"

namespace ansatz::hillburk {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    y[1] = P[1] * x[1] / (P[2] + x[1]);
    if (math_error()) return missing_fill(at, 2);
    y[2] = (P[4] * x[2] + 1) / P[3];
    return math_error() ? missing_fill(at, 2) : success;
}

} // namespace

ANSATZ_MODEL(HillBurk, ValueOrNothing<value>)

ANSATZ_PAGE(HillBurk, .title = "", .formula = "y1 = V x1/(K + x1);  y2 = (1 + s x2)/d", .paired = true,
            .parameters = {{"V", "maximum of y1", Trait::ceiling},
                           {"K", "half-saturation constant (as x1)", Trait::constant},
                           {"d", "divisor: y2 is 1/d at x2 = 0", Trait::constant},
                           {"s", "slope, relative to 1 at x2 = 0", Trait::slope}},
            .notes = "Two curves over an x column each, without a common parameter.")

} // namespace ansatz::hillburk
