// Parabola2D and Poly2D: surfaces of second order, a common offset and any number of blocks.
//
//   Parabola2D   z = P1 + sum over the blocks of  a x1 + b x2 + c x1^2 + d x2^2
//   Poly2D       z = P1 + sum over the blocks of  a x1 + b x2 + c x1^2 + d x2^2 + e x1 x2
//
//   P1 offset; then per block the coefficients in this order, 4 or 5 of them. One block is what a fit needs.
//   Frame Checked of basis_surface.h: fails for nParams <= 0; the value also on an error indicator left set by
//   the caller, seen after the first block.

#include "models/surfaces/basis_surface.h"

namespace ansatz::quadric2d {
namespace {

basis_surface::Functions<4> parabola(double x1, double x2) {
    return {x1, x2, x1 * x1, x2 * x2};
}

basis_surface::Functions<5> poly(double x1, double x2) {
    return {x1, x2, x1 * x1, x2 * x2, x1 * x2};
}

} // namespace

ANSATZ_MODEL(Parabola2D, basis_surface::Checked<4, parabola>::Form)

ANSATZ_PAGE(Parabola2D, .title = "", .formula = "y = y0 + a x1 + b x2 + c x1^2 + d x2^2",
            .parameters = {{"y0", "level at the origin", Trait::offset},
                           {"a", "of x1", Trait::constant},
                           {"b", "of x2", Trait::constant},
                           {"c", "of x1^2", Trait::constant},
                           {"d", "of x2^2", Trait::constant}})

ANSATZ_MODEL(Poly2D, basis_surface::Checked<5, poly>::Form)

ANSATZ_PAGE(Poly2D, .title = "", .formula = "y = y0 + a x1 + b x2 + c x1^2 + d x2^2 + f x1 x2",
            .parameters = {{"y0", "level at the origin", Trait::offset},
                           {"a", "of x1", Trait::constant},
                           {"b", "of x2", Trait::constant},
                           {"c", "of x1^2", Trait::constant},
                           {"d", "of x2^2", Trait::constant},
                           {"f", "of x1 x2", Trait::constant}})

} // namespace ansatz::quadric2d
