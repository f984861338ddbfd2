// HillBurk. A divisor of 0 is not tested: it makes its output infinite or not a number, with status 0. A
// failure, which only an error indicator left set by the caller can cause, marks both outputs. A derivative
// request alone returns 0 and writes nothing.

#include "models/several_outputs/missing_fill.h"

namespace ansatz::hill_burk {
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

ANSATZ_PAGE(
    HillBurk, .title = "A saturation curve and a straight line, each over an x column of its own",
    .formula = "y1 = V x1/(K + x1);  y2 = (1 + s x2)/d", .paired = true,
    .parameters = {{"V", "maximum of y1", Trait::ceiling},
                   {"K", "half-saturation constant (as x1)", Trait::half_point, positive},
                   {"d", "divisor: y2 is 1/d at x2 = 0", Trait::inverse_level, not_zero},
                   {"s", "slope of y2, relative to 1/d", Trait::coefficient, Dimension{.x2 = -1}}},
    .typical = {{5, 2, 4, 0.8}, 0, 12, 0, 5}, .source = "Michaelis and Menten, 1913; Lineweaver and Burk, 1934",
    .notes = "The two curves have no parameter in common. Where x2 = 1/x1 and y2 = 1/y1, the line is the "
             "reciprocal plot of the same curve, and d and s estimate V and K once more. A divisor of "
             "0, x1 = -K or d = 0, gives no finite number.")

} // namespace ansatz::hill_burk
