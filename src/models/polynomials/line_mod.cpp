// LineMod: the straight line by its slope and the x where it crosses zero.
//
//   y = P1 (x - P2)
//
//   P1 slope; P2 x-intercept (unit of x). Never fails and never looks at the error indicator.

#include "protocol/handbook_law.h"

namespace ansatz::line_mod {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    y[1] = P[1] * (x[1] - P[2]);
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const double d = x[1] - P[2];
    y[1] = P[1] * d;
    dyda[1] = d;
    dyda[2] = -P[1];
    return success;
}

} // namespace

ANSATZ_MODEL(LineMod, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(LineMod, .title = "", .formula = "y = a (x - b)",
            .parameters = {{"a", "slope", Trait::slope}, {"b", "x where the line crosses 0", Trait::constant}},
            .notes = "Never fails. Start with a slope other than 0, or b has no effect.")

} // namespace ansatz::line_mod
