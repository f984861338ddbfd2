// BatesWatts. Reads x[2], although its catalogue row names one independent variable: a host must supply both.
// Values only: a derivative request is ignored. P1, P3 or x1 of 0 give exactly 0.

#include "protocol/forms.h"

namespace ansatz::bates_watts {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Real D = 1 + P[1] * x[1] + P[2] * x[2];
    if (D == 0) return fail(at);
    if (P[1] == 0 || P[3] == 0 || x[1] == 0) {
        y[1] = 0;
        return success;
    }
    y[1] = P[3] * P[1] * x[1] / D;
    return success;
}

} // namespace

ANSATZ_MODEL(BatesWatts, ValueOrNothing<value>)

ANSATZ_PAGE(BatesWatts, .title = "Rate of a reaction whose two reactants compete for one catalyst",
            .formula = "y = c a x1/(1 + a x1 + b x2)", .inputs = 2,
            .parameters = {{"a", "coefficient of x1", Trait::coefficient, Dimension{.x = -1}, positive},
                           {"b", "coefficient of x2", Trait::coefficient, Dimension{.x2 = -1}, not_negative},
                           {"c", "scale: y approached at large x1", Trait::ceiling}},
            .typical = {{0.5, 0.8, 8}, 0, 12, 0, 6}, .known_as = "competitive Langmuir isotherm",
            .notes = "Fails only where the denominator is exactly 0. There are two columns of x.")

} // namespace ansatz::bates_watts
