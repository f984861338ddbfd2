// Extreme. The number of peaks is (nParams - 1) / 3; parameters after the last whole peak are ignored.
//
// Fails for nParams <= 0 and for a width <= 0, with y[1] alone marked. A peak of height 0 is skipped; its
// derivatives are 0. More than 709 widths left of a centre the inner exponential overflows: the value skips the
// peak and goes on, while a request for derivatives ends there, successfully, with y[1] = 0 and that peak's
// derivatives 0. Domain errors are not looked at.

#include "protocol/forms.h"

namespace ansatz::extreme {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (n <= 0) return fail(at);
    Real sum = P[1];
    const int peaks = (n - 1) / 3;
    for (int k = 1; k <= peaks; ++k) {
        const Scalar c = P[3 * k - 1], w = P[3 * k], A = P[3 * k + 1];
        if (A == 0) continue;
        if (w <= 0) return fail(at);
        const Real t = (x[1] - c) / w;
        const Real e1 = safe_exp(-t);
        if (range_error()) {
            clear_error();
            continue;
        }
        const Real e2 = safe_exp(1 - e1 - t);
        if (range_error()) return fail(at);
        const Real peak = A * e2;
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
        if (A == 0) {
            dyda[centre] = dyda[width] = dyda[height] = 0;
            continue;
        }
        if (w <= 0) return fail(at);
        const Real t = (x[1] - c) / w;
        const Real e1 = safe_exp(-t);
        if (range_error()) {
            clear_error();
            y[1] = dyda[centre] = dyda[width] = dyda[height] = 0;
            return success;
        }
        const Real u = 1 - e1;
        const Real e2 = safe_exp(u - t);
        if (range_error()) return fail(at, centre, width, height);
        const Real by_centre = u * A * e2 / w;
        dyda[height] = e2;
        dyda[centre] = by_centre;
        dyda[width] = by_centre * t;
        const Real peak = A * e2;
        y[k + 1] = peak;
        sum += peak;
    }
    y[1] = sum;
    return success;
}

} // namespace

ANSATZ_MODEL(Extreme, OnePath<value, derivatives>)

ANSATZ_PAGE(Extreme, .title = "Extreme-value peaks on a common offset, each by its height",
            .formula = "y = y0 + sum A exp(1 - exp(-(x - xc)/w) - (x - xc)/w)",
            .parameters = {{"y0", "offset", Trait::offset}},
            .block = {{"xc", "centre, where the maximum is", Trait::position},
                      {"w", "width; 2.45 w is the full width at half maximum", Trait::width, positive},
                      {"A", "height", Trait::amplitude}},
            .typical = {{0.2, 2.5, 0.5, 2, 6, 0.8, 3}, 0, 12}, .departures = {{4, "A = 0"}},
            .known_as = "Gumbel distribution, extreme value distribution of type I",
            .source = "Fisher and Tippett, 1928",
            .notes = "The long tail is on the right; the area is e A w. Fails for w <= 0. Where x is more than "
                     "709 w left of a centre, there are no derivatives from that peak on: bound w from below "
                     "by a 700th of the range of x. A peak of height 0 has no derivatives either: do not start "
                     "a fit there.")

} // namespace ansatz::extreme
