// Distribution functions and densities, and two physical laws.

#include "families.hpp"

namespace ansatz::host::descriptions {

Family distributions() {
    return {
        .title = "Distributions",
        .models = {
            {.name = "SchulzFlory",
             .formula = "y = y0 + sum A (w/M)^(M/s) exp((M - w)/s),  w = 10^x,  M = 10^m,  s = 10^b",
             .parameters = {{"y0", "offset"}},
             .block = {{"m", "decimal logarithm of the mass at the top of the peak (as x)"},
                       {"b", "decimal logarithm of the scale s, in the unit of the mass"},
                       {"A", "height of the peak"}},
             .true_derivatives = false,
             .notes =
                 "A molar-mass distribution; x is the decimal logarithm of the mass. Very narrow peaks, M/s "
                 "above 10000, lose their lower flank. A peak of height 0 has no derivatives: do not start a "
                 "fit there."},
            {.name = "Laplace",
             .formula = "y = y0 + exp(-abs(x - xc)/b)/(2 b)",
             .parameters = {{"y0", "offset"}, {"xc", "centre"}, {"b", "scale (as x)"}},
             .notes = "A density of area 1. Fails for b = 0; a negative b gives no density, so bound it from "
                      "below."},
            {.name = "Poisson",
             .formula = "y = y0 + k^x exp(-k)/abs(gamma(x + 1))",
             .parameters = {{"y0", "offset"}, {"k", "mean number of events"}},
             .notes = "The probability of x events; x need not be whole. Fails for x above 170 and x = -1, "
                      "-2, ..., and for k < 0 unless x is whole."},
            {.name = "Rayleigh",
             .formula = "y = 1 - exp(-x^2/(2 s^2))",
             .parameters = {{"s", "scale (as x), the standard deviation of each component"}},
             .notes = "The distribution function, from 0 to 1. Fails for x < 0 and s <= 0."},
            {.name = "Gumbel",
             .formula = "y = 1 - exp(-exp((x - xc)/b))",
             .parameters = {{"xc", "location, where y = 1 - 1/e = 0.632"},
                            {"b", "scale (as x); negative: the curve falls"}},
             .notes = "The distribution function of smallest values, from 0 to 1. Fails for b = 0 and more "
                      "than 709 scales above the location."},
            {.name = "Pareto2",
             .formula = "y = 1 - (b/x)^a",
             .parameters = {{"a", "shape"}, {"b", "scale (as x), the smallest x of the distribution"}},
             .notes =
                 "The distribution function, from 0 to 1; negative below x = b. Fails for x <= 0; a fit fails "
                 "for b <= 0."},
            {.name = "Langevin",
             .formula = "y = y0 + sum A (coth(x - xc) - 1/(x - xc))",
             .parameters = {{"y0", "offset"}},
             .block = {{"xc", "centre"}, {"A", "amplitude, the saturation on either side"}},
             .block_name = "term",
             .true_derivatives = false,
             .notes = "The law has no width: scale x first, to the energy of the dipole in its field over kT."},
            {.name = "Weibull",
             .formula = "y = y0 + (k/b) u^(k - 1) exp(-u^k),  u = (x - x0)/b",
             .parameters = {{"y0", "offset"},
                            {"b", "scale (as x)"},
                            {"k", "shape"},
                            {"x0", "location, where the density begins"}},
             .notes = "A density of area 1. Fails for b <= 0 and x <= x0: keep x0 below the smallest x "
                      "(--upper x0)."},
            {.name = "Goldman",
             .formula = "y = (R T/F) ln((p co + x)/(p ci + k)),  R = 8.314,  F = 96485",
             .parameters = {{"p", "permeability of the other ion relative to the leading one"},
                            {"co", "concentration of the other ion outside"},
                            {"ci", "concentration of the other ion inside"},
                            {"k", "concentration of the leading ion inside"},
                            {"T", "temperature in kelvin"}},
             .notes = "The voltage across a membrane, in volts; x is the concentration of the leading ion "
                      "outside. Fails for p co + x <= 0 and p ci + k <= 0. One curve determines p co, p ci + k "
                      "and T only: fix two of p, co, ci, k."},
        }};
}

} // namespace ansatz::host::descriptions
