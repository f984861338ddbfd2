// LineExp. An overflow of the exponential fails both outputs. t == 0 is not tested: for x >= 0 it makes y[2]
// infinite or not a number, with status 0. A derivative request alone returns 0 and writes nothing.

#include "models/several_outputs/missing_fill.h"

namespace ansatz::line_exp {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    y[1] = P[1] + P[3] * x[1];
    if (math_error()) return missing_fill(at, 2);
    y[2] = P[2] + P[4] * safe_exp(x[1] / P[5]);
    return math_error() ? missing_fill(at, 2) : success;
}

} // namespace

ANSATZ_MODEL(LineExp, ValueOrNothing<value>)

ANSATZ_PAGE(LineExp, .title = "A straight line and an exponential over the same x, in two columns",
            .formula = "y1 = a + b x;  y2 = y0 + A exp(x/t)",
            .parameters = {{"a", "offset of the line", Trait::offset},
                           {"y0", "offset of the exponential", Trait::offset},
                           {"b", "slope of the line", Trait::slope},
                           {"A", "amplitude of the exponential", Trait::amplitude},
                           {"t", "scale of x; negative: decay", Trait::time, not_zero}},
            .typical = {{1, 0.5, 0.3, 4, -2}, 0, 10},
            .notes = "The two columns share no parameter. Fails for x/t above 709; t = 0 gives no number.")

} // namespace ansatz::line_exp
