// LogisticPeak. The number of terms is nParams / 4, counted without regard to the offset: the last parameter
// read is P(4 m + 1).
//
// The exponential is limited: from 300 widths below the centre on the peak is zero, without an error. A width
// of 0 is not tested; a failure only an error indicator left set by the caller can cause. FF_DERIV sets y to
// the bare offset, see offset_reset.h.

#include "models/surfaces/offset_reset.h"

namespace ansatz::logistic_peak {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    y[1] = P[1];
    const int terms = n / 4;
    for (int i = 1; i <= terms; ++i) {
        const Scalar* p = P + 1 + 4 * (i - 1);
        const Scalar s = p[1], A = p[2], xc = p[3], w = p[4];
        const Real e = clamped_exp((xc - x[1]) / w);
        if (math_error()) return fail_surface(at);
        const Real term = e * (4 * A) / (1 + e) / (1 + e) + s * x[2];
        y[i + 1] = term;
        y[1] += term;
    }
    return success;
}

} // namespace

ANSATZ_MODEL(LogisticPeak, surfaces::ValueThenOffset<value>)

ANSATZ_PAGE(
    LogisticPeak, .title = "Symmetric logistic peaks along x1 over a slope along x2",
    .formula = "y = y0 + sum (b x2 + 4 A e/(1 + e)^2),  e = exp((xc - x1)/w)",
    .parameters = {{"y0", "offset", Trait::offset}},
    .block = {{"b", "slope along x2", Trait::slope, Dimension{.y = 1, .x2 = -1}},
              {"A", "height of the peak along x1", Trait::amplitude},
              {"xc", "centre of the peak on x1", Trait::position},
              {"w", "width (as x1); full width at half maximum is 3.525 w", Trait::width, positive}},
    .block_name = "term", .layout = {.lead = 1, .block = 4, .skipped = 0},
    .typical = {{0.2, 0.2, 3, 3, 0.5, 0.1, 2, 8, 0.8}, 0, 12, 0, 6},
    .notes = "The sign of w does not matter. With several terms only the sum of b is determined: hold all but "
             "one of them.")

} // namespace ansatz::logistic_peak
