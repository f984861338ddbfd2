// Gauss2D and Gaussian2D: a common offset and any number of Gaussian peaks over the plane, each given by its
// height.
//
//   Gauss2D      z = P1 + sum over the peaks of  A e^(-u^2/2 - v^2/2),   u = (x1 - xc)/wx, v = (x2 - yc)/wy
//   Gaussian2D   the same with axes turned by the angle t: u = ((x1 - xc) cos t + (x2 - yc) sin t)/wx,
//                                                          v = ((x2 - yc) cos t - (x1 - xc) sin t)/wy
//
//   P1 offset; then per peak height A, centre xc, width wx (standard deviation), centre yc, width wy, and for
//   Gaussian2D the angle t in radians. Where the call fails, what it skips and what it marks: see
//   peak_surface.h.
//
//   The blocks of Gaussian2D lie five apart although each has six parameters: the angle of a peak is at the
//   same time the height of the next. One peak (7 parameters) shows nothing of that; a second peak is rarely
//   what a user wants. The number of peaks comes from (nParams - 1) / 5, so supply nParams = 5 m + 2 for m
//   peaks.

#include "models/surfaces/peak_surface.h"

namespace ansatz::gauss2d {
namespace {

using peak_surface::by_centre;

double bell(double u, double v) {
    return safe_exp(u * u * -0.5 - v * v * 0.5);
}

struct Upright : peak_surface::Block {
    static constexpr int stride = 5, slots = 5, marked = 5;
    double u = (x1 - xc) / wx, v = (x2 - yc) / wy;
    double G = bell(u, v);

    double component() const { return A * G; }

    void partials(double* d) const {
        const double su = A * G * (u * u), sv = A * G * (v * v);
        d[1] = G;
        d[2] = by_centre(su, x1, xc);
        d[3] = su / wx;
        d[4] = by_centre(sv, x2, yc);
        d[5] = sv / wy;
    }
};

struct Turned : peak_surface::Block {
    static constexpr int stride = 5, slots = 6, marked = 6;
    double sin_t = of_parameters<sin>(p[6]), cos_t = of_parameters<cos>(p[6]);
    double U = (x1 - xc) * cos_t + (x2 - yc) * sin_t;
    double V = (x2 - yc) * cos_t - (x1 - xc) * sin_t;
    double G = bell(U / wx, V / wy);

    double component() const { return A * G; }

    void partials(double* d) const {
        const double AG = A * G, u = U / wx, v = V / wy, wx2 = wx * wx, wy2 = wy * wy;
        d[1] = G;
        d[2] = AG * (cos_t * U / wx2 - sin_t * V / wy2);
        d[3] = AG * (u * u) / wx;
        d[4] = AG * (sin_t * U / wx2 + cos_t * V / wy2);
        d[5] = AG * (v * v) / wy;
        d[6] = AG * (1 / wy2 - 1 / wx2) * U * V;
    }
};

} // namespace

ANSATZ_MODEL(Gauss2D, peak_surface::Form<Upright>)

ANSATZ_PAGE(Gauss2D, .title = "", .formula = "y = y0 + sum A exp(-(x1 - xc)^2/(2 wx^2) - (x2 - yc)^2/(2 wy^2))",
            .parameters = {{"y0", "offset", Trait::offset}},
            .block = {{"A", "height of the peak", Trait::amplitude},
                      {"xc", "centre on x1", Trait::position},
                      {"wx", "standard deviation along x1", Trait::width},
                      {"yc", "centre on x2", Trait::position},
                      {"wy", "the same along x2", Trait::constant}},
            .notes = "Fails for a width of 0; a fit fails for negative widths: bound them from below. A peak "
                     "of height 0 has no derivatives: do not start a fit there.")

ANSATZ_MODEL(Gaussian2D, peak_surface::Form<Turned>)

ANSATZ_PAGE(
    Gaussian2D, .title = "",
    .formula = "y = y0 + A exp(-u^2/(2 wx^2) - v^2/(2 wy^2)),  u = (x1 - xc) cos(t) + (x2 - yc) sin(t),  v = "
               "(x2 - yc) cos(t) - (x1 - xc) sin(t)",
    .parameters = {{"y0", "offset", Trait::offset},
                   {"A", "height of the peak", Trait::amplitude},
                   {"xc", "centre on x1", Trait::position},
                   {"wx", "standard deviation along the turned first axis", Trait::width},
                   {"yc", "centre on x2", Trait::position},
                   {"wy", "standard deviation along the turned second axis", Trait::width},
                   {"t", "angle of the axes in radians, from x1 towards x2", Trait::constant}},
    .layout = {.lead = 1, .block = 6, .stride = 5},
    .notes = "One peak. A turn by pi changes nothing, one by pi/2 exchanges the widths, and a round peak has "
             "no angle. Fails for a width of 0; a fit fails for negative widths: bound them from below.")

} // namespace ansatz::gauss2d
