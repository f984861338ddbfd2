// Bradley: the doubly logarithmic adsorption isotherm.
//
//   y = P1 ln(-P2 ln x)
//
//   P1 scale (unit of y); P2 rate. x has no unit, such as a relative pressure.
//
//   Fails for x <= 0, P2 == 0 and -P2 ln x <= 0: x lies below 1 for a positive P2, above 1 for a negative one,
//   and x = 1 fails always.

#include "protocol/handbook_law.h"

namespace ansatz::bradley {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (x[1] <= 0 || P[2] == 0) return fail(at);
    const double t = -P[2] * log(x[1]);
    if (t <= 0) return fail(at);
    y[1] = P[1] * log(t);
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (x[1] <= 0 || P[2] == 0) return fail(at, 1, 2);
    const double t = -P[2] * log(x[1]);
    if (t <= 0) return fail(at, 1, 2);
    const double L = log(t);
    if (math_error()) return fail(at, 1, 2);
    dyda[1] = L;
    y[1] = P[1] * L;
    dyda[2] = P[1] / P[2];
    return success;
}

} // namespace

ANSATZ_MODEL(Bradley, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(Bradley, .title = "", .formula = "y = a ln(-b ln(x))",
            .parameters = {{"a", "scale, in the unit of y", Trait::constant},
                           {"b", "rate, not 0", Trait::rate}},
            .notes = "x has no unit, such as a relative pressure. Fails for x <= 0, and at and above x = 1; "
                     "with a negative b at and below x = 1.")

} // namespace ansatz::bradley
