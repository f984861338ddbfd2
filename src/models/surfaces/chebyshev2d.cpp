// Chebyshev2D: Chebyshev polynomials of first and second order, a common offset and any number of blocks.
//
//   z = P1 + sum over the blocks of  a T1(x1) + b T2(x1) + c T1(x2) + d T2(x2) + e T1(x1) T1(x2),
//   T1(s) = cos(acos s), T2(s) = cos(2 acos s)
//
//   P1 offset; then per block a .. e. One block (6 parameters) is what a fit needs. Frame Unchecked of
//   basis_surface.h. Meant for x1 and x2 between -1 and 1, so scale the data first: outside, the result is not
//   a number, with status 0 and the error indicator left at a domain error.

#include "models/surfaces/basis_surface.h"

namespace ansatz::chebyshev2d {
namespace {

basis_surface::Functions<5> chebyshev(double x1, double x2) {
    const double t1 = acos(x1), t2 = acos(x2);
    const double T1_x1 = cos(t1), T1_x2 = cos(t2);
    return {T1_x1, cos(2 * t1), T1_x2, cos(2 * t2), T1_x1 * T1_x2};
}

} // namespace

ANSATZ_MODEL(Chebyshev2D, basis_surface::Unchecked<5, chebyshev>::Form)

ANSATZ_PAGE(
    Chebyshev2D, .title = "", .formula = "y = y0 + a x1 + b (2 x1^2 - 1) + c x2 + d (2 x2^2 - 1) + f x1 x2",
    .parameters = {{"y0", "offset", Trait::offset},
                   {"a", "of T1(x1) = x1", Trait::constant},
                   {"b", "of T2(x1) = 2 x1^2 - 1", Trait::constant},
                   {"c", "of T1(x2) = x2", Trait::constant},
                   {"d", "of T2(x2) = 2 x2^2 - 1", Trait::constant},
                   {"f", "of T1(x1) T1(x2)", Trait::constant}},
    .layout = {.lead = 1, .block = 5, .skipped = 0},
    .notes =
        "A series of Chebyshev polynomials. Gives no number outside -1 <= x1, x2 <= 1: scale the data first.")

} // namespace ansatz::chebyshev2d
