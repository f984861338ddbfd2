// Goldman: the voltage across a membrane that two kinds of ions pass.
//
//   y = (R P5 / F) ln((P2 P1 + x) / (P3 P1 + P4)),   R = 8.314 J/(K mol), F = 96485 C/mol
//
//   x concentration outside of the leading ion; P1 permeability of the other ion relative to the leading one,
//   P2 and P3 its concentrations outside and inside, P4 the leading ion's concentration inside (all
//   concentrations in one unit); P5 temperature in kelvin. y in volts; y[2] holds the same number.
//
//   Where the numerator or the denominator of the logarithm is <= 0 the marker goes into y[2] while y[1] is 0,
//   no derivative is written and the error indicator is left as it was; the status is 1 as for every failure.
//   Needs nParams >= 5: with fewer the call returns 1 and y = 0. More than five parameters still make one term.
//   The query says that there are no derivatives, but FF_DERIV alone computes them all the same; with FF_VALUE
//   no derivative is computed. The derivative by P1 is not a number at P1 == 0. A call that requests nothing
//   returns 1.

#include "models/distributions/answers.h"

namespace ansatz::goldman {
namespace {

constexpr double R = 8.314, F = 96485.0;

Status outside(const Point& at) {
    at.y[2] = MISSING_VALUE;
    return failure;
}

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    y[1] = 0;
    if (n / 5 < 1) return failure;
    const double num = P[2] * P[1] + x[1], den = P[3] * P[1] + P[4];
    if (num <= 0 || den <= 0) return outside(at);
    y[2] = log(num / den) * (P[5] * R) / F;
    y[1] += y[2];
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    y[1] = 0;
    if (n / 5 < 1) return failure;
    const double num = P[2] * P[1] + x[1], den = P[3] * P[1] + P[4];
    if (num <= 0 || den <= 0) return outside(at);
    const double by_P4 = P[5] * -R / (den * F), by_P2 = P[5] * R * P[1] / (F * num);
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

ANSATZ_PAGE(Goldman, .title = "", .formula = "y = (R T/F) ln((p co + x)/(p ci + k)),  R = 8.314,  F = 96485",
            .parameters = {{"p", "permeability of the other ion relative to the leading one", Trait::constant},
                           {"co", "concentration of the other ion outside", Trait::constant},
                           {"ci", "concentration of the other ion inside", Trait::constant},
                           {"k", "concentration of the leading ion inside", Trait::constant},
                           {"T", "temperature in kelvin", Trait::constant}},
            .notes = "The voltage across a membrane, in volts; x is the concentration of the leading ion "
                     "outside. Fails for p co + x <= 0 and p ci + k <= 0. One curve determines p co, p ci + k "
                     "and T only: fix two of p, co, ci, k.")

} // namespace ansatz::goldman
