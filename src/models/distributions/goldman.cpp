// Goldman. Hosts rely on the gas constant's four digits; y[2] holds the same number as y[1].
//
// Where the numerator or the denominator of the logarithm is <= 0 the marker goes into y[2] while y[1] is 0, no
// derivative is written and the error indicator is left as it was; the status is 1 as for every failure. Needs
// nParams >= 5: with fewer the call returns 1 and y = 0. More than five parameters still make one term. The
// query says that there are no derivatives, but FF_DERIV alone computes them all the same.

#include "models/distributions/answers.h"

namespace ansatz::goldman {
namespace {

constexpr Scalar R = 8.314, F = 96485.0;

Status outside(const Point& at) {
    at.y[2] = MISSING_VALUE;
    return failure;
}

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    y[1] = 0;
    if (n / 5 < 1) return failure;
    const Real num = P[2] * P[1] + x[1];
    const Scalar den = P[3] * P[1] + P[4];
    if (num <= 0 || den <= 0) return outside(at);
    y[2] = log(num / den) * (P[5] * R) / F;
    y[1] += y[2];
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    y[1] = 0;
    if (n / 5 < 1) return failure;
    const Real num = P[2] * P[1] + x[1];
    const Scalar den = P[3] * P[1] + P[4];
    if (num <= 0 || den <= 0) return outside(at);
    const Scalar by_P4 = P[5] * -R / (den * F);
    const Real by_P2 = P[5] * R * P[1] / (F * num);
    dyda[4] = by_P4;
    dyda[3] = by_P4 * P[1];
    dyda[2] = by_P2;
    dyda[1] = by_P2 * P[2] / P[1] + by_P4 * P[3];
    dyda[5] = log(num / den) * R / F;
    y[2] = dyda[5] * P[5];
    y[1] += y[2];
    return success;
}

} // namespace

ANSATZ_MODEL(Goldman, OnePath<value, derivatives, distribution::values>)

ANSATZ_PAGE(
    Goldman, .title = "The voltage across a membrane that two kinds of ions pass",
    .formula = "y = (R T/F) ln((p co + x)/(p ci + k)),  R = 8.314,  F = 96485",
    .parameters =
        {{"p", "permeability of the other ion relative to the leading one", Trait::coefficient, not_negative},
         {"co", "concentration of the other ion outside", Trait::constant, Dimension{.x = 1}, not_negative},
         {"ci", "concentration of the other ion inside", Trait::constant, Dimension{.x = 1}, not_negative},
         {"k", "concentration of the leading ion inside", Trait::constant, Dimension{.x = 1}, not_negative},
         {"T", "temperature in kelvin", Trait::constant, Dimension{.y = 1}, positive}},
    .typical = {{0.03, 145, 12, 140, 310}, 1, 150}, .departures = {{1, "p = 0"}},
    .same_as = "Log3P1(a = -(8.314 T/96485) ln(p ci + k), b = -8.314 T/96485, c = p co)",
    .known_as = "Goldman equation, Goldman-Hodgkin-Katz voltage equation, GHK equation",
    .source = "Goldman, 1943; Hodgkin and Katz, 1949",
    .notes = "y is in volts; x is the concentration of the leading ion outside, and all concentrations "
             "have one unit. Fails for p co + x <= 0 and p ci + k <= 0. One curve determines p co, p ci "
             "+ k and T only: fix two of p, co, ci, k.")

} // namespace ansatz::goldman
