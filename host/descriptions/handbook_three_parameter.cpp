// Handbook laws of three parameters (two have a fourth), and their expected-value forms.

#include "families.hpp"

namespace ansatz::host::descriptions {

Family handbook_three_parameter() {
    constexpr Role reference = Role::reference;
    const ParameterText x1 = {"x1", "x of the response y1", reference};
    const ParameterText x2 = {"x2", "x of the response y2", reference};
    const ParameterText y1 = {"y1", "response at x1"};
    const ParameterText y2 = {"y2", "response at x2"};

    return {
        .title = "Regression handbook, three parameters",
        .models = {
            {.name = "LangmuirEXT1",
             .formula = "y = a b x^(1 - c)/(1 + b x^(1 - c))",
             .parameters = {{"a", "amount at saturation"},
                            {"b", "affinity, (unit of x)^(c - 1)"},
                            {"c", "heterogeneity: 0 for the plain Langmuir law, below 1 for a rising curve"}},
             .notes = "Fails for x <= 0 and where the denominator is 0."},
            {.name = "LangmuirEXT2",
             .formula = "y = 1/(a + b x^(c - 1))",
             .parameters = {{"a", "inverse of the amount at saturation"},
                            {"b", "a divided by the affinity"},
                            {"c", "heterogeneity: 0 for the plain Langmuir law, below 1 for a rising curve"}},
             .notes = "LangmuirEXT1 by other constants. Fails for x <= 0 and where the denominator is 0."},
            {.name = "Freundlich3P",
             .formula = "y = a + b x^c",
             .parameters = {{"a", "offset"}, {"b", "scale: y is a + b at x = 1"}, {"c", "exponent"}},
             .notes = "Fails for x <= 0."},
            {.name = "Freundlich3PEVP1",
             .formula = "y = a + (y1 - a) (x/x1)^c",
             .parameters = {x1, y1, {"a", "offset"}, {"c", "exponent"}},
             .notes = "Freundlich3P through the point (x1, y1). Fails for x <= 0 and x1 <= 0."},
            {.name = "Freundlich3PEVP2",
             .formula = "y = y1 + (y2 - y1) (x^c - x1^c)/(x2^c - x1^c)",
             .parameters = {x1, y1, x2, y2, {"c", "exponent, not 0"}},
             .notes =
                 "Freundlich3P through the points (x1, y1) and (x2, y2). Fails for x, x1 or x2 <= 0, for "
                 "x1 = x2 and for c = 0, close to which it loses digits. A fit cannot cross c = 0: start with "
                 "the right sign."},
            {.name = "FreundlichEXT",
             .formula = "y = a x^(b x^(-c))",
             .parameters = {{"a", "response at x = 1"},
                            {"b", "exponent at x = 1"},
                            {"c", "how fast the exponent falls with x: 0 for the plain power law"}},
             .notes = "Fails for x <= 0."},
            {.name = "FreundlichEXTEVP",
             .formula = "y = y1 x^(b x^(-c))/x1^(b x1^(-c))",
             .parameters = {x1,
                            y1,
                            {"b", "exponent at x = 1"},
                            {"c", "how fast the exponent falls with x: 0 for the plain power law"}},
             .notes = "FreundlichEXT through the point (x1, y1). Fails for x <= 0 and x1 <= 0."},
            {.name = "Gunary",
             .formula = "y = x/(a + b x + c sqrt(x))",
             .parameters = {{"a", "inverse of the slope at x = 0"},
                            {"b", "inverse of the plateau"},
                            {"c", "bend between the two: 0 for the plain hyperbola"}},
             .notes = "Fails for x < 0 and where the denominator is 0."},
            {.name = "Holliday1",
             .formula = "y = a/(1 + b x + c x^2)",
             .parameters = {{"a", "yield of a plant that stands alone, the response at x = 0"},
                            {"b", "loss to crowding, 1/(unit of x)"},
                            {"c", "further loss, 1/(unit of x)^2"}},
             .notes = "x is the density of planting, y the yield per plant. Fails where the denominator is 0."},
            {.name = "BlNeldSmp",
             .formula = "y = (a + b x)^(-1/c)",
             .parameters = {{"a", "a^(-1/c) is the yield of a plant that stands alone"},
                            {"b", "loss to crowding"},
                            {"c", "shape, not 0"}},
             .notes = "x is the density of planting, y the yield per plant. Fails where a + b x <= 0 and for c "
                      "= 0."},
            {.name = "BlNeld",
             .formula = "y = (a + b x^d)^(-1/c)",
             .parameters = {{"a", "a^(-1/c) is the yield of a plant that stands alone, for d > 0"},
                            {"b", "loss to crowding"},
                            {"c", "shape, not 0"},
                            {"d", "exponent of the density: 1 for the simple law, BlNeldSmp"}},
             .notes = "Fails for x <= 0, where the base a + b x^d <= 0 and for c = 0. c and d are hard to tell "
                      "apart: "
                      "hold one (--fix) when the fit does not determine both."},
            {.name = "BlNeldEVP",
             .formula = "y = ((y1^(-c) (x2 - x) + y2^(-c) (x - x1))/(x2 - x1))^(-1/c)",
             .parameters = {x1, y1, x2, y2, {"c", "shape, not 0"}},
             .notes =
                 "BlNeldSmp through the points (x1, y1) and (x2, y2). Fails for y1 <= 0, y2 <= 0, c = 0 and "
                 "x1 = x2, and where the base of the outer power is not positive."},
            {.name = "Harris",
             .formula = "y = 1/(a + b x^c)",
             .parameters = {{"a", "inverse of the response at x = 0, for c > 0"},
                            {"b", "loss to crowding"},
                            {"c", "shape: 1 for a straight line of 1/y against x"}},
             .notes = "Fails for x <= 0 and where the denominator is 0."},
            {.name = "HarrisEVP",
             .formula = "y = 1/(1/y1 + (1/y2 - 1/y1) (x^c - x1^c)/(x2^c - x1^c))",
             .parameters = {x1, y1, x2, y2, {"c", "shape, not 0"}},
             .notes =
                 "Harris through the points (x1, y1) and (x2, y2). Fails for x, x1 or x2 <= 0, a response of "
                 "0, "
                 "x1 = x2 and c = 0, and where the denominator is 0. A fit cannot cross c = 0: start with the "
                 "right sign."},
            {.name = "Rational0",
             .formula = "y = (b + c x)/(1 + a x)",
             .parameters = {{"a", "1/(unit of x): pole at x = -1/a"},
                            {"b", "response at x = 0"},
                            {"c", "the limit for large x is c/a"}},
             .notes = "Fails where the denominator is 0."},
            {.name = "Rational1",
             .formula = "y = (1 + c x)/(a + b x)",
             .parameters = {{"a", "inverse of the response at x = 0"},
                            {"b", "pole at x = -a/b"},
                            {"c", "1/(unit of x): the limit for large x is c/b"}},
             .notes = "Fails where the denominator is 0."},
            {.name = "Rational2",
             .formula = "y = (b + c x)/(a + x)",
             .parameters = {{"a", "pole at x = -a"}, {"b", "y is b/a at x = 0"}, {"c", "limit for large x"}},
             .notes = "Fails at x = -a."},
            {.name = "Rational3",
             .formula = "y = (b + x)/(a + c x)",
             .parameters = {{"a", "y is b/a at x = 0"},
                            {"b", "the curve crosses 0 at x = -b"},
                            {"c", "inverse of the limit for large x"}},
             .notes = "Fails where the denominator is 0."},
            {.name = "Rational4",
             .formula = "y = c + b/(x + a)",
             .parameters = {{"a", "pole at x = -a"},
                            {"b", "strength of the pole, unit of y times unit of x"},
                            {"c", "limit for large x"}},
             .notes = "Fails at x = -a."},
            {.name = "Belehradek",
             .formula = "y = a (x - b)^c",
             .parameters = {{"a", "response one unit of x above the threshold"},
                            {"b", "threshold, below every x"},
                            {"c", "exponent"}},
             .notes = "Fails for x <= b. A fit may run b into the smallest x and stop there: then start with a "
                      "larger "
                      "c, or bound b below that x (--upper)."},
            {.name = "Log3P1",
             .formula = "y = a - b ln(x + c)",
             .parameters = {{"a", "offset"},
                            {"b", "scale; positive for a falling curve"},
                            {"c", "shift, in the unit of x"}},
             .notes = "Fails for x <= -c."},
            {.name = "Exp3P1",
             .formula = "y = a exp(b/(x + c))",
             .parameters = {{"a", "limit for large x"},
                            {"b", "strength of the exponent, in the unit of x"},
                            {"c", "shift, in the unit of x"}},
             .notes = "Fails at x = -c and where the exponential overflows. The three parameters are strongly "
                      "correlated: a fit from afar may need hundreds of iterations."},
            {.name = "Exp3P1Md",
             .formula = "y = exp(a + b/(x + c))",
             .parameters = {{"a", "logarithm of the limit for large x"},
                            {"b", "strength of the exponent, in the unit of x"},
                            {"c", "shift, in the unit of x"}},
             .notes = "Positive responses only. Fails at x = -c and where the exponential overflows."},
            {.name = "Chapman",
             .formula = "y = a (1 - exp(-b x))^c",
             .parameters = {{"a", "limit"},
                            {"b", "rate, 1/(unit of x)"},
                            {"c", "shape: above 1 for a sigmoid start"}},
             .notes =
                 "Fails where b and x have different signs, and at x = 0 for c <= 0. b = 0 has no derivatives: "
                 "a fit that starts there does not move."},
            {.name = "Exp3P2",
             .formula = "y = exp(a + b x + c x^2)",
             .parameters = {{"a", "logarithm of the response at x = 0"},
                            {"b", "1/(unit of x)"},
                            {"c", "1/(unit of x)^2; negative for a bell with its maximum at x = -b/(2 c)"}},
             .notes = "Positive responses only. Fails where the exponential overflows."},
            {.name = "HyperbolaGen",
             .formula = "y = a - b/(1 + c x)^(1/d)",
             .parameters = {{"a", "limit for large x, for d > 0"},
                            {"b", "rise from x = 0 to the limit"},
                            {"c", "rate, 1/(unit of x)"},
                            {"d", "shape, not 0: 1 for the plain hyperbola"}},
             .notes =
                 "Fails where 1 + c x <= 0 and for d = 0. For d towards 0 only c/d, the rate of an exponential "
                 "approach, is determined."},
        }};
}

} // namespace ansatz::host::descriptions
