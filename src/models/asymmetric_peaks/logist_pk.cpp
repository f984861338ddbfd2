// LogistPK: a common offset and any number of bell-shaped peaks, the slopes of logistic curves.
//
//   y = P1 + sum over the peaks of  4 A e / (1 + e)^2,   e = e^((c - x)/w)
//
//   P1 offset; then per peak three parameters: centre c, width w (3.53 w is the full width at half maximum),
//   height A. The number of peaks is (nParams - 1) / 3; parameters behind the last whole peak are ignored.
//   y[k+1] is peak k alone, without the offset.
//
//   Values only; a request for derivatives alone is refused with y[1] and dyda[1..nParams] marked. Fails for
//   nParams <= 0. A peak of height 0 is skipped. Two ends of a call to know about: a width <= 0 returns status
//   1 with the sum so far in y[1], not MISSING_VALUE; and more than 709 widths left of a centre, where the
//   exponential overflows, the call succeeds with y[1] = 0, whatever the offset and the other peaks.

#include "protocol/forms.h"

namespace ansatz::logistic_pk {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (n <= 0) return fail(at);
    y[1] = P[1];
    const int peaks = (n - 1) / 3;
    for (int k = 1; k <= peaks; ++k) {
        const double c = P[3 * k - 1], w = P[3 * k], A = P[3 * k + 1];
        if (A == 0) continue;
        if (w <= 0) return failure;
        const double e = safe_exp((c - x[1]) / w);
        if (range_error()) {
            y[1] = 0;
            clear_error();
            return success;
        }
        const double peak = 4 * A * e / (1 + e) / (1 + e);
        y[k + 1] = peak;
        y[1] += peak;
    }
    return success;
}

Status refuse_marked(const Point& at) {
    return reject_all(at, at.n);
}

} // namespace

ANSATZ_MODEL(LogistPK, ValueOrRefusal<value, Answers{.query = 0}, refuse_marked>)

ANSATZ_PAGE(LogistPK, .title = "", .formula = "y = y0 + sum 4 A exp(-(x - xc)/w)/(1 + exp(-(x - xc)/w))^2",
            .parameters = {{"y0", "offset", Trait::offset}},
            .block = {{"xc", "centre", Trait::position},
                      {"w", "width; 3.53 w is the full width at half maximum", Trait::width},
                      {"A", "height", Trait::amplitude}},
            .notes = "Fails for w <= 0. Where x is more than 709 w left of any centre, y is 0 as a whole, "
                     "without the offset and the other peaks: bound w from below by a 700th of the range of x.")

} // namespace ansatz::logistic_pk
