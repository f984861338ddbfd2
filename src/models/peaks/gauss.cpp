// Gauss. The two constants have 13 digits, and 2/w^2 is applied in two orders: the bits of the value and of the
// value beside the derivatives differ, and hosts rely on both. The number of peaks is (nParams - 1) / 3;
// parameters after the last whole peak are ignored.
//
// Fails for nParams <= 0, and per peak for a width of 0 and on an error pending on entry; the derivatives let a
// domain error pass. A negative width is accepted for the value and fails for the derivatives. A peak of area 0
// is skipped: its component keeps what it held, its derivatives are 0.

#include "protocol/blocks.h"

namespace ansatz::gauss {
namespace {

constexpr Scalar sqrt_half_pi = 1.253314137316;
constexpr Scalar sqrt_2 = 1.414213562373;

Status value(const Point& at) {
    if (at.n <= 0) return fail(at);
    return add_blocks<3>(at, (at.n - 1) / 3, [&](const Scalar* p, int) -> Outcome {
        const Scalar c = p[1], w = p[2], A = p[3];
        if (A == 0) return skipped;
        if (w == 0) return fail(at);
        const Real t = (at.x[1] - c) / w;
        const Real peak = safe_exp(t * t * -2.0) * A / (w * sqrt_half_pi);
        if (math_error()) return fail(at);
        return peak;
    });
}

Status derivatives(const Point& at) {
    if (at.n <= 0) return fail(at);
    at.dyda[1] = 1;
    return add_blocks<3>(at, (at.n - 1) / 3, [&](const Scalar* p, int k) -> Outcome {
        const int centre = k + 1, width = k + 2, area = k + 3;
        const Scalar c = p[1], w = p[2], A = p[3];
        if (A == 0) {
            at.dyda[centre] = at.dyda[width] = at.dyda[area] = 0;
            return skipped;
        }
        if (w <= 0) return fail(at, 1, centre, width, area);
        const Real d = at.x[1] - c;
        const Real u = d * sqrt_2 / w;
        const Real s = u * u;
        const Real g = safe_exp(-s) / (w * sqrt_half_pi);
        at.dyda[area] = g;
        if (range_error()) return fail(at, 1, centre, width, area); // a pending domain error passes
        at.dyda[width] = (2 * s - 1) * A * g / w;
        at.dyda[centre] = at.x[1] == c ? 0 : s * (2 * A) * g / d;
        return g * A;
    });
}

} // namespace

ANSATZ_MODEL(Gauss, BothPaths<value, derivatives>)

ANSATZ_PAGE(
    Gauss, .title = "Gaussian peaks on a common offset, each by its area",
    .formula = "y = y0 + sum A/(w sqrt(pi/2)) exp(-2 ((x - xc)/w)^2)",
    .parameters = {{"y0", "offset", Trait::offset}},
    .block = {{"xc", "centre", Trait::position},
              {"w", "width, twice the standard deviation", Trait::width, positive},
              {"A", "area", Trait::area}},
    .typical = {{0.2, 3, 1.5, 2, 6.5, 2, 4}, 0, 10}, .departures = {{4, "A = 0"}},
    .known_as = "normal distribution, bell curve, Gaussian",
    .notes = "Fails for w = 0; the derivatives, and so a fit, fail for w < 0, where the value is a peak upside "
             "down. A peak of area 0 has no derivatives: do not start a fit there.")

} // namespace ansatz::gauss
