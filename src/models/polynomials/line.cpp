#include "polynomial.h"
#include "protocol/handbook_law.h"

namespace ansatz::line {

ANSATZ_MODEL(Line, Polynomial<1>)

ANSATZ_PAGE(Line, .title = "Straight line by its intercept and slope", .formula = "y = a + b x",
            .parameters = {{"a", "intercept: y at x = 0", Trait::level}, {"b", "slope", Trait::slope}},
            .typical = {{1, 0.5}, 0, 10}, .known_as = "linear regression")

} // namespace ansatz::line

// Never fails and never looks at the error indicator.
namespace ansatz::line_mod {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    y[1] = P[1] * (x[1] - P[2]);
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Real d = x[1] - P[2];
    y[1] = P[1] * d;
    dyda[1] = d;
    dyda[2] = -P[1];
    return success;
}

} // namespace

ANSATZ_MODEL(LineMod, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(LineMod, .title = "Straight line by its slope and the x where it crosses 0",
            .formula = "y = a (x - b)",
            .parameters = {{"a", "slope", Trait::slope}, {"b", "x where the line crosses 0", Trait::position}},
            .typical = {{0.5, 3}, 0, 10}, .same_as = "Line(a = -a b, b = a)",
            .notes = "Never fails. Start with a slope other than 0, or b has no effect.")

} // namespace ansatz::line_mod
