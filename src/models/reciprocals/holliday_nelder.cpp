// Holliday, Nelder: yield over planting density, the reciprocal of a second-degree polynomial.
//
//   Holliday   y = 1 / (P1 + P2 x + P3 x^2)                     P1..P3 constant, linear, quadratic coefficient
//   Nelder     y = u / (P2 + P3 u + P4 u^2),  u = x + P1        P1 shift, P2..P4 the coefficients
//
//   Holliday is the yield of one plant; Nelder's numerator makes of it the yield of an area. Both fail only
//   where the denominator is exactly 0. Nelder at u == 0 has the value 0 and the call ends there: no
//   derivatives, even when both were requested; ask for the derivatives alone. No library function is called,
//   so a pending error passes through unseen.

#include "protocol/forms.h"

namespace ansatz {
namespace {
namespace holliday {

double denominator(const double* P, double x) {
    return P[1] + P[2] * x + P[3] * (x * x);
}

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const double D = denominator(P, x[1]);
    if (D == 0) return fail(at);
    y[1] = 1 / D;
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const double D = denominator(P, x[1]);
    if (D == 0) return fail(at, 1, 2, 3);
    const double r = 1 / D;
    const double slope = -r / D;
    dyda[1] = slope;
    dyda[2] = slope * x[1];
    dyda[3] = slope * x[1] * x[1];
    y[1] = r;
    return success;
}

} // namespace holliday

namespace nelder {

double denominator(const double* P, double u) {
    return P[2] + P[3] * u + P[4] * (u * u);
}

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const double u = x[1] + P[1];
    const double D = denominator(P, u);
    if (D == 0) return fail(at);
    if (u == 0) {
        y[1] = 0;
        return ends_call;
    }
    y[1] = u / D;
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const double u = x[1] + P[1];
    const double D = denominator(P, u);
    if (D == 0) return fail(at, 1, 2, 3, 4);
    const double r = u / D;
    const double slope = -r / D;
    dyda[1] = -(P[4] * (u * u) - P[2]) / (D * D);
    dyda[2] = slope;
    dyda[3] = slope * u;
    dyda[4] = slope * u * u;
    y[1] = r;
    return success;
}

} // namespace nelder
} // namespace

ANSATZ_MODEL(Holliday, BothPaths<holliday::value, holliday::derivatives>)

ANSATZ_PAGE(Holliday, .title = "", .formula = "y = 1/(a + b x + c x^2)",
            .parameters = {{"a", "1/y at x = 0", Trait::constant},
                           {"b", "linear coefficient", Trait::constant},
                           {"c", "quadratic coefficient", Trait::constant}},
            .notes = "Fails only where the denominator is exactly 0: a sign change of it between two points of "
                     "the data is a pole that a fit does not see.")

ANSATZ_MODEL(Nelder, BothPaths<nelder::value, nelder::derivatives>)

ANSATZ_PAGE(Nelder, .title = "", .formula = "y = (x + s)/(a + b (x + s) + c (x + s)^2)",
            .parameters = {{"s", "shift of x", Trait::constant},
                           {"a", "(x + s)/y at x = -s", Trait::constant},
                           {"b", "linear coefficient", Trait::constant},
                           {"c", "quadratic coefficient", Trait::constant}},
            .notes = "Fails only where the denominator is exactly 0.")

} // namespace ansatz
