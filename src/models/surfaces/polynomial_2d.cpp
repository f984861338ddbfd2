// Polynomial2D. Frame Unchecked of basis_surface.h: a power that overflows makes the result infinite or not a
// number, with status 0 and the error indicator left set.

#include "models/surfaces/basis_surface.h"

namespace ansatz::polynomial_2d {
namespace {

basis_surface::Functions<10> powers(Real x1, Real x2) {
    return {x1, safe_pow(x1, 2.0), safe_pow(x1, 3.0), safe_pow(x1, 4.0), safe_pow(x1, 5.0),
            x2, safe_pow(x2, 2.0), safe_pow(x2, 3.0), safe_pow(x2, 4.0), safe_pow(x2, 5.0)};
}

} // namespace

ANSATZ_MODEL(Polynomial2D, basis_surface::Unchecked<10, powers>::Form)

ANSATZ_PAGE(Polynomial2D, .title = "A polynomial of fifth order in each variable, without mixed terms",
            .formula = "y = y0 + a1 x1 + a2 x1^2 + a3 x1^3 + a4 x1^4 + a5 x1^5 + b1 x2 + b2 x2^2 + b3 x2^3 + "
                       "b4 x2^4 + b5 x2^5",
            .parameters = {{"y0", "level at the origin", Trait::offset},
                           {"a1", "of x1", Trait::coefficient, Dimension{.x = -1, .y = 1}},
                           {"a2", "of x1^2", Trait::coefficient, Dimension{.x = -2, .y = 1}},
                           {"a3", "of x1^3", Trait::coefficient, Dimension{.x = -3, .y = 1}},
                           {"a4", "of x1^4", Trait::coefficient, Dimension{.x = -4, .y = 1}},
                           {"a5", "of x1^5", Trait::coefficient, Dimension{.x = -5, .y = 1}},
                           {"b1", "of x2", Trait::coefficient, Dimension{.y = 1, .x2 = -1}},
                           {"b2", "of x2^2", Trait::coefficient, Dimension{.y = 1, .x2 = -2}},
                           {"b3", "of x2^3", Trait::coefficient, Dimension{.y = 1, .x2 = -3}},
                           {"b4", "of x2^4", Trait::coefficient, Dimension{.y = 1, .x2 = -4}},
                           {"b5", "of x2^5", Trait::coefficient, Dimension{.y = 1, .x2 = -5}}},
            .layout = {.lead = 1, .block = 10, .skipped = 0},
            .typical = {{1, 2, -0.5, -3, 0.2, 1, -1, 0.8, 2, -0.3, -1}, -1.5, 1.5, -1.3, 1.3},
            .notes = "Centre and scale x1 and x2 for the sake of the digits.")

} // namespace ansatz::polynomial_2d
