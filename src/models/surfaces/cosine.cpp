// Cosine. Frame Unchecked of basis_surface.h: an infinite x makes the result not a number, with status 0.

#include "models/surfaces/basis_surface.h"

namespace ansatz::cosine {
namespace {

basis_surface::Functions<5> cosines(Real x1, Real x2) {
    const Real c1 = cos(x1), c2 = cos(x2);
    return {c1, cos(x1 + x1), c2, cos(x2 + x2), c1 * c2};
}

} // namespace

ANSATZ_MODEL(Cosine, basis_surface::Unchecked<5, cosines>::Form)

ANSATZ_PAGE(Cosine, .title = "Cosines of first and second order along both variables, with one mixed term",
            .formula = "y = y0 + a cos(x1) + b cos(2 x1) + c cos(x2) + d cos(2 x2) + f cos(x1) cos(x2)",
            .parameters = {{"y0", "offset", Trait::offset},
                           {"a", "of cos(x1)", Trait::amplitude},
                           {"b", "of cos(2 x1)", Trait::amplitude},
                           {"c", "of cos(x2)", Trait::amplitude},
                           {"d", "of cos(2 x2)", Trait::amplitude},
                           {"f", "of cos(x1) cos(x2)", Trait::amplitude}},
            .layout = {.lead = 1, .block = 5, .skipped = 0},
            .typical = {{1, 1, 0.5, 0.8, -0.4, 0.6}, 0, 6.3, 0, 6.3}, .scales = Scales::y_only,
            .known_as = "cosine series",
            .notes = "x1 and x2 are in radians, and the period is 2 pi: scale the data to that first.")

} // namespace ansatz::cosine
