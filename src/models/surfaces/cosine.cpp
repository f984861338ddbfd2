// Cosine: cosines of first and second order along both variables, a common offset and any number of blocks.
//
//   z = P1 + sum over the blocks of  a cos x1 + b cos 2 x1 + c cos x2 + d cos 2 x2 + e cos x1 cos x2
//
//   P1 offset; then per block a .. e; x1 and x2 in radians. One block (6 parameters) is what a fit needs. Frame
//   Unchecked of basis_surface.h: an infinite x makes the result not a number, with status 0.

#include "models/surfaces/basis_surface.h"

namespace ansatz::cosine {
namespace {

basis_surface::Functions<5> cosines(double x1, double x2) {
    const double c1 = cos(x1), c2 = cos(x2);
    return {c1, cos(x1 + x1), c2, cos(x2 + x2), c1 * c2};
}

} // namespace

ANSATZ_MODEL(Cosine, basis_surface::Unchecked<5, cosines>::Form)

ANSATZ_PAGE(Cosine, .title = "",
            .formula = "y = y0 + a cos(x1) + b cos(2 x1) + c cos(x2) + d cos(2 x2) + f cos(x1) cos(x2)",
            .parameters = {{"y0", "offset", Trait::offset},
                           {"a", "of cos(x1)", Trait::constant},
                           {"b", "of cos(2 x1)", Trait::constant},
                           {"c", "of cos(x2)", Trait::constant},
                           {"d", "of cos(2 x2)", Trait::constant},
                           {"f", "of cos(x1) cos(x2)", Trait::constant}},
            .layout = {.lead = 1, .block = 5, .skipped = 0}, .notes = "x1 and x2 in radians.")

} // namespace ansatz::cosine
