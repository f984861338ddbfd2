// LogisticPeak: a common offset and any number of terms, each a logistic peak along x1 on a slope along x2.
//
//   z = P1 + sum over the terms of  4 A e / (1 + e)^2 + s x2,   e = e^(-(x1 - xc)/w)
//
//   P1 offset; then per term slope s along x2, height A of the peak, its centre xc and width w (same unit as
//   x1). The number of terms is nParams / 4, counted without regard to the offset: the last parameter read is
//   P(4 m + 1). y[i+1] is term i alone, without the offset.
//
//   The exponential is limited: from 300 widths below the centre on the peak is zero, without an error. A width
//   of 0 is not tested. A failure, which only an error indicator left set by the caller can cause, writes
//   MISSING_VALUE into x[2]. No derivatives: FF_DERIV sets y to the bare offset, see offset_reset.h.

#include "models/surfaces/offset_reset.h"

namespace ansatz::logisticpeak {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    y[1] = P[1];
    const int terms = n / 4;
    for (int i = 1; i <= terms; ++i) {
        const double* p = P + 1 + 4 * (i - 1);
        const double s = p[1], A = p[2], xc = p[3], w = p[4];
        const double e = clamped_exp((xc - x[1]) / w);
        if (math_error()) return fail_surface(at);
        const double term = e * (4 * A) / (1 + e) / (1 + e) + s * x[2];
        y[i + 1] = term;
        y[1] += term;
    }
    return success;
}

} // namespace

ANSATZ_MODEL(LogisticPeak, surfaces::ValueThenOffset<value>)

ANSATZ_PAGE(
    LogisticPeak, .title = "", .formula = "y = y0 + sum (b x2 + 4 A e/(1 + e)^2),  e = exp((xc - x1)/w)",
    .parameters = {{"y0", "offset", Trait::offset}},
    .block = {{"b", "slope along x2", Trait::slope},
              {"A", "height of the peak along x1", Trait::amplitude},
              {"xc", "centre of the peak on x1", Trait::position},
              {"w", "width (as x1); full width at half maximum is 3.525 w", Trait::width}},
    .block_name = "term", .layout = {.lead = 1, .block = 4, .skipped = 0},
    .notes =
        "A symmetric peak along x1 on a slope along x2. With several terms only the sum of b is determined.")

} // namespace ansatz::logisticpeak
