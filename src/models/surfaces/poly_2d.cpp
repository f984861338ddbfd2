// Poly2D. Frame Checked of basis_surface.h.

#include "models/surfaces/basis_surface.h"

namespace ansatz::poly_2d {
namespace {

basis_surface::Functions<5> up_to_second_order(Real x1, Real x2) {
    return {x1, x2, x1 * x1, x2 * x2, x1 * x2};
}

} // namespace

ANSATZ_MODEL(Poly2D, basis_surface::Checked<5, up_to_second_order>::Form)

ANSATZ_PAGE(Poly2D, .title = "The full polynomial of second order in two variables",
            .formula = "y = y0 + a x1 + b x2 + c x1^2 + d x2^2 + f x1 x2",
            .parameters = {{"y0", "level at the origin", Trait::offset},
                           {"a", "of x1", Trait::slope},
                           {"b", "of x2", Trait::slope, Dimension{.y = 1, .x2 = -1}},
                           {"c", "of x1^2", Trait::coefficient, Dimension{.x = -2, .y = 1}},
                           {"d", "of x2^2", Trait::coefficient, Dimension{.y = 1, .x2 = -2}},
                           {"f", "of x1 x2", Trait::coefficient, Dimension{.x = -1, .y = 1, .x2 = -1}}},
            .layout = {.lead = 1, .block = 5}, .typical = {{2, -1, -0.8, 0.3, 0.2, 0.25}, -4, 6, -4, 6},
            .known_as = "quadratic response surface, second-order response surface")

} // namespace ansatz::poly_2d
