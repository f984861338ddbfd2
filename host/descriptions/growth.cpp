// Growth and saturation over time.

#include "families.hpp"

namespace ansatz::host::descriptions {

Family growth() {
    return {
        .title = "Growth",
        .models = {
            {.name = "Richards",
             .formula = "y = a/(1 + exp(-(k x + b)/m))^m",
             .parameters = {{"a", "ceiling"},
                            {"b", "location: early in the growth y = a exp(k x + b)"},
                            {"k", "rate of the early, exponential growth, 1/(unit of x)"},
                            {"m", "shape, above 0; 1 makes it the logistic curve"}},
             .notes = "m < 0 has a value but no derivatives: bound m from below by a small positive number."},
            {.name = "MnMolecular",
             .formula = "y = a (1 - exp(-(x - xc) k))",
             .parameters = {{"a", "ceiling"}, {"xc", "x at which the growth starts from 0"}, {"k", "rate"}},
             .notes =
                 "The derivative by k is wrong for a point with x exactly equal to xc (a x instead of 0): do "
                 "not start or fix xc at an x of the data, unless that x is 0."},
            {.name = "MnMolecular1",
             .formula = "y = a - b exp(-k x)",
             .parameters = {{"a", "ceiling"}, {"b", "depth below the ceiling at x = 0"}, {"k", "rate"}}},
            {.name = "SLogistic1",
             .formula = "y = a/(1 + exp(-(x - xc) k))",
             .parameters = {{"a", "ceiling, above 0"},
                            {"xc", "centre: x of half the ceiling"},
                            {"k", "rate, 1/(unit of x)"}},
             .notes = "Fails for a <= 0."},
            {.name = "SLogistic2",
             .formula = "y = a/(1 + (a/y0 - 1) exp(-4 v x/a))",
             .parameters = {{"y0", "value at x = 0"},
                            {"a", "ceiling, above 0 and above y0"},
                            {"v", "greatest growth rate: the slope at y = a/2, above 0"}},
             .notes =
                 "Fails for a <= 0, a <= y0, y0 = 0 and v <= 0. A y0 < 0 is computed; the curve then has a "
                 "pole right of x = 0."},
            {.name = "SLogistic3",
             .formula = "y = a/(1 + b exp(-k x))",
             .parameters = {{"a", "ceiling, above 0"},
                            {"b", "scale, above 0: y is a/(1 + b) at x = 0"},
                            {"k", "rate, above 0"}},
             .notes = "Fails unless all three are above 0. Half the ceiling is reached at x = ln(b)/k."},
            {.name = "SGompertz",
             .formula = "y = a exp(-exp(-(x - xc) k))",
             .parameters = {{"a", "ceiling, above 0"},
                            {"xc", "centre: x of the fastest growth, where y = a/e"},
                            {"k", "rate, above 0"}},
             .notes = "Fails for a <= 0 and for k <= 0."},
            {.name = "SRichards1",
             .formula = "y = (a^(1 - d) - s exp(-(x - xc) k))^(1/(1 - d)),  s = 1 for d < 1, -1 for d > 1",
             .parameters = {{"a", "ceiling, above 0"},
                            {"xc", "location: the exponential is 1 there"},
                            {"d", "shape, other than 1; 2 makes it the logistic curve"},
                            {"k", "rate, above 0"}},
             .notes = "Fails for d = 1, a <= 0 and k <= 0, and for d < 1 where the base of the outer power is "
                      "not positive, before growth sets in: data that begin earlier need d > 1. A fit cannot "
                      "cross d = 1: start on the right side. "
                      "xc is hard to guess, since it depends on a and d; SRichards2 has the same curves for "
                      "d > 1 with an xc one can see."},
            {.name = "SRichards2",
             .formula = "y = a (1 - (1 - d) exp(-(x - xc) k))^(1/(1 - d))",
             .parameters = {{"a", "ceiling, above 0"},
                            {"xc", "centre: x of the fastest growth, where y = a d^(1/(1 - d))"},
                            {"d", "shape, above 0, other than 1; 2 makes it the logistic curve"},
                            {"k", "rate, above 0"}},
             .notes = "Fails for d = 1, a <= 0, d <= 0 and k <= 0, and for d < 1 where the base of the outer "
                      "power is not positive, before growth sets in: data that begin earlier need d > 1. "
                      "Approaches SGompertz for d near 1, but a fit "
                      "cannot cross it: start on the right side."},
            {.name = "SWeibull1",
             .formula = "y = a (1 - exp(-((x - xc) k)^d))",
             .parameters = {{"a", "ceiling"},
                            {"xc", "x at which the growth starts from 0"},
                            {"d", "shape; 1 makes it MnMolecular"},
                            {"k", "rate, above 0"}},
             .notes =
                 "For x < xc there is no value unless d is a whole number: bound xc from above by the least x "
                 "of the data. The derivatives, and so a fit, fail for k <= 0 and d < 0."},
            {.name = "SWeibull2",
             .formula = "y = a - (a - y0) exp(-(k x)^d)",
             .parameters =
                 {{"a", "ceiling"}, {"y0", "value towards x = 0"}, {"d", "shape"}, {"k", "rate, above 0"}},
             .notes = "Fails for x <= 0, so leave out a point at x = 0, and for k <= 0."},
        }};
}

} // namespace ansatz::host::descriptions
