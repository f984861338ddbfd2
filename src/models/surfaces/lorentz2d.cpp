// Lorentz2D: a common offset and any number of peaks over the plane, each the product of two Lorentzians.
//
//   z = P1 + sum over the peaks of  A / ((1 + u^2) (1 + v^2)),   u = (x1 - xc)/wx, v = (x2 - yc)/wy
//
//   P1 offset; then per peak height A, centre xc, width wx (half width at half maximum along x1), centre yc,
//   width wy. Where the call fails, what it skips and what it marks: see peak_surface.h.

#include "models/surfaces/peak_surface.h"

namespace ansatz::lorentz2d {
namespace {

using peak_surface::by_centre;

struct Shape : peak_surface::Block {
    static constexpr int stride = 5, slots = 5, marked = 5;
    double u = (x1 - xc) / wx, v = (x2 - yc) / wy;
    double qu = 1 + u * u, qv = 1 + v * v;

    double component() const { return A / (qu * qv); }

    void partials(double* d) const {
        const double L = 1 / (qu * qv);
        const double su = 2 * A * L * (u * u) / qu, sv = 2 * A * L * (v * v) / qv;
        d[1] = L;
        d[2] = by_centre(su, x1, xc);
        d[3] = su / wx;
        d[4] = by_centre(sv, x2, yc);
        d[5] = sv / wy;
    }
};

} // namespace

ANSATZ_MODEL(Lorentz2D, peak_surface::Form<Shape>)

ANSATZ_PAGE(Lorentz2D, .title = "", .formula = "y = y0 + sum A/((1 + ((x1 - xc)/wx)^2) (1 + ((x2 - yc)/wy)^2))",
            .parameters = {{"y0", "offset", Trait::offset}},
            .block = {{"A", "height of the peak", Trait::amplitude},
                      {"xc", "centre on x1", Trait::position},
                      {"wx", "half width at half maximum along x1", Trait::constant},
                      {"yc", "centre on x2", Trait::position},
                      {"wy", "the same along x2", Trait::constant}},
            .notes = "Fails for a width of 0; a fit fails for negative widths: bound them from below. A peak "
                     "of height 0 has no derivatives: do not start a fit there.")

} // namespace ansatz::lorentz2d
