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
} // namespace ansatz::quadric2d

ANSATZ_MODEL(Parabola2D, ansatz::basis_surface::Checked<4, ansatz::quadric2d::parabola>::Form)
ANSATZ_MODEL(Poly2D, ansatz::basis_surface::Checked<5, ansatz::quadric2d::poly>::Form)
