// GaussLog: a common offset and any number of peaks, Gaussian along x1 and log-normal along x2.
//
//   z = P1 + sum over the peaks of  A e^(-(u^2 + v^2)/2),   u = (x1 - xc)/wx, v = ln(x2/yc)/wy
//
//   P1 offset; then per peak height A, centre xc and width wx (standard deviation) on x1, scale yc on x2 (same
//   unit as x2), log-width wy (no unit). The number of peaks is nParams / 5, counted without regard to the
//   offset: the last parameter read is P(5 m + 1). y[i+1] is peak i alone, without the offset.
//
//   A failure writes MISSING_VALUE into x[2] and leaves y[1] and the components as they stand, the failing
//   peak's included. The call fails for x2 <= 0, unless there is no peak, and on a range or domain error (yc <
//   0; a scale of exactly 0 makes the peak vanish). Widths are not tested. No derivatives: FF_DERIV sets y to
//   the bare offset, see offset_reset.h.

#include "models/surfaces/offset_reset.h"

namespace ansatz::gausslog {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    y[1] = P[1];
    const int peaks = n / 5;
    for (int i = 1; i <= peaks; ++i) {
        const double* p = P + 1 + 5 * (i - 1);
        const double A = p[1], xc = p[2], wx = p[3], yc = p[4], wy = p[5];
        if (x[2] <= 0) return fail_surface(at);
        const double u = (x[1] - xc) / wx;
        const double v = log(x[2] / yc) / wy;
        const double peak = A * clamped_exp(-0.5 * (u * u + v * v));
        y[i + 1] = peak;
        if (math_error()) return fail_surface(at);
        y[1] += peak;
    }
    return success;
}

} // namespace

ANSATZ_MODEL(GaussLog, surfaces::ValueThenOffset<value>)

ANSATZ_PAGE(GaussLog, .title = "",
            .formula = "y = y0 + sum A exp(-(x1 - xc)^2/(2 wx^2) - ln(x2/yc)^2/(2 wy^2))",
            .parameters = {{"y0", "offset", Trait::offset}},
            .block = {{"A", "height of the peak", Trait::amplitude},
                      {"xc", "centre on x1", Trait::position},
                      {"wx", "standard deviation along x1", Trait::width},
                      {"yc", "top on x2", Trait::level},
                      {"wy", "width along x2, on the scale of ln x2", Trait::width}},
            .layout = {.lead = 1, .block = 5, .skipped = 0},
            .notes = "Gaussian along x1, log-normal along x2. Fails for x2 <= 0 and yc < 0.")

} // namespace ansatz::gausslog
