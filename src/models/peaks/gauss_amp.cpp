// GaussAmp. The number of peaks is (nParams - 1) / 3; parameters after the last whole peak are ignored.
//
// Fails for nParams <= 0, and per peak for a width of 0; a negative width counts as its absolute value in y. A
// peak of height 0 is skipped: neither its component nor its derivatives are written.

#include "protocol/blocks.h"

namespace ansatz::gauss_amp {
namespace {

Status value(const Point& at) {
    if (at.n <= 0) return fail(at);
    return add_blocks<3>(at, (at.n - 1) / 3, [&](const Scalar* p, int) -> Outcome {
        const Scalar c = p[1], w = p[2], A = p[3];
        if (A == 0) return skipped;
        if (w == 0) return fail(at);
        const Real t = (at.x[1] - c) / w;
        const Real peak = A * safe_exp(t * -0.5 * t);
        if (math_error()) return fail(at);
        return peak;
    });
}

Status derivatives(const Point& at) {
    if (at.n <= 0) return fail(at);
    at.dyda[1] = 1;
    return add_blocks<3>(at, (at.n - 1) / 3, [&](const Scalar* p, int k) -> Outcome {
        const int centre = k + 1, width = k + 2, height = k + 3;
        const Scalar c = p[1], w = p[2], A = p[3];
        if (A == 0) return skipped;
        if (w == 0) return fail(at, 1, centre, width, height);
        const Real d = at.x[1] - c;
        const Real t = d / w;
        const Real e = safe_exp(t * -0.5 * t);
        if (math_error()) return fail(at, 1, centre, width, height);
        const Real by_centre = d * A * e / w / w;
        at.dyda[height] = e;
        at.dyda[centre] = by_centre;
        at.dyda[width] = by_centre * d / w;
        return A * e;
    });
}

} // namespace

ANSATZ_MODEL(GaussAmp, OnePath<value, derivatives, Answers{.probe = true}>)

ANSATZ_PAGE(GaussAmp, .title = "Gaussian peaks on a common offset, each by its height",
            .formula = "y = y0 + sum A exp(-(x - xc)^2/(2 w^2))",
            .parameters = {{"y0", "offset", Trait::offset}},
            .block = {{"xc", "centre", Trait::position},
                      {"w", "width, the standard deviation", Trait::width, positive},
                      {"A", "height", Trait::amplitude}},
            .typical = {{0.2, 3, 0.75, 1, 6.5, 1, 1.5}, 0, 10},
            .departures = {{2, "A = 0"}, {3, "A = 0"}, {4, "A = 0"}},
            .same_as = "Gauss(y0 = y0, xc = xc, w = 2 w, A = A w sqrt(2 pi))",
            .known_as = "Gaussian function, bell curve",
            .notes = "Fails for w = 0; w and -w give the same curve. A peak of height 0 has no derivatives: do "
                     "not start a fit there.")

} // namespace ansatz::gauss_amp
