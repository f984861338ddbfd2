// Powers of a distance, rectangular hyperbolas, sine waves.

#include "families.hpp"

namespace ansatz::host::descriptions {

Family powers() {
    return {
        .title = "Powers, hyperbolas and waves",
        .models = {
            {.name = "Power0",
             .formula = "y = y0 + A abs(x - xc)^p",
             .parameters = {{"y0", "offset"},
                            {"xc", "centre"},
                            {"A", "amplitude, height above the offset at distance 1"},
                            {"p", "exponent"}},
             .notes = "At x = xc the value is y0. The model leaves the derivatives by xc and p open there; a "
                      "fit takes them by differences."},
            {.name = "Power1",
             .formula = "y = A abs(x - xc)^p",
             .parameters = {{"xc", "centre"}, {"A", "amplitude, value at distance 1"}, {"p", "exponent"}},
             .notes =
                 "At x = xc the value is 0. The model leaves the derivatives by xc and p open there; a fit "
                 "takes them by differences. A fit with p <= 0 needs numerical derivatives throughout."},
            {.name = "Power2",
             .formula = "y = A abs(x - xc)^pl for x < xc, A abs(x - xc)^pu for x > xc, 0 otherwise",
             .parameters = {{"xc", "centre"},
                            {"A", "amplitude, value at distance 1 on both sides"},
                            {"pl", "exponent below the centre"},
                            {"pu", "exponent above the centre"}},
             .notes =
                 "At x = xc the model leaves the derivatives by xc and the exponents open; a fit takes them by "
                 "differences. A fit with an exponent <= 0 needs numerical derivatives throughout."},
            {.name = "Hyperbl",
             .formula = "y = A x/(K + x)",
             .parameters = {{"A", "capacity, the level for large x"},
                            {"K", "x at which half of it is reached"}},
             .notes = "Fails at x = -K."},
            {.name = "Dhyperbl",
             .formula = "y = A1 x/(K1 + x) + A2 x/(K2 + x) + s x",
             .parameters = {{"A1", "capacity of the first site"},
                            {"K1", "x at which half of it is reached"},
                            {"A2", "capacity of the second site"},
                            {"K2", "x at which half of it is reached"},
                            {"s", "slope of the part that does not saturate"}},
             .notes = "Fails at x = -K1 and x = -K2. Start a fit with K1 and K2 that differ by a factor."},
            {.name = "Sine",
             .formula = "y = y0 + A sin(pi (x - xc)/w)",
             .parameters = {{"y0", "offset"},
                            {"xc", "phase shift, an upward zero crossing, unit of x"},
                            {"w", "half period, unit of x"},
                            {"A", "amplitude"}},
             .notes = "Fails for w = 0. A fit finds only a nearby period: start xc at a crossing in the middle "
                      "of the data and w so near that the waves stay in step to both ends."},
            {.name = "SineSqr",
             .formula = "y = y0 + A sin(pi (x - xc)/w)^2",
             .parameters = {{"y0", "offset"},
                            {"xc", "phase shift, where y = y0, unit of x"},
                            {"w", "period of the squared wave, unit of x"},
                            {"A", "amplitude, from trough to crest"}},
             .notes = "Fails for w = 0. A fit finds only a nearby period: start xc at a trough or crest in the "
                      "middle of the data and w so near that the waves stay in step to both ends."},
            {.name = "SineDamp",
             .formula = "y = y0 + A exp(-x/t) sin(pi (x - xc)/w)",
             .parameters = {{"y0", "offset"},
                            {"xc", "phase shift, an upward zero crossing, unit of x"},
                            {"w", "half period, unit of x"},
                            {"t", "decay time, unit of x"},
                            {"A", "amplitude, of the envelope at x = 0"}},
             .notes =
                 "Fails for w = 0 or t = 0 and where the exponential overflows. A negative t lets the wave "
                 "grow. A fit finds only a nearby period: start w close to half the distance of two crests."},
        }};
}

} // namespace ansatz::host::descriptions
