// Where the line is exactly 0 the value is 0 and no power is taken.

#include "protocol/forms.h"

namespace ansatz::cole {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Real line = P[2] + P[3] * x[2];
    if (line == 0) {
        y[1] = 0;
        return success;
    }
    y[1] = safe_pow(x[1], P[1]) * line;
    return math_error() ? fail(at) : success;
}

} // namespace

ANSATZ_MODEL(Cole, ValueOrNothing<value>)

ANSATZ_PAGE(Cole, .title = "Power of one variable, scaled by a straight line in the other",
            .formula = "y = x1^a (b + c x2)",
            .parameters = {{"a", "exponent of x1", Trait::exponent},
                           {"b", "y at x1 = 1 and x2 = 0", Trait::level},
                           {"c", "slope along x2 at x1 = 1", Trait::slope, Dimension{.y = 1, .x2 = -1}}},
            .x = {not_negative, any_number}, .typical = {{0.6, 1, 0.5}, 0.05, 5, 0, 4},
            .scales = Scales::y_only,
            .notes = "Fails where the power does not exist: for x1 = 0 with a < 0, and for x1 < 0 unless a is "
                     "a whole number.")

} // namespace ansatz::cole
