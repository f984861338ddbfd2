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

ANSATZ_MODEL(Polynomial2D, basis_surface::Unchecked<10, powers>::Form)

ANSATZ_PAGE(Polynomial2D, .title = "",
            .formula = "y = y0 + a1 x1 + a2 x1^2 + a3 x1^3 + a4 x1^4 + a5 x1^5 + b1 x2 + b2 x2^2 + b3 x2^3 + "
                       "b4 x2^4 + b5 x2^5",
            .parameters = {{"y0", "level at the origin", Trait::offset},
                           {"a1", "of x1", Trait::constant},
                           {"a2", "of x1^2", Trait::constant},
                           {"a3", "of x1^3", Trait::constant},
                           {"a4", "of x1^4", Trait::constant},
                           {"a5", "of x1^5", Trait::constant},
                           {"b1", "of x2", Trait::constant},
                           {"b2", "of x2^2", Trait::constant},
                           {"b3", "of x2^3", Trait::constant},
                           {"b4", "of x2^4", Trait::constant},
                           {"b5", "of x2^5", Trait::constant}},
            .layout = {.lead = 1, .block = 10, .skipped = 0},
            .notes = "No mixed terms. Centre and scale x1 and x2 for the sake of the digits.")

} // namespace ansatz::polynomial2d
