// Voigt2D: a common offset and any number of peaks over the plane, each a mixture of a Gaussian and a
// Lorentzian.
//
//   z = P1 + sum over the peaks of  A ((1 - f) e^(-u^2/2 - v^2/2) + f / ((1 + u^2) (1 + v^2))),
//   u = (x1 - xc)/wx, v = (x2 - yc)/wy
//
//   P1 offset; then per peak height A, centre xc, width wx, centre yc, width wy, mixing fraction f (0 Gaussian,
//   1 Lorentzian; not limited to that range). Both parts share the widths: a standard deviation of the one, a
//   half width at half maximum of the other. Where the call fails, what it skips and what it marks: see
//   peak_surface.h; a failing peak's derivative by f keeps what it held.

#include "models/surfaces/peak_surface.h"

namespace ansatz::voigt2d {
namespace {

using peak_surface::by_centre;

struct Shape : peak_surface::Block {
    static constexpr int stride = 6, slots = 6, marked = 5;
    double f = p[6];
    double u = (x1 - xc) / wx, v = (x2 - yc) / wy;
    double G = safe_exp(u * u * -0.5 - v * v * 0.5);
    double qu = 1 + u * u, qv = 1 + v * v;

    double component() const { return A * ((1 - f) * G + f / (qu * qv)); }

    void partials(double* d) const {
        const double L = 1 / (qu * qv), uu = u * u, vv = v * v;
        const double lorentz = 2 * f * A * L, gauss = (1 - f) * A * G;
        const double lu = lorentz * uu / qu, lv = lorentz * vv / qv, gu = gauss * uu, gv = gauss * vv;
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
    Voigt2D, .title = "",
    .formula = "y = y0 + sum A ((1 - f) exp(-u^2/2 - v^2/2) + f/((1 + u^2) (1 + v^2))),  u = (x1 - xc)/wx,  v "
               "= (x2 - yc)/wy",
    .parameters = {{"y0", "offset", Trait::offset}},
    .block =
        {{"A", "height of the peak", Trait::amplitude},
         {"xc", "centre on x1", Trait::position},
         {"wx",
          "width along x1: standard deviation of the Gaussian part, half width at half maximum of the other",
          Trait::width},
         {"yc", "centre on x2", Trait::position},
         {"wy", "the same along x2", Trait::constant},
         {"f", "fraction of the Lorentzian part, 0 to 1", Trait::fraction}},
    .notes = "Fails for a width of 0; a fit fails for negative widths: bound them from below. A peak of height "
             "0 has no derivatives: do not start a fit there.")

} // namespace ansatz::voigt2d
