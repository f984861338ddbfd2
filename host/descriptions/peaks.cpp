// Peaks on a common offset.

#include "families.hpp"

namespace ansatz::host::descriptions {

Family peaks() {
    return {
        .title = "Peaks",
        .models = {
            {.name = "Gauss",
             .formula = "y = y0 + sum A/(w sqrt(pi/2)) exp(-2 ((x - xc)/w)^2)",
             .parameters = {{"y0", "offset"}},
             .block = {{"xc", "centre"}, {"w", "width, twice the standard deviation"}, {"A", "area"}},
             .notes = "Fails for w = 0; the derivatives, and so a fit, fail for w < 0. A peak of area 0 has no "
                      "derivatives: do not start a fit there."},
            {.name = "Lorentz",
             .formula = "y = y0 + sum (2 A/pi) w/(4 (x - xc)^2 + w^2)",
             .parameters = {{"y0", "offset"}},
             .block = {{"xc", "centre"}, {"w", "width, full at half maximum"}, {"A", "area"}},
             .notes =
                 "Fails for w <= 0 of the first peak. Further widths may be negative, which turns the peak "
                 "upside down: bound them from below."},
        }};
}

} // namespace ansatz::host::descriptions
