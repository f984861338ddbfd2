// Handbook laws of two parameters, and their expected-value forms.

#include "families.hpp"

namespace ansatz::host::descriptions {

Family handbook_two_parameter() {
    return {
        .title = "Regression handbook, two parameters",
        .models = {
            {.name = "Log2P1",
             .formula = "y = b ln(x - a)",
             .parameters = {{"a", "shift, in the unit of x: the curve has its pole there"},
                            {"b", "scale, in the unit of y"}},
             .notes = "Fails for x <= a: start with a below the smallest x."},
            {.name = "Log2P1EVP",
             .formula = "y = b ln(x - x1 + exp(y1/b))",
             .parameters = {x1, y1, {"b", "scale, in the unit of y, not 0"}},
             .notes =
                 "Log2P1 through the point (x1, y1), with a = x1 - exp(y1/b). Fails for x <= a, and for a b "
                 "so close to 0 that the exponential overflows."},
            {.name = "Log2P2",
             .formula = "y = ln(a + b x)",
             .parameters = {{"a", "intercept of the line exp(y) against x"}, {"b", "its slope"}},
             .notes = "Fails where a + b x <= 0."},
            {.name = "Log2P2EVP",
             .formula = "y = ln(((x - x1) exp(y2) + (x2 - x) exp(y1))/(x2 - x1))",
             .parameters = {x1, y1, x2, y2},
             .true_derivatives = false,
             .notes =
                 "Log2P2 through the points (x1, y1) and (x2, y2). Fails for x1 = x2 and where the argument "
                 "of the logarithm is not positive. The derivatives that the routine itself offers are the "
                 "true ones only where x2 - x1 = 1."},
            {.name = "BoxLucas1Mod",
             .formula = "y = a (1 - b^x)",
             .parameters = {{"a", "plateau"},
                            {"b",
                             "base, between 0 and 1: what is left of the gap to the plateau per unit of x"}},
             .notes = "Fails for b <= 0. b > 1 is computed: a curve without a plateau. It is the curve "
                      "a (1 - exp(-k x)) with k = -ln b."},
            {.name = "BoxLucas1EVP",
             .formula = "y = y1 (1 - b^x)/(1 - b^x1)",
             .parameters = {x1, y1, {"b", "base: what is left of the gap to the plateau per unit of x"}},
             .notes =
                 "BoxLucas1Mod through the point (x1, y1), with a = y1/(1 - b^x1). Fails for b <= 0, b = 1 and "
                 "x1 = 0. Where b^x1 overflows, y is 0."},
            {.name = "Exp2P",
             .formula = "y = a b^x",
             .parameters = {{"a", "response at x = 0"}, {"b", "factor per unit of x, above 0"}},
             .notes = "Fails for b <= 0."},
            {.name = "Exp2PMod1",
             .formula = "y = a exp(b x)",
             .parameters = {{"a", "response at x = 0"}, {"b", "rate, 1/(unit of x); negative for decay"}}},
            {.name = "Exp2PMod2",
             .formula = "y = exp(a + b x)",
             .parameters = {{"a", "logarithm of the response at x = 0"},
                            {"b", "rate, 1/(unit of x); negative for decay"}},
             .notes = "Positive responses only: use Exp2PMod1 for others."},
            {.name = "Exp2PEVP",
             .formula = "y = y1^((x - x2)/(x1 - x2)) y2^((x1 - x)/(x1 - x2))",
             .parameters = {x1, y1, x2, y2},
             .notes =
                 "The exponential through the points (x1, y1) and (x2, y2). Fails for y1 <= 0, y2 <= 0 and "
                 "x1 = x2. The derivative by x2 is taken for 0 at a point with x exactly equal to x2: do not "
                 "estimate x2 (--free) from a start at an x of the data."},
            {.name = "Freundlich",
             .formula = "y = a x^b",
             .parameters = {{"a", "response at x = 1"}, {"b", "exponent"}},
             .notes = "Fails for x <= 0, also at x = 0 where a positive b would give 0."},
            {.name = "TimePow",
             .formula = "y = a x^b",
             .parameters = {{"a", "response at x = 1"}, {"b", "exponent"}},
             .notes = "The same routine as Freundlich. Fails for x <= 0."},
            {.name = "FreundlichMod1",
             .formula = "y = a x^(1/b)",
             .parameters = {{"a", "response at x = 1"}, {"b", "inverse of the exponent, not 0"}},
             .notes = "Fails for x <= 0 and for b = 0."},
            {.name = "FreundlichEVP",
             .formula = "y = y1 (y2/y1)^(ln(x/x1)/ln(x2/x1))",
             .parameters = {x1, y1, x2, y2},
             .notes = "The power law through the points (x1, y1) and (x2, y2). Fails unless x and all four are "
                      "above 0, and for x1 = x2."},
            {.name = "RectHyperbola",
             .formula = "y = a b x/(1 + b x)",
             .parameters = {{"a", "maximum, the limit for large x"},
                            {"b", "affinity, 1/(unit of x): y is a/2 at x = 1/b"}},
             .notes = "Fails where b x = -1. b = 0 has a value but no derivatives: do not start a fit there."},
            {.name = "HyperbolaMod",
             .formula = "y = x/(a x + b)",
             .parameters = {{"a", "inverse of the maximum: slope of the line x/y against x"},
                            {"b", "inverse of the slope at x = 0: intercept of that line"}},
             .notes = "Fails where a x + b = 0."},
            {.name = "HyperbolaEVP",
             .formula = "y = (x2 - x1) x y1 y2/((x - x1) x2 y1 + (x2 - x) x1 y2)",
             .parameters = {x1, y1, x2, y2},
             .notes =
                 "The saturation curve through the origin and the points (x1, y1) and (x2, y2). Fails where "
                 "the denominator is 0. x1 = x2 and a response of 0 have no derivatives: do not start a fit "
                 "there."},
            {.name = "Reciprocal",
             .formula = "y = 1/(a + b x)",
             .parameters = {{"a", "intercept of the line 1/y against x"}, {"b", "its slope"}},
             .notes = "Fails where a + b x = 0."},
            {.name = "ReciprocalMod",
             .formula = "y = a/(1 + b x)",
             .parameters = {{"a", "response at x = 0"}, {"b", "1/(unit of x): y is a/2 at x = 1/b"}},
             .notes = "Fails where b x = -1."},
            {.name = "ReciprocalEVP",
             .formula = "y = (x2 - x1) y1 y2/(y1 (x - x1) + y2 (x2 - x))",
             .parameters = {x1, y1, x2, y2},
             .notes = "Reciprocal through the points (x1, y1) and (x2, y2). Fails where the denominator is 0."},
            {.name = "LineMod",
             .formula = "y = a (x - b)",
             .parameters = {{"a", "slope"}, {"b", "x where the line crosses 0"}},
             .notes = "Never fails. Start with a slope other than 0, or b has no effect."},
            {.name = "Pow2P1",
             .formula = "y = a (1 - x^(-b))",
             .parameters = {{"a", "asymptote, for b > 0"}, {"b", "exponent"}},
             .notes = "Fails for x <= 0. The curve is 0 at x = 1."},
            {.name = "Pow2P2",
             .formula = "y = a (x + 1)^b",
             .parameters = {{"a", "response at x = 0"}, {"b", "exponent"}},
             .notes = "Fails for x <= -1."},
            {.name = "Pow2P3",
             .formula = "y = 1 - (1 + a x)^(-b)",
             .parameters = {{"a", "rate, 1/(unit of x)"}, {"b", "exponent"}},
             .notes = "Fails where 1 + a x <= 0. For small a x the curve depends on the product a b alone."},
            {.name = "Ratkowsky2P1EVP",
             .formula = "y = 1 - (1 - y1)^(ln(1 + a x)/ln(1 + a x1))",
             .parameters = {x1, {"y1", "response at x1, below 1"}, {"a", "rate, 1/(unit of x), not 0"}},
             .notes =
                 "Pow2P3 through the point (x1, y1). Fails for y1 >= 1, for x1 = 0 or a = 0, and where 1 + a x "
                 "or 1 + a x1 is not positive."},
            {.name = "Ratkowsky2P2EVP",
             .formula = "y = b (1 - x^(-c)) (1 - x1^(-c))",
             .parameters = {{"x1", "scales the level", Role::reference}, {"b", "level"}, {"c", "exponent"}},
             .notes = "Pow2P1 with the asymptote b (1 - x1^(-c)). Despite its name the response at x1 is not a "
                      "parameter: y is b (1 - x1^(-c))^2 there. Fails for x <= 0 and x1 <= 0."},
            {.name = "Ratkowsky2P3EVP",
             .formula = "y = y1 ((x + 1)/(x1 + 1))^b",
             .parameters = {x1, y1, {"b", "exponent"}},
             .notes = "Pow2P2 through the point (x1, y1). Fails for x1 = -1 and where (x + 1)/(x1 + 1) is not "
                      "positive."},
            {.name = "Bradley",
             .formula = "y = a ln(-b ln(x))",
             .parameters = {{"a", "scale, in the unit of y"}, {"b", "rate, not 0"}},
             .notes =
                 "x has no unit, such as a relative pressure. Fails for x <= 0, and at and above x = 1; with a "
                 "negative b at and below x = 1."},
            {.name = "BET",
             .formula = "y = a b x/((1 - x) (1 + (b - 1) x))",
             .parameters = {{"a", "amount of a full monolayer"}, {"b", "energy constant, without a unit"}},
             .notes = "x is the relative pressure, below 1. Fails at x = 1 and where 1 + (b - 1) x = 0; values "
                      "beyond x = 1 mean nothing."},
            {.name = "BETMod",
             .formula = "y = x/((1 - x) (a + (a + b) x))",
             .parameters = {{"a", "1/(m c) for the monolayer amount m and the energy constant c"},
                            {"b", "(c - 2)/(m c)"}},
             .notes = "BET by other constants: c = 2 + b/a and m = 1/(a c). Fails at x = 1 and where a + (a + "
                      "b) x = "
                      "0."},
            {.name = "ExpGrowth",
             .formula = "y = a exp(x/t)",
             .parameters = {{"a", "response at x = 0"},
                            {"t", "x over which y grows by the factor e; negative for decay"}},
             .notes = "Fails for t = 0. A fit cannot cross t = 0: start with the right sign."},
        }};
}

} // namespace ansatz::host::descriptions
