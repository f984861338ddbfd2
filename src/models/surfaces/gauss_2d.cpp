// Gauss2D. Where the call fails, what it skips and what it marks: see peak_surface.h.

#include "models/surfaces/peak_surface.h"

namespace ansatz::gauss_2d {
namespace {

using peak_surface::by_centre;

struct Shape : peak_surface::Block {
    static constexpr int stride = 5, slots = 5, marked = 5;
    Real u = (x1 - xc) / wx, v = (x2 - yc) / wy;
    Real G = safe_exp(u * u * -0.5 - v * v * 0.5);

    Real component() const { return A * G; }

    void partials(Real* d) const {
        const Real su = A * G * (u * u), sv = A * G * (v * v);
        d[1] = G;
        d[2] = by_centre(su, x1, xc);
        d[3] = su / wx;
        d[4] = by_centre(sv, x2, yc);
        d[5] = sv / wy;
    }
};

} // namespace

ANSATZ_MODEL(Gauss2D, peak_surface::Form<Shape>)

ANSATZ_PAGE(Gauss2D, .title = "Upright Gaussian peaks over the plane on a common offset, each by its height",
            .formula = "y = y0 + sum A exp(-(x1 - xc)^2/(2 wx^2) - (x2 - yc)^2/(2 wy^2))",
            .parameters = {{"y0", "offset", Trait::offset}},
            .block = {{"A", "height of the peak", Trait::amplitude},
                      {"xc", "centre on x1", Trait::position},
                      {"wx", "standard deviation along x1", Trait::width, positive},
                      {"yc", "centre on x2", Trait::position, Dimension{.x2 = 1}},
                      {"wy", "standard deviation along x2", Trait::width, Dimension{.x2 = 1}, positive}},
            .typical = {{0.2, 3, 3, 1, 2, 0.8, 2, 7, 1.5, 4, 0.6}, 0, 10, 0, 6}, .departures = {{2, "A = 0"}},
            .known_as = "2D Gaussian, bivariate normal distribution",
            .notes = "Fails for a width of 0; a fit fails for negative widths: bound them from below. A peak "
                     "of height 0 has no derivatives: do not start a fit there.")

} // namespace ansatz::gauss_2d
