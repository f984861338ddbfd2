// Parabola2D. Frame Checked of basis_surface.h.

#include "models/surfaces/basis_surface.h"

namespace ansatz::parabola_2d {
namespace {

basis_surface::Functions<4> squares(Real x1, Real x2) {
    return {x1, x2, x1 * x1, x2 * x2};
}

} // namespace

ANSATZ_MODEL(Parabola2D, basis_surface::Checked<4, squares>::Form)

ANSATZ_PAGE(Parabola2D, .title = "A paraboloid with its axes along x1 and x2",
            .formula = "y = y0 + a x1 + b x2 + c x1^2 + d x2^2",
            .parameters = {{"y0", "level at the origin", Trait::offset},
                           {"a", "of x1", Trait::slope},
                           {"b", "of x2", Trait::slope, Dimension{.y = 1, .x2 = -1}},
                           {"c", "of x1^2", Trait::coefficient, Dimension{.x = -2, .y = 1}},
                           {"d", "of x2^2", Trait::coefficient, Dimension{.y = 1, .x2 = -2}}},
            .layout = {.lead = 1, .block = 4}, .typical = {{2, -1, -0.8, 0.3, 0.2}, -2, 5, -2, 6},
            .known_as = "paraboloid", .notes = "The extreme or saddle is at x1 = -a/(2 c) and x2 = -b/(2 d).")

} // namespace ansatz::parabola_2d
