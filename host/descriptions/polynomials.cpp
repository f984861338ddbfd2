// Polynomials, rational functions and the inverse-polynomial peak.

#include "families.hpp"

namespace ansatz::host::descriptions {

Family polynomials() {
    return {.title = "Polynomials and rational functions",
            .models = {
                {.name = "PolyN",
                 .formula = "y = sum a x^i",
                 .block = {{"a", "coefficient of x^i"}},
                 .block_name = "term",
                 .first_block = 0,
                 .components = false,
                 .notes = "As many terms as there are parameters, from i = 0 on. With high orders and x far "
                          "from 0 the coefficients become hard to tell apart: shift x, or use fewer."},
                {.name = "Rational",
                 .formula = "y = (a + b x)/(c + d x)",
                 .parameters = {{"a", "constant of the numerator"},
                                {"b", "slope of the numerator"},
                                {"c", "constant of the denominator"},
                                {"d", "slope of the denominator"}},
                 .notes = "Only the ratios of the parameters matter: hold one of them fixed in a fit, c=1 for "
                          "instance. Fails only where the denominator is exactly 0."},
                {.name = "Constant", .formula = "y = a", .parameters = {{"a", "level"}}},
                {.name = "Line", .formula = "y = a + b x", .parameters = {{"a", "intercept"}, {"b", "slope"}}},
                {.name = "Parabola",
                 .formula = "y = a + b x + c x^2",
                 .parameters = {{"a", "y at x = 0"}, {"b", "slope at x = 0"}, {"c", "coefficient of x^2"}}},
                {.name = "Cubic",
                 .formula = "y = a + b x + c x^2 + d x^3",
                 .parameters = {{"a", "y at x = 0"},
                                {"b", "slope at x = 0"},
                                {"c", "coefficient of x^2"},
                                {"d", "coefficient of x^3"}}},
                {.name = "Poly4",
                 .formula = "y = a0 + a1 x + a2 x^2 + a3 x^3 + a4 x^4",
                 .parameters = {{"a0", "y at x = 0"},
                                {"a1", "slope at x = 0"},
                                {"a2", "coefficient of x^2"},
                                {"a3", "coefficient of x^3"},
                                {"a4", "coefficient of x^4"}}},
                {.name = "Poly5",
                 .formula = "y = a0 + a1 x + a2 x^2 + a3 x^3 + a4 x^4 + a5 x^5",
                 .parameters = {{"a0", "y at x = 0"},
                                {"a1", "slope at x = 0"},
                                {"a2", "coefficient of x^2"},
                                {"a3", "coefficient of x^3"},
                                {"a4", "coefficient of x^4"},
                                {"a5", "coefficient of x^5"}}},
                {.name = "PolyCtr5",
                 .formula = "y = a0 + a1 t + a2 t^2 + a3 t^3 + a4 t^4 + a5 t^5,  t = x - xc",
                 .parameters = {{"a0", "y at xc"},
                                {"xc", "centre, your choice: the middle of the data, for instance",
                                 Role::reference},
                                {"a1", "slope at xc"},
                                {"a2", "coefficient of t^2"},
                                {"a3", "coefficient of t^3"},
                                {"a4", "coefficient of t^4"},
                                {"a5", "coefficient of t^5"}},
                 .notes = "The data do not determine the centre: whatever it is, the curve is the same."},
                {.name = "InvsPoly",
                 .formula = "y = y0 + sum A/(1 + b z + c z^2 + d z^3),  z = (2 (x - xc)/w)^2",
                 .parameters = {{"y0", "offset"}},
                 .block = {{"xc", "centre"},
                           {"w", "width, above 0; for b=1, c=0, d=0 the full width at half maximum"},
                           {"A", "amplitude: height above the offset"},
                           {"b", "coefficient of z; 1, with c = d = 0, makes it a Lorentzian"},
                           {"c", "coefficient of z^2"},
                           {"d", "coefficient of z^3"}},
                 .notes = "Width and coefficients scale together: hold one of them fixed per peak in a fit, "
                          "b=1 for instance. Negative c or d make poles: bound them from below by 0. Fails for "
                          "w <= 0. A peak of amplitude 0 has no derivatives: do not start a fit there."},
            }};
}

} // namespace ansatz::host::descriptions
