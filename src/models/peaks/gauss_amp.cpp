// GaussAmp: a common offset and any number of Gaussian peaks, each given by its height.
//
//   y = P1 + sum over the peaks of  A e^(-((x - c)/w)^2 / 2)
//
//   P1 offset; then per peak three parameters: centre c, width w (the standard deviation), height A.
//   The number of peaks is (nParams - 1) / 3; parameters behind the last whole peak are ignored.
//   y[k+1] is peak k alone, without the offset.
//
//   Fails for nParams <= 0, and per peak for a width of 0; a negative width counts as its absolute value in y.
//   A peak of height 0 is skipped, and neither its component nor its derivatives are written: clear them, or
//   keep heights away from 0, where derivatives are taken.

#include "protocol/forms.h"

namespace ansatz::gauss_amp {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (n <= 0) return fail(at);
    double sum = P[1];
    const int peaks = (n - 1) / 3;
    for (int k = 1; k <= peaks; ++k) {
        const double c = P[3 * k - 1], w = P[3 * k], A = P[3 * k + 1];
        if (A == 0) continue;
        if (w == 0) return fail(at);
        const double t = (x[1] - c) / w;
        const double peak = A * safe_exp(t * -0.5 * t);
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
    double sum = P[1];
    const int peaks = (n - 1) / 3;
    for (int k = 1; k <= peaks; ++k) {
        const int centre = 3 * k - 1, width = 3 * k, height = 3 * k + 1;
        const double c = P[centre], w = P[width], A = P[height];
        if (A == 0) continue;
        if (w == 0) return fail(at, 1, centre, width, height);
        const double d = x[1] - c;
        const double t = d / w;
        const double e = safe_exp(t * -0.5 * t);
        if (math_error()) return fail(at, 1, centre, width, height);
        const double by_centre = d * A * e / w / w;
        dyda[height] = e;
        dyda[centre] = by_centre;
        dyda[width] = by_centre * d / w;
        const double peak = A * e;
        y[k + 1] = peak;
        sum += peak;
    }
    y[1] = sum;
    return success;
}

} // namespace

ANSATZ_MODEL(GaussAmp, OnePath<value, derivatives, Answers{.probe = true}>)

ANSATZ_PAGE(GaussAmp, .title = "", .formula = "y = y0 + sum A exp(-(x - xc)^2/(2 w^2))",
            .parameters = {{"y0", "offset", Trait::offset}},
            .block = {{"xc", "centre", Trait::position},
                      {"w", "width, the standard deviation", Trait::width},
                      {"A", "height", Trait::amplitude}},
            .notes = "Gauss by its height. Fails for w = 0; w and -w give the same curve: bound w from below "
                     "by 0. A peak of height 0 has no derivatives: do not start a fit there.")

} // namespace ansatz::gauss_amp
