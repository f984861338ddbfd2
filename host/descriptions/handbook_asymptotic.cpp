// The asymptotic regression law in its seven parameterisations.

#include "families.hpp"

namespace ansatz::host::descriptions {

Family handbook_asymptotic() {
    constexpr ParameterText base = {"r", "base: the part left after one unit of x, above 0 and below 1"};
    constexpr ParameterText rate = {"k", "rate, 1/(unit of x), above 0"};
    constexpr const char* outside = "Fails for r <= 0 and r >= 1.";
    constexpr const char* not_positive = "Fails for k <= 0.";
    return {.title = "Regression handbook, asymptotic",
            .models = {
                {.name = "Asymptotic1",
                 .formula = "y = a - b r^x",
                 .parameters = {{"a", "asymptote"}, {"b", "span: a - y at x = 0"}, base},
                 .notes = outside},
                {.name = "Asymptotic2",
                 .formula = "y = a - b exp(-k x)",
                 .parameters = {{"a", "asymptote"}, {"b", "span: a - y at x = 0"}, rate},
                 .notes = not_positive},
                {.name = "Asymptotic3",
                 .formula = "y = a (1 - exp(-k (x - x0)))",
                 .parameters = {{"a", "asymptote"}, {"x0", "x at which y is 0"}, rate},
                 .notes = not_positive},
                {.name = "Asymptotic4",
                 .formula = "y = a + (y0 - a) r^x",
                 .parameters = {{"a", "asymptote"}, base, {"y0", "y at x = 0"}},
                 .notes = outside},
                {.name = "Asymptotic5",
                 .formula = "y = a + (y0 - a) exp(-k x)",
                 .parameters = {{"a", "asymptote"}, rate, {"y0", "y at x = 0"}},
                 .true_derivatives = false,
                 .notes = "Fails for k <= 0. The model's own derivative by y0 has the wrong sign at x = 0, so "
                          "that a fit takes derivatives by differences."},
                {.name = "Asymptotic6",
                 .formula = "y = a - exp(-(b + k x))",
                 .parameters = {{"a", "asymptote"}, {"b", "minus the logarithm of a - y at x = 0"}, rate},
                 .notes = "Fails for k <= 0. The curve can only rise."},
                {.name = "Asymptotic7",
                 .formula = "y = y0 + b (1 - exp(-k x))",
                 .parameters = {{"y0", "y at x = 0"}, {"b", "span: the asymptote is y0 + b"}, rate},
                 .notes = not_positive},
            }};
}

} // namespace ansatz::host::descriptions
