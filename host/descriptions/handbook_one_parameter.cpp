// Laws of one parameter, and their forms by the value expected at a reference position.

#include "families.hpp"

namespace ansatz::host::descriptions {

Family handbook_one_parameter() {
    constexpr ParameterText reference = {"X", "reference x, your choice", Role::reference};
    constexpr ParameterText response = {"Y", "y expected at X"};
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
             .formula = "y = ln(x - X - exp(b))",
             .parameters = {reference, {"b", "logarithm of the distance from X to where the curve starts"}},
             .true_derivatives = false,
             .notes = "Fails for x <= X + exp(b), also at X itself, so choose X left of the data. For b beyond "
                      "709 y is b. The model's own derivative by b has the wrong sign, so that a fit takes "
                      "derivatives by differences."},
            {.name = "Reciprocal0",
             .formula = "y = 1/(1 + a x)",
             .parameters = {{"a", "slope of 1/y"}},
             .true_derivatives = false,
             .notes = "Fails only where 1 + a x is exactly 0. The model's own derivative is not that of y, so "
                      "that a fit takes derivatives by differences."},
            {.name = "Reciprocal0EVP",
             .formula = "y = 1/(1 + (1/Y - 1) x/X)",
             .parameters = {reference, response},
             .notes = "Fails for X = 0, Y = 0 and where the denominator is exactly 0."},
            {.name = "Exp1P1",
             .formula = "y = exp(x - a)",
             .parameters = {{"a", "shift: x where y is 1"}},
             .notes = "Fails when the exponential overflows."},
            {.name = "ExponentEVP",
             .formula = "y = Y exp(x - X)",
             .parameters = {reference, response},
             .notes = "Fails when the exponential overflows."},
            {.name = "Power",
             .formula = "y = x^a",
             .parameters = {{"a", "exponent"}},
             .notes = "For x <= 0 there is a value where the power exists, but no derivative, and so no fit."},
            {.name = "PowerEVP",
             .formula = "y = Y^(ln(x)/ln(X))",
             .parameters = {reference, response},
             .notes = "Fails for x <= 0, X <= 0 and Y <= 0. Choose X other than 1, where every curve is 1."},
            {.name = "Reciprocal1",
             .formula = "y = 1/(a + x)",
             .parameters = {{"a", "shift: 1/y at x = 0"}},
             .notes = "Fails only for x = -a."},
            {.name = "Reciprocal1EVP",
             .formula = "y = Y/(1 + (x - X) Y)",
             .parameters = {reference, response},
             .notes = "Fails only where the denominator is exactly 0."},
            {.name = "Pareto",
             .formula = "y = 1 - x^(-a)",
             .parameters = {{"a", "exponent"}},
             .notes = "Fails for x <= 0. Every curve is 0 at x = 1."},
            {.name = "ParetoEVP",
             .formula = "y = 1 - (1 - Y)^(ln(x)/ln(X))",
             .parameters = {reference, response},
             .notes = "Fails for x <= 0, X <= 0 and Y >= 1. Choose X other than 1, where every curve is 0."},
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
             .formula = "y = Y^(x/X)",
             .parameters = {reference, response},
             .notes = "Fails for X = 0 and Y <= 0."},
            {.name = "Exp1P4",
             .formula = "y = 1 - exp(-k x)",
             .parameters = {rate},
             .notes = "Fails when the exponential overflows."},
            {.name = "Exp1P4Md",
             .formula = "y = 1 - r^x",
             .parameters = {base},
             .notes = "Fails for r <= 0. Exp1P4 with k = -ln(r)."},
            {.name = "Exponent3EVP",
             .formula = "y = 1 - (1 - Y)^(x/X)",
             .parameters = {reference, {"Y", "y expected at X, below 1"}},
             .notes = "Fails for Y >= 1. At X = 0 there is a value, 0, and no fit."},
        }};
}

} // namespace ansatz::host::descriptions
