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
} // namespace ansatz::cosine

ANSATZ_MODEL(Cosine, ansatz::basis_surface::Unchecked<5, ansatz::cosine::cosines>::Form)
