// Models of two dependent variables, and curves given as the zeros of an equation.

#include "families.hpp"

namespace ansatz::host::descriptions {

Family multi() {
    return {
        .title = "Several outputs, implicit curves",
        .models = {
            {.name = "LineExp",
             .formula = "y1 = a + b x;  y2 = y0 + A exp(x/t)",
             .parameters = {{"a", "offset of the line"},
                            {"y0", "offset of the exponential"},
                            {"b", "slope of the line"},
                            {"A", "amplitude of the exponential"},
                            {"t", "scale of x; negative: decay"}},
             .notes = "The two columns share no parameter. Fails for x/t above 709; t = 0 gives no number."},
            {.name = "GaussianLorentz",
             .formula = "y1 = y0 + A1/(w1 sqrt(pi/2)) exp(-2 ((x - xc)/w1)^2);  "
                        "y2 = y0 + 2 A2 w2/(pi (4 (x - xc)^2 + w2^2))",
             .parameters = {{"y0", "offset of both"},
                            {"xc", "centre of both"},
                            {"A1", "area of the Gaussian"},
                            {"A2", "area of the Lorentzian"},
                            {"w1", "width of the Gaussian, twice the standard deviation"},
                            {"w2", "width of the Lorentzian, full at half maximum"}},
             .notes = "A negative width turns its peak upside down: bound both from below."},
            {.name = "HillBurk",
             .formula = "y1 = V x1/(K + x1);  y2 = (1 + s x2)/d",
             .parameters = {{"V", "maximum of y1"},
                            {"K", "half-saturation constant (as x1)"},
                            {"d", "divisor: y2 is 1/d at x2 = 0"},
                            {"s", "slope, relative to 1 at x2 = 0"}},
             .paired = true,
             .notes = "Two curves over an x column each, without a common parameter."},
            {.name = "Ellipse",
             .formula = "0 = ((x1 - xc)/a)^2 + ((x2 - yc)/b)^2 - 1",
             .parameters = {{"xc", "centre in x1"},
                            {"yc", "centre in x2"},
                            {"a", "semi-axis along x1"},
                            {"b", "semi-axis along x2"}},
             .implicit = true,
             .notes = "Upright: its axes are those of x1 and x2. The signs of a and b do not matter."},
            {.name = "Circle",
             .formula = "0 = ((x1 - xc)/r)^2 + ((x2 - yc)/r)^2 - 1",
             .parameters = {{"xc", "centre in x1"}, {"yc", "centre in x2"}, {"r", "radius"}},
             .implicit = true,
             .notes = "The sign of r does not matter."},
            {.name = "PlaneMod",
             .formula = "0 = x1 sin(t) cos(f) + x2 sin(t) sin(f) + x3 cos(t) + d",
             .parameters = {{"t", "polar angle of the normal, in radians"},
                            {"f", "azimuth of the normal, in radians"},
                            {"d", "minus the distance of the plane from the origin, along the normal"}},
             .implicit = true,
             .notes =
                 "The residuals are distances from the plane. Near t = 0 the data do not determine f: name "
                 "the columns so that the normal is not along x3."},
        }};
}

} // namespace ansatz::host::descriptions
