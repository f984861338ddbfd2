// LogistPK. The number of peaks is (nParams - 1) / 3; parameters after the last whole peak are ignored.
//
// Values only; a request for derivatives alone is refused with y[1] and dyda[1..nParams] marked. Fails for
// nParams <= 0. A peak of height 0 is skipped. Two ends of a call to know about: a width <= 0 returns status 1
// with the sum so far in y[1], not MISSING_VALUE; and more than 709 widths left of a centre, where the
// exponential overflows, the call succeeds with y[1] = 0, whatever the offset and the other peaks.

#include "protocol/blocks.h"

namespace ansatz::logist_pk {
namespace {

Status value(const Point& at) {
    if (at.n <= 0) return fail(at);
    return add_blocks<3>(at, (at.n - 1) / 3, [&](const Scalar* p, int) -> Outcome {
        const Scalar c = p[1], w = p[2], A = p[3];
        if (A == 0) return skipped;
        if (w <= 0) return failure;
        const Real e = safe_exp((c - at.x[1]) / w);
        if (range_error()) {
            at.y[1] = 0;
            clear_error();
            return success;
        }
        return 4 * A * e / (1 + e) / (1 + e);
    });
}

Status refuse_marked(const Point& at) {
    return reject_all(at, at.n);
}

} // namespace

ANSATZ_MODEL(LogistPK, ValueOrRefusal<value, Answers{.query = 0}, refuse_marked>)

ANSATZ_PAGE(
    LogistPK, .title = "Bell-shaped peaks on a common offset, the slopes of logistic curves",
    .formula = "y = y0 + sum 4 A exp(-(x - xc)/w)/(1 + exp(-(x - xc)/w))^2",
    .parameters = {{"y0", "offset", Trait::offset}},
    .block = {{"xc", "centre", Trait::position},
              {"w", "width; 3.53 w is the full width at half maximum", Trait::width, positive},
              {"A", "height", Trait::amplitude}},
    .typical = {{0.2, 3, 0.4, 2, 7, 0.6, 3}, 0, 10}, .known_as = "logistic distribution, sech-squared peak",
    .notes = "The area is 4 A w. Fails for w <= 0. Where x is more than 709 w left of any centre, y is 0 "
             "as a whole, without the offset and the other peaks: bound w from below by a 700th of the "
             "range of x.")

} // namespace ansatz::logist_pk
