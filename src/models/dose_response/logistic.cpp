// Logistic and Logistic5. The value and the derivatives of Logistic test different things: a negative centre
// with negative x has a value only. The value also fails for nParams <= 0. Where its power overflows the curve
// is at its end level.
//
// Logistic5 tests no parameter; what the powers and logarithms report fails the point, and a failure of the
// derivatives marks y only.

#include "protocol/limits.h"

namespace ansatz::logistic {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (n <= 0) return fail(at);
    if (P[3] == 0) return fail(at);
    const Real u = x[1] / P[3];
    if (u < 0) return fail(at);
    const Real t = safe_pow(u, P[4]);
    if (range_error()) return reaches(at, P[2]);
    if (math_error()) return fail(at);
    y[1] = (P[1] - P[2]) / (t + 1) + P[2];
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (P[3] <= 0 || P[4] == 0 || x[1] < 0) return fail(at, 1, 2, 3, 4);
    const Real u = x[1] / P[3];
    const Real t = safe_pow(u, P[4]);
    Real share = 0;
    if (range_error())
        clear_error();
    else if (math_error())
        return fail(at, 1, 2, 3, 4);
    else
        share = 1 / (t + 1);
    const Real rest = 1 - share;
    const Real A = (P[1] - P[2]) * share;
    const Real by_centre = A * P[4] * rest / P[3];
    const Real B = -by_centre * P[3] / P[4];
    dyda[1] = share;
    dyda[2] = rest;
    dyda[3] = by_centre;
    dyda[4] = B == 0 ? 0 : B * log(u); // no logarithm of an x of 0
    if (math_error()) return fail(at, 4);
    y[1] = P[2] + A;
    return success;
}

} // namespace

ANSATZ_MODEL(Logistic, OnePath<value, derivatives>)

ANSATZ_PAGE(Logistic, .title = "Sigmoid over a dose, between two levels",
            .formula = "y = A2 + (A1 - A2)/(1 + (x/x0)^p)",
            .parameters = {{"A1", "level at small x, for p > 0", Trait::level},
                           {"A2", "level at large x", Trait::level},
                           {"x0", "centre: x half-way between the levels", Trait::half_point, positive},
                           {"p", "power: steepness at the centre", Trait::exponent, not_zero}},
            .x = {not_negative}, .typical = {{8, 1, 3, 3}, 0, 15}, .known_as = "4PL, four-parameter logistic",
            .notes = "Over the dose itself, not its logarithm. Fails where x and x0 differ in sign and for x0 "
                     "= 0; the derivatives, and so a fit, want x >= 0, x0 > 0 and p other than 0. Exchanging "
                     "A1 with A2 and changing the sign of p gives the same curve.")

} // namespace ansatz::logistic

namespace ansatz::logistic5 {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Real u = safe_pow(P[3] / x[1], P[4]);
    const Real g = safe_pow(1 + u, -P[5]);
    y[1] = P[1] + (P[2] - P[1]) * g;
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Real ratio = P[3] / x[1];
    const Real u = safe_pow(ratio, P[4]);
    const Real g = safe_pow(1 + u, -P[5]);
    const Real h = safe_pow(1 + u, -1 - P[5]);
    const Real v = safe_pow(ratio, P[4] - 1);
    const Scalar fall = P[1] - P[2];
    dyda[1] = 1 - g;
    dyda[2] = g;
    dyda[3] = fall * P[4] * P[5] * v * h / x[1];
    dyda[4] = log(ratio) * fall * P[5] * u * h;
    dyda[5] = log(1 + u) * fall * g;
    if (math_error()) return fail(at);
    y[1] = (P[2] - P[1]) * g + P[1];
    return success;
}

} // namespace

ANSATZ_MODEL(Logistic5, OnePath<value, derivatives>)

ANSATZ_PAGE(Logistic5, .title = "Asymmetric sigmoid over a dose, between two levels",
            .formula = "y = A1 + (A2 - A1) (1 + (x0/x)^h)^(-s)",
            .parameters = {{"A1", "level at small x, for h > 0", Trait::level},
                           {"A2", "level at large x", Trait::level},
                           {"x0", "centre; half-way between the levels for s = 1 only", Trait::position,
                            positive},
                           {"h", "power: steepness at the centre", Trait::exponent},
                           {"s", "asymmetry; 1 makes it Logistic", Trait::shape, positive}},
            .x = {positive}, .typical = {{1, 8, 3, 3, 0.5}, 0.05, 12},
            .known_as = "5PL, five-parameter logistic",
            .notes = "A fit needs x > 0 and x0 > 0: for a ratio x0/x below 0 there are no derivatives, and at "
                     "x = 0 they are not finite. h and s are strongly correlated when the data miss an end.")

} // namespace ansatz::logistic5
