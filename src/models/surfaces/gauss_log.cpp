// GaussLog. The number of peaks is nParams / 5, counted without regard to the offset: the last parameter read
// is P(5 m + 1).
//
// Fails for x2 <= 0, unless there is no peak, and on a range or domain error (yc < 0; a scale yc of exactly 0
// makes the peak vanish); the failing peak's component is written all the same. Widths are not tested. FF_DERIV
// sets y to the bare offset, see offset_reset.h.

#include "models/surfaces/offset_reset.h"

namespace ansatz::gauss_log {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    y[1] = P[1];
    const int peaks = n / 5;
    for (int i = 1; i <= peaks; ++i) {
        const Scalar* p = P + 1 + 5 * (i - 1);
        const Scalar A = p[1], xc = p[2], wx = p[3], yc = p[4], wy = p[5];
        if (x[2] <= 0) return fail_surface(at);
        const Real u = (x[1] - xc) / wx;
        const Real v = log(x[2] / yc) / wy;
        const Real peak = A * clamped_exp(-0.5 * (u * u + v * v));
        y[i + 1] = peak;
        if (math_error()) return fail_surface(at);
        y[1] += peak;
    }
    return success;
}

} // namespace

ANSATZ_MODEL(GaussLog, surfaces::ValueThenOffset<value>)

ANSATZ_PAGE(GaussLog, .title = "Peaks over the plane, Gaussian along x1 and log-normal along x2",
            .formula = "y = y0 + sum A exp(-(x1 - xc)^2/(2 wx^2) - ln(x2/yc)^2/(2 wy^2))",
            .parameters = {{"y0", "offset", Trait::offset}},
            .block = {{"A", "height of the peak", Trait::amplitude},
                      {"xc", "centre on x1", Trait::position},
                      {"wx", "standard deviation along x1", Trait::width, positive},
                      {"yc", "top on x2", Trait::position, Dimension{.x2 = 1}, positive},
                      {"wy", "width along x2, on the scale of ln x2", Trait::log_width, positive}},
            .layout = {.lead = 1, .block = 5, .skipped = 0}, .x = {any_number, positive},
            .typical = {{0.2, 3, 3, 1, 1.5, 0.5, 2, 7, 1.2, 4, 0.3}, 0, 10, 0.1, 8},
            .notes = "Fails for x2 <= 0 and yc < 0.")

} // namespace ansatz::gauss_log
