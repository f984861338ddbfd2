// Polynomial2D: a polynomial of fifth order in each variable, a common offset and any number of blocks.
//
//   z = P1 + sum over the blocks of  a1 x1 + .. + a5 x1^5 + b1 x2 + .. + b5 x2^5
//
//   P1 offset; then per block a1 .. a5, b1 .. b5. One block (11 parameters) is what a fit needs. Frame
//   Unchecked of basis_surface.h: a power that overflows makes the result infinite or not a number, with status
//   0 and the error indicator left set.

#include "models/surfaces/basis_surface.h"

namespace ansatz::polynomial2d {
namespace {

basis_surface::Functions<10> powers(double x1, double x2) {
    return {x1, safe_pow(x1, 2.0), safe_pow(x1, 3.0), safe_pow(x1, 4.0), safe_pow(x1, 5.0),
            x2, safe_pow(x2, 2.0), safe_pow(x2, 3.0), safe_pow(x2, 4.0), safe_pow(x2, 5.0)};
}

} // namespace
} // namespace ansatz::polynomial2d

ANSATZ_MODEL(Polynomial2D, ansatz::basis_surface::Unchecked<10, ansatz::polynomial2d::powers>::Form)
