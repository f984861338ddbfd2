// BatesWatts: the rate of a reaction whose two reactants compete for one catalyst.
//
//   y = P3 P1 x1 / (1 + P1 x1 + P2 x2)
//
//   P1, P2 coefficients of the first and the second variable, P3 scale: the rate approached for large x1.
//
//   Reads x[2], although its catalogue row names one independent variable: a host must supply both. Fails only
//   where the denominator is exactly 0; P1, P3 or x1 of 0 give exactly 0. Values only: a derivative request is
//   ignored. No library function is called, so a pending error passes through unseen.

#include "protocol/forms.h"

namespace ansatz::bates_watts {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const double D = 1 + P[1] * x[1] + P[2] * x[2];
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

ANSATZ_PAGE(BatesWatts, .title = "", .formula = "y = c a x1/(1 + a x1 + b x2)", .inputs = 2,
            .parameters = {{"a", "coefficient of x1", Trait::constant},
                           {"b", "coefficient of x2", Trait::constant},
                           {"c", "scale: y approached at large x1", Trait::constant}},
            .notes = "Fails only where the denominator is exactly 0.")

} // namespace ansatz::bates_watts
