// Laws of one parameter, and their forms by the value expected at a reference position.

#include "families.hpp"

namespace ansatz::host::descriptions {

Family handbook_one_parameter() {
    constexpr ParameterText reference = {"x1", "reference x, your choice", Role::reference};
    constexpr ParameterText response = {"y1", "y expected at x1"};
    constexpr ParameterText rate = {"k", "rate, 1/(unit of x)"};
    constexpr ParameterText base = {"r", "base: factor per unit of x, above 0"};
    return {
        .title = "Regression handbook, one parameter",
        .models = {
            {.name = "Logarithm",
             .formula = "y = ln(x - a)",
             .parameters = {{"a", "shift: x where the logarithm starts"}},
             .notes = "Fails for x <= a: bound a from above by the least x of the data."},
            {.name = "LogarithmEVP",
             .formula = "y = ln(x - x1 - exp(b))",
             .parameters = {reference, {"b", "logarithm of the distance from x1 to where the curve starts"}},
             .true_derivatives = false,
             .notes =
                 "Fails for x <= x1 + exp(b), also at x1 itself, so choose x1 left of the data. For b beyond "
                 "709 y is b. The model's own derivative by b has the wrong sign, so that a fit takes "
                 "derivatives by differences."},
            {.name = "Reciprocal0",
             .formula = "y = 1/(1 + a x)",
             .parameters = {{"a", "slope of 1/y"}},
             .true_derivatives = false,
             .notes = "Fails only where 1 + a x is exactly 0. The model's own derivative is not that of y, so "
                      "that a fit takes derivatives by differences."},
            {.name = "Reciprocal0EVP",
             .formula = "y = 1/(1 + (1/y1 - 1) x/x1)",
             .parameters = {reference, response},
             .notes = "Fails for x1 = 0, y1 = 0 and where the denominator is exactly 0."},
            {.name = "Exp1P1",
             .formula = "y = exp(x - a)",
             .parameters = {{"a", "shift: x where y is 1"}},
             .notes = "Fails when the exponential overflows."},
            {.name = "ExponentEVP",
             .formula = "y = y1 exp(x - x1)",
             .parameters = {reference, response},
             .notes = "Fails when the exponential overflows."},
            {.name = "Power",
             .formula = "y = x^a",
             .parameters = {{"a", "exponent"}},
             .notes = "For x <= 0 there is a value where the power exists, but no derivative, and so no fit."},
            {.name = "PowerEVP",
             .formula = "y = y1^(ln(x)/ln(x1))",
             .parameters = {reference, response},
             .notes = "Fails for x <= 0, x1 <= 0 and y1 <= 0. Choose x1 other than 1, where every curve is 1."},
            {.name = "Reciprocal1",
             .formula = "y = 1/(a + x)",
             .parameters = {{"a", "shift: 1/y at x = 0"}},
             .notes = "Fails only for x = -a."},
            {.name = "Reciprocal1EVP",
             .formula = "y = y1/(1 + (x - x1) y1)",
             .parameters = {reference, response},
             .notes = "Fails only where the denominator is exactly 0."},
            {.name = "Pareto",
             .formula = "y = 1 - x^(-a)",
             .parameters = {{"a", "exponent"}},
             .notes = "Fails for x <= 0. Every curve is 0 at x = 1."},
            {.name = "ParetoEVP",
             .formula = "y = 1 - (1 - y1)^(ln(x)/ln(x1))",
             .parameters = {reference, response},
             .notes = "Fails for x <= 0, x1 <= 0 and y1 >= 1. Choose x1 other than 1, where every curve is 0."},
            {.name = "Exp1P3",
             .formula = "y = k exp(-k x)",
             .parameters = {rate},
             .notes = "Fails when the exponential overflows."},
            {.name = "Exp1P3Md",
             .formula = "y = -ln(r) r^x",
             .parameters = {base},
             .notes = "Fails for r <= 0. Exp1P3 with k = -ln(r)."},
            {.name = "Exp1P2",
             .formula = "y = exp(-k x)",
             .parameters = {rate},
             .notes = "Fails when the exponential overflows."},
            {.name = "Exp1P2Md",
             .formula = "y = r^x",
             .parameters = {base},
             .notes = "Fails for r <= 0. Exp1P2 with k = -ln(r)."},
            {.name = "Exponent2EVP",
             .formula = "y = y1^(x/x1)",
             .parameters = {reference, response},
             .notes = "Fails for x1 = 0 and y1 <= 0."},
            {.name = "Exp1P4",
             .formula = "y = 1 - exp(-k x)",
             .parameters = {rate},
             .notes = "Fails when the exponential overflows."},
            {.name = "Exp1P4Md",
             .formula = "y = 1 - r^x",
             .parameters = {base},
             .notes = "Fails for r <= 0. Exp1P4 with k = -ln(r)."},
            {.name = "Exponent3EVP",
             .formula = "y = 1 - (1 - y1)^(x/x1)",
             .parameters = {reference, {"y1", "y expected at x1, below 1"}},
             .notes = "Fails for y1 >= 1. At x1 = 0 there is a value, 0, and no fit."},
        }};
}

} // namespace ansatz::host::descriptions
