// Transitions between two levels, dose-response and binding curves.

#include "families.hpp"

namespace ansatz::host::descriptions {

Family sigmoids() {
    return {
        .title = "Sigmoids and dose-response",
        .models = {
            {.name = "Hill",
             .formula = "y = Vmax/(1 + (k/x)^n)",
             .parameters = {{"Vmax", "ceiling"},
                            {"k", "x of half the ceiling"},
                            {"n", "steepness; negative: the curve falls from Vmax to 0"}},
             .notes = "Fails for x < 0 and for k < 0; k = 0 has no derivatives, so do not start a fit there. "
                      "For n < 0 the "
                      "derivatives at x = 0 are answered with 0, though the one by Vmax is 1: leave such a "
                      "point out."},
            {.name = "Hill1",
             .formula = "y = A1 + (A2 - A1)/(1 + (k/x)^n)",
             .parameters = {{"A1", "start level, at x = 0 for n > 0"},
                            {"A2", "end level"},
                            {"k", "x half-way between the levels"},
                            {"n", "steepness"}},
             .notes =
                 "Fails for x < 0 and for k < 0; k = 0 has no derivatives. At x = 0, where y is A1 for either "
                 "sign of "
                 "n, all derivatives are answered with 0, though the one by A1 is 1: a fit with such a point "
                 "stops short of the minimum, so leave it out or take numerical derivatives (--numerical). "
                 "Exchanging A1 with A2 and changing the sign of n gives the same curve elsewhere."},
            {.name = "Logistic",
             .formula = "y = A2 + (A1 - A2)/(1 + (x/x0)^p)",
             .parameters = {{"A1", "level at small x, for p > 0"},
                            {"A2", "level at large x"},
                            {"x0", "centre: x half-way between the levels"},
                            {"p", "power: steepness at the centre"}},
             .notes =
                 "Over the dose itself, not its logarithm. Fails where x and x0 differ in sign and for "
                 "x0 = 0; the derivatives, and so a fit, want x >= 0, x0 > 0 and p other than 0. Exchanging "
                 "A1 with A2 and changing the sign of p gives the same curve."},
            {.name = "Logistic5",
             .formula = "y = A1 + (A2 - A1) (1 + (x0/x)^h)^(-s)",
             .parameters = {{"A1", "level at small x, for h > 0"},
                            {"A2", "level at large x"},
                            {"x0", "centre; half-way between the levels for s = 1 only"},
                            {"h", "slope power"},
                            {"s", "asymmetry; 1 makes it Logistic"}},
             .notes = "A fit needs x > 0 and x0 > 0: for a ratio x0/x below 0 there are no derivatives, and at "
                      "x = 0 they are not finite. h and s are strongly correlated when the data miss an end."},
            {.name = "Boltzman",
             .formula = "y = A2 + (A1 - A2)/(1 + exp((x - x0)/dx))",
             .parameters = {{"A1", "level at small x, for dx > 0"},
                            {"A2", "level at large x"},
                            {"x0", "centre: x half-way between the levels"},
                            {"dx", "width: the tangent at the centre runs from level to level within 4 dx"}},
             .notes = "Fails for dx = 0; the derivatives also where |dx| < 1e-18. Exchanging A1 with A2 and "
                      "changing the sign of dx gives the same curve."},
            {.name = "BoltzIV",
             .formula = "y = (x - Vrev) gmax/(1 + exp((x - Vhalf)/dV))",
             .parameters = {{"Vhalf", "voltage at which half of the conductance is open"},
                            {"dV", "width of the transition; negative: opens with rising x"},
                            {"gmax", "greatest conductance: slope of the straight branch"},
                            {"Vrev", "reversal voltage, where the current is 0"}},
             .notes = "Current over voltage x. Fails for dV = 0; the derivatives also where |dV| < 1e-18."},
            {.name = "Slogistic4",
             .formula = "y = A2 + (A1 - A2)/(1 + exp(-(x - x0) k))",
             .parameters = {{"A1", "level at large x, for k > 0"},
                            {"A2", "level at small x"},
                            {"x0", "centre: x half-way between the levels"},
                            {"k", "rate, 1/(unit of x)"}},
             .notes =
                 "Mind the order of the levels: for k > 0 the curve starts at A2 and ends at A1. Exchanging "
                 "them and changing the sign of k gives the same curve."},
            {.name = "DoubleBoltzmann",
             .formula = "y = y0 + A (f/(1 + exp((x - x01)/dx1)) + (1 - f)/(1 + exp((x - x02)/dx2)))",
             .parameters = {{"y0", "base: the level at large x, for widths > 0"},
                            {"A", "span of both steps together"},
                            {"f", "fraction of the first step; 0..1 unless the steps go opposite ways"},
                            {"x01", "centre of the first step"},
                            {"x02", "centre of the second step"},
                            {"dx1", "width of the first step"},
                            {"dx2", "width of the second step"}},
             .notes = "Falls from y0 + A to y0 for widths > 0; negative widths make it rise. Fails where "
                      "(x - centre)/width exceeds 709, so keep the widths away from 0."},
            {.name = "Response1",
             .formula = "y = bottom + (top - bottom)/(1 + 10^((logEC50 - x) p))",
             .parameters = {{"bottom", "lower level"},
                            {"top", "upper level; must be above bottom"},
                            {"logEC50", "decadic logarithm of the half-way dose"},
                            {"p", "slope at the half-way dose; negative: the curve falls"}},
             .notes = "x is the decadic logarithm of the dose. Fails unless top > bottom; let p carry the "
                      "direction. Fails for p = 0."},
            {.name = "Competition1",
             .formula = "y = bottom + (top - bottom)/(1 + 10^(x - logIC50))",
             .parameters = {{"top", "level without competitor"},
                            {"bottom", "level at large doses"},
                            {"logIC50", "decadic logarithm of the half-way dose"}},
             .notes = "x is the decadic logarithm of the dose. The slope is fixed: one site."},
            {.name = "Competition2",
             .formula =
                 "y = bottom + (top - bottom) (f/(1 + 10^(x - logIC50_1)) + (1 - f)/(1 + 10^(x - logIC50_2)))",
             .parameters = {{"top", "level without competitor"},
                            {"bottom", "level at large doses"},
                            {"logIC50_1", "decadic logarithm of the half-way dose of the first site"},
                            {"logIC50_2", "the same of the second site"},
                            {"f", "fraction of the first site, 0..1"}},
             .notes =
                 "x is the decadic logarithm of the dose. The sites may trade places, with f becoming 1 - f; "
                 "with equal starts for both a fit cannot tell them apart."},
            {.name = "Response2",
             .formula = "y = y0 + (A1 - y0)/(1 + 10^((x - x1) p1)) + (A2 - y0)/(1 + 10^((x2 - x) p2))",
             .parameters = {{"y0", "base"},
                            {"A1", "plateau at small x; not below y0"},
                            {"A2", "plateau at large x; not below y0"},
                            {"x1", "logarithm of the dose half-way between A1 and y0"},
                            {"x2", "logarithm of the dose half-way between y0 and A2"},
                            {"p1", "slope at x1"},
                            {"p2", "slope at x2"}},
             .notes =
                 "x is the decadic logarithm of the dose. For positive slopes a dip to y0 where x1 < x2, and "
                 "a bell up to A1 + A2 - y0 where x2 < x1. Fails for A1 < y0 and for A2 < y0."},
            {.name = "BiDoseResp",
             .formula = "y = bottom + (top - bottom) (f/(1 + 10^((logEC50_1 - x) p1)) + (1 - f)/(1 + "
                        "10^((logEC50_2 - x) p2)))",
             .parameters = {{"bottom", "lower level"},
                            {"top", "upper level"},
                            {"logEC50_1", "decadic logarithm of the half-way dose of the first phase"},
                            {"logEC50_2", "the same of the second phase"},
                            {"p1", "slope of the first phase"},
                            {"p2", "slope of the second phase"},
                            {"f", "fraction of the first phase, 0..1"}},
             .notes = "x is the decadic logarithm of the dose. A slope of 0 has no derivatives: do not start a "
                      "fit there. Fails where an exponent (logEC50 - x) p exceeds 308: bound steep slopes."},
            {.name = "Binding1",
             .formula = "y = Bmax x/(Kd + x)",
             .parameters = {{"Bmax", "capacity: the level at large x"},
                            {"Kd", "dissociation constant: x at which half of the capacity is bound"}},
             .notes = "Not finite at x = -Kd."},
            {.name = "Binding2",
             .formula = "y = Bmax1 x/(Kd1 + x) + Bmax2 x/(Kd2 + x)",
             .parameters = {{"Bmax1", "capacity of the first kind of site"},
                            {"Bmax2", "capacity of the second kind"},
                            {"Kd1", "dissociation constant of the first kind, unit of x"},
                            {"Kd2", "dissociation constant of the second kind"}},
             .notes = "Not finite at x = -Kd1 and x = -Kd2. With equal starts for both kinds of site a fit "
                      "cannot tell them apart."},
        }};
}

} // namespace ansatz::host::descriptions
