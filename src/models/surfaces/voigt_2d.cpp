// Voigt2D. Where the call fails, what it skips and what it marks: see peak_surface.h; a failing peak's
// derivative by f keeps what it held.

#include "models/surfaces/peak_surface.h"

namespace ansatz::voigt_2d {
namespace {

using peak_surface::by_centre;

struct Shape : peak_surface::Block {
    static constexpr int stride = 6, slots = 6, marked = 5;
    Scalar f = p[6];
    Real u = (x1 - xc) / wx, v = (x2 - yc) / wy;
    Real G = safe_exp(u * u * -0.5 - v * v * 0.5);
    Real qu = 1 + u * u, qv = 1 + v * v;

    Real component() const { return A * ((1 - f) * G + f / (qu * qv)); }

    void partials(Real* d) const {
        const Real L = 1 / (qu * qv), uu = u * u, vv = v * v;
        const Real lorentz = 2 * f * A * L, gauss = (1 - f) * A * G;
        const Real lu = lorentz * uu / qu, lv = lorentz * vv / qv, gu = gauss * uu, gv = gauss * vv;
        d[1] = (1 - f) * G + f * L;
        d[2] = by_centre(lu, x1, xc) + by_centre(gu, x1, xc);
        d[3] = lu / wx + gu / wx;
        d[4] = by_centre(lv, x2, yc) + by_centre(gv, x2, yc);
        d[5] = lv / wy + gv / wy;
        d[6] = A * (L - G);
    }
};

} // namespace

ANSATZ_MODEL(Voigt2D, peak_surface::Form<Shape>)

ANSATZ_PAGE(
    Voigt2D, .title = "Peaks over the plane, each a mixture of a Gaussian and a Lorentzian",
    .formula = "y = y0 + sum A ((1 - f) exp(-u^2/2 - v^2/2) + f/((1 + u^2) (1 + v^2))),  u = (x1 - xc)/wx,  v "
               "= (x2 - yc)/wy",
    .parameters = {{"y0", "offset", Trait::offset}},
    .block =
        {{"A", "height of the peak", Trait::amplitude},
         {"xc", "centre on x1", Trait::position},
         {"wx",
          "width along x1: standard deviation of the Gaussian part, half width at half maximum of the other",
          Trait::width, positive},
         {"yc", "centre on x2", Trait::position, Dimension{.x2 = 1}},
         {"wy", "width along x2, likewise", Trait::width, Dimension{.x2 = 1}, positive},
         {"f", "fraction of the Lorentzian part", Trait::fraction, from_to(0, 1)}},
    .typical = {{0.2, 3, 3, 0.8, 2, 0.6, 0.3, 2, 7, 1, 4, 0.5, 0.8}, 0, 10, 0, 6}, .departures = {{2, "A = 0"}},
    .known_as = "2D pseudo-Voigt",
    .notes = "The model itself does not keep f within 0 and 1. Fails for a width of 0; a fit fails for "
             "negative widths: bound them from below. A peak of height 0 has no derivatives: do not start a "
             "fit there.")

} // namespace ansatz::voigt_2d
