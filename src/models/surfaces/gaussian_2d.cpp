// Gaussian2D. Where the call fails, what it skips and what it marks: see peak_surface.h.
//
// The blocks lie five apart although each has six parameters: the angle of a peak is at the same time the
// height of the next, and the next peak's derivative overwrites the one by the angle. One peak (7 parameters)
// shows nothing of that; a second peak is rarely what a user wants. The number of peaks comes from (nParams -
// 1) / 5, so that m peaks need nParams = 5 m + 2.

#include "models/surfaces/peak_surface.h"

namespace ansatz::gaussian_2d {
namespace {

struct Shape : peak_surface::Block {
    static constexpr int stride = 5, slots = 6, marked = 6;
    Scalar sin_t = of_parameters<sin>(p[6]), cos_t = of_parameters<cos>(p[6]);
    Real U = (x1 - xc) * cos_t + (x2 - yc) * sin_t;
    Real V = (x2 - yc) * cos_t - (x1 - xc) * sin_t;
    Real u = U / wx, v = V / wy;
    Real G = safe_exp(u * u * -0.5 - v * v * 0.5);

    Real component() const { return A * G; }

    void partials(Real* d) const {
        const Scalar wx2 = wx * wx, wy2 = wy * wy;
        const Real AG = A * G;
        d[1] = G;
        d[2] = AG * (cos_t * U / wx2 - sin_t * V / wy2);
        d[3] = AG * (u * u) / wx;
        d[4] = AG * (sin_t * U / wx2 + cos_t * V / wy2);
        d[5] = AG * (v * v) / wy;
        d[6] = AG * (1 / wy2 - 1 / wx2) * U * V;
    }
};

} // namespace

ANSATZ_MODEL(Gaussian2D, peak_surface::Form<Shape>)

ANSATZ_PAGE(
    Gaussian2D, .title = "A Gaussian peak over the plane with axes turned by an angle, on an offset",
    .formula = "y = y0 + A exp(-u^2/(2 wx^2) - v^2/(2 wy^2)),  u = (x1 - xc) cos(t) + (x2 - yc) sin(t),  v = "
               "(x2 - yc) cos(t) - (x1 - xc) sin(t)",
    .parameters = {{"y0", "offset", Trait::offset},
                   {"A", "height of the peak", Trait::amplitude},
                   {"xc", "centre on x1", Trait::position},
                   {"wx", "standard deviation along the turned first axis", Trait::width, positive},
                   {"yc", "centre on x2", Trait::position},
                   {"wy", "standard deviation along the turned second axis", Trait::width, positive},
                   {"t", "angle of the axes in radians, from x1 towards x2", Trait::angle}},
    .layout = {.lead = 1, .block = 6, .stride = 5}, .typical = {{0.2, 3, 5, 2, 4, 0.8, 0.6}, 0, 10, 0, 8},
    .scales = Scales::y_only, .departures = {{2, "A = 0"}},
    .known_as = "rotated 2D Gaussian, elliptical Gaussian",
    .notes = "One peak. x1 and x2 need the same unit. A turn by pi changes nothing, one by pi/2 exchanges the "
             "widths, and a round peak has no angle. Fails for a width of 0; a fit fails for negative widths: "
             "bound them from below. A peak of height 0 has no derivatives: do not start a fit there.")

} // namespace ansatz::gaussian_2d
