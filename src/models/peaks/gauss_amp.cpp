// GaussAmp. The number of peaks is (nParams - 1) / 3; parameters after the last whole peak are ignored.
//
// Fails for nParams <= 0, and per peak for a width of 0; a negative width counts as its absolute value in y. A
// peak of height 0 is skipped: neither its component nor its derivatives are written.

#include "protocol/forms.h"

namespace ansatz::gauss_amp {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (n <= 0) return fail(at);
    Real sum = P[1];
    const int peaks = (n - 1) / 3;
    for (int k = 1; k <= peaks; ++k) {
        const Scalar c = P[3 * k - 1], w = P[3 * k], A = P[3 * k + 1];
        if (A == 0) continue;
        if (w == 0) return fail(at);
        const Real t = (x[1] - c) / w;
        const Real peak = A * safe_exp(t * -0.5 * t);
        if (math_error()) return fail(at);
        y[k + 1] = peak;
        sum += peak;
    }
    y[1] = sum;
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (n <= 0) return fail(at);
    dyda[1] = 1;
    Real sum = P[1];
    const int peaks = (n - 1) / 3;
    for (int k = 1; k <= peaks; ++k) {
        const int centre = 3 * k - 1, width = 3 * k, height = 3 * k + 1;
        const Scalar c = P[centre], w = P[width], A = P[height];
        if (A == 0) continue;
        if (w == 0) return fail(at, 1, centre, width, height);
        const Real d = x[1] - c;
        const Real t = d / w;
        const Real e = safe_exp(t * -0.5 * t);
        if (math_error()) return fail(at, 1, centre, width, height);
        const Real by_centre = d * A * e / w / w;
        dyda[height] = e;
        dyda[centre] = by_centre;
        dyda[width] = by_centre * d / w;
        const Real peak = A * e;
        y[k + 1] = peak;
        sum += peak;
    }
    y[1] = sum;
    return success;
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
