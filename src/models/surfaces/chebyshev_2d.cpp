// Chebyshev2D. The polynomials are taken by cosines, so that outside -1 .. 1 the result is not a number, with
// status 0 and the error indicator left at a domain error. Frame Unchecked of basis_surface.h.

#include "models/surfaces/basis_surface.h"

namespace ansatz::chebyshev_2d {
namespace {

basis_surface::Functions<5> chebyshev(Real x1, Real x2) {
    const Real t1 = acos(x1), t2 = acos(x2);
    const Real T1_x1 = cos(t1), T1_x2 = cos(t2);
    return {T1_x1, cos(2 * t1), T1_x2, cos(2 * t2), T1_x1 * T1_x2};
}

} // namespace

ANSATZ_MODEL(Chebyshev2D, basis_surface::Unchecked<5, chebyshev>::Form)

ANSATZ_PAGE(Chebyshev2D,
            .title = "Chebyshev polynomials up to the second order in both variables, with one mixed term",
            .formula = "y = y0 + a x1 + b (2 x1^2 - 1) + c x2 + d (2 x2^2 - 1) + f x1 x2",
            .parameters = {{"y0", "offset", Trait::offset},
                           {"a", "of T1(x1) = x1", Trait::coefficient, Dimension{.y = 1}},
                           {"b", "of T2(x1) = 2 x1^2 - 1", Trait::coefficient, Dimension{.y = 1}},
                           {"c", "of T1(x2) = x2", Trait::coefficient, Dimension{.y = 1}},
                           {"d", "of T2(x2) = 2 x2^2 - 1", Trait::coefficient, Dimension{.y = 1}},
                           {"f", "of T1(x1) T1(x2)", Trait::coefficient, Dimension{.y = 1}}},
            .layout = {.lead = 1, .block = 5, .skipped = 0}, .x = {from_to(-1, 1), from_to(-1, 1)},
            .typical = {{1, 0.5, 1, -0.5, 0.6, 0.8}, -1, 1, -1, 1}, .scales = Scales::y_only,
            .same_as = "Poly2D(y0 = y0 - b - d, a = a, b = c, c = 2 b, d = 2 d, f = f)",
            .known_as = "Chebyshev series", .source = "Chebyshev, 1854",
            .notes = "Gives no number outside -1 <= x1, x2 <= 1: scale the data into that square first.")

} // namespace ansatz::chebyshev_2d
