// Gunary. At x = 0 the value and all derivatives are 0, as the law has it.

#include "protocol/handbook_law.h"

namespace ansatz::gunary {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (x[1] < 0) return fail(at);
    const Real D = P[1] + P[2] * x[1] + P[3] * sqrt(x[1]);
    if (math_error() || D == 0) return fail(at);
    y[1] = x[1] / D;
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (x[1] < 0) return fail(at, 1, 2, 3);
    const Real root = sqrt(x[1]);
    const Real D = P[1] + P[2] * x[1] + P[3] * root;
    if (math_error() || D == 0) return fail(at, 1, 2, 3);
    y[1] = x[1] / D;
    dyda[1] = -y[1] / D;
    dyda[2] = dyda[1] * x[1];
    dyda[3] = dyda[1] * root;
    return success;
}

} // namespace

ANSATZ_MODEL(Gunary, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(Gunary, .title = "Adsorption with a square-root term between slope and plateau",
            .formula = "y = x/(a + b x + c sqrt(x))",
            .parameters = {{"a", "inverse of the slope at x = 0", Trait::coefficient,
                            Dimension{.x = 1, .y = -1}, not_zero},
                           {"b", "inverse of the plateau", Trait::inverse_level},
                           {"c", "bend between the two: 0 for the plain hyperbola", Trait::coefficient,
                            Dimension{.x = 0.5, .y = -1}}},
            .x = {not_negative}, .typical = {{0.2, 0.125, 0.15}, 0, 30}, .known_as = "Gunary isotherm",
            .source = "Gunary, 1970", .notes = "Fails for x < 0 and where the denominator is 0.")

} // namespace ansatz::gunary
