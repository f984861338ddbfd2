// Lorentz2D. Where the call fails, what it skips and what it marks: see peak_surface.h.

#include "models/surfaces/peak_surface.h"

namespace ansatz::lorentz_2d {
namespace {

using peak_surface::by_centre;

struct Shape : peak_surface::Block {
    static constexpr int stride = 5, slots = 5, marked = 5;
    Real u = (x1 - xc) / wx, v = (x2 - yc) / wy;
    Real qu = 1 + u * u, qv = 1 + v * v;

    Real component() const { return A / (qu * qv); }

    void partials(Real* d) const {
        const Real L = 1 / (qu * qv);
        const Real su = 2 * A * L * (u * u) / qu, sv = 2 * A * L * (v * v) / qv;
        d[1] = L;
        d[2] = by_centre(su, x1, xc);
        d[3] = su / wx;
        d[4] = by_centre(sv, x2, yc);
        d[5] = sv / wy;
    }
};

} // namespace

ANSATZ_MODEL(Lorentz2D, peak_surface::Form<Shape>)

ANSATZ_PAGE(
    Lorentz2D, .title = "Peaks over the plane, each the product of a Lorentzian along either variable",
    .formula = "y = y0 + sum A/((1 + ((x1 - xc)/wx)^2) (1 + ((x2 - yc)/wy)^2))",
    .parameters = {{"y0", "offset", Trait::offset}},
    .block = {{"A", "height of the peak", Trait::amplitude},
              {"xc", "centre on x1", Trait::position},
              {"wx", "half width at half maximum along x1", Trait::width, positive},
              {"yc", "centre on x2", Trait::position, Dimension{.x2 = 1}},
              {"wy", "half width at half maximum along x2", Trait::width, Dimension{.x2 = 1}, positive}},
    .typical = {{0.2, 3, 3, 0.8, 2, 0.6, 2, 7, 1, 4, 0.5}, 0, 10, 0, 6}, .departures = {{2, "A = 0"}},
    .known_as = "2D Lorentzian",
    .notes = "Its lines of equal height are no ellipses. Fails for a width of 0; a fit fails for negative "
             "widths: bound them from below. A peak of height 0 has no derivatives: do not start a fit there.")

} // namespace ansatz::lorentz_2d
