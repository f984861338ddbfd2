// Gunary: an adsorption isotherm with a square-root term.
//
//   y = x / (P1 + P2 x + P3 sqrt(x))
//
//   1/P1 is the slope at x = 0 and 1/P2 the plateau; P3 bends the curve between the two. With P3 = 0 it is the
//   plain hyperbola.
//
//   Fails for x < 0 and where the denominator is 0. At x = 0 the value and all derivatives are 0.

#include "protocol/handbook_law.h"

namespace ansatz::gunary {
namespace {

Status value(const Point& at) {
    const auto [n, P, xs, y, dyda] = at;
    const double x = xs[1];
    if (x < 0) return fail(at);
    const double D = P[1] + P[2] * x + P[3] * sqrt(x);
    if (math_error() || D == 0) return fail(at);
    y[1] = x / D;
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, xs, y, dyda] = at;
    const double x = xs[1];
    if (x < 0) return fail(at, 1, 2, 3);
    const double root = sqrt(x);
    const double D = P[1] + P[2] * x + P[3] * root;
    if (math_error() || D == 0) return fail(at, 1, 2, 3);
    y[1] = x / D;
    dyda[1] = -y[1] / D;
    dyda[2] = dyda[1] * x;
    dyda[3] = dyda[1] * root;
    return success;
}

} // namespace

ANSATZ_MODEL(Gunary, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(Gunary, .title = "", .formula = "y = x/(a + b x + c sqrt(x))",
            .parameters = {{"a", "inverse of the slope at x = 0", Trait::constant},
                           {"b", "inverse of the plateau", Trait::constant},
                           {"c", "bend between the two: 0 for the plain hyperbola", Trait::constant}},
            .notes = "Fails for x < 0 and where the denominator is 0.")

} // namespace ansatz::gunary
