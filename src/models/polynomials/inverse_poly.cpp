// InvsPoly: a common offset and any number of peaks, each the reciprocal of a polynomial.
//
//   y = P1 + sum over the peaks of  A / (1 + a1 z + a2 z^2 + a3 z^3),  z = (2 (x - c) / w)^2
//
//   P1 offset; then per peak six parameters: centre c, width w, amplitude A, coefficients a1, a2, a3. Where
//   only a1 differs from 0 and is 1, the peak is a Lorentzian of the full width w at half maximum. The width is
//   redundant with the coefficients: a fit should hold one of them fixed.
//
//   The number of peaks is (nParams - 1) / 6; parameters behind the last whole peak are ignored. y[i+1] is peak
//   i alone, without the offset.
//
//   Fails where a peak with an amplitude other than 0 has a width <= 0; the value also for nParams < 1, which
//   the derivatives take for no peak. A peak of amplitude 0 is skipped: its component and its derivatives keep
//   what they held. A zero of the polynomial is not looked for: the peak is infinite there. No library function
//   is called, so a pending error passes through unseen.

#include "protocol/forms.h"

#include <cmath>

namespace ansatz::inverse_poly {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (n < 1) return fail(at);
    double sum = P[1];
    const int peaks = (n - 1) / 6;
    for (int i = 1; i <= peaks; ++i) {
        const double* const p = P + 6 * (i - 1);
        const double c = p[2], w = p[3], A = p[4], a1 = p[5], a2 = p[6], a3 = p[7];
        if (A == 0) continue;
        if (0 >= w) return fail(at);
        const double u = (x[1] - c) * 2 / w;
        const double z = u * u;
        const double D = (a3 * z + a2) * z * z + a1 * z + 1;
        const double peak = A / D;
        y[i + 1] = peak;
        sum += peak;
    }
    y[1] = sum;
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    dyda[1] = 1;
    double sum = P[1];
    const int peaks = (n - 1) / 6;
    for (int i = 1; i <= peaks; ++i) {
        const int before = 6 * (i - 1);
        const double* const p = P + before;
        double* const d = dyda + before;
        const double c = p[2], w = p[3], A = p[4], a1 = p[5], a2 = p[6], a3 = p[7];
        if (A == 0) continue;
        if (0 >= w) return fail(at, 1, before + 2, before + 3, before + 4, before + 5, before + 6, before + 7);
        const double u = (x[1] - c) * 2 / w;
        const double z = u * u;
        const double D = ((a3 * z + a2) * z + a1) * z + 1;
        const double D2 = D * D;
        const double by_A = 1 / D;
        const double by_a1 = -(A * z / D2);
        const double by_a2 = by_a1 * z;
        const double by_w = ((6 * a3 * z + 4 * a2) * z + 2 * a1) * A * z / w / D2;
        d[2] = x[1] == c ? 0 : by_w * w / (x[1] - c);
        d[3] = by_w;
        d[4] = by_A;
        d[5] = by_a1;
        d[6] = by_a2;
        d[7] = by_a2 * z;
        const double peak = by_A * A;
        y[i + 1] = peak;
        sum += peak;
    }
    y[1] = sum;
    return success;
}

/// Which coefficients of the first peak are in use: the low five, three, one or none of the bits.
std::int32_t coefficients_in_use(const double* P) {
    constexpr double threshold = 1e-10;
    if (std::fabs(P[7]) > threshold) return 31;
    if (std::fabs(P[6]) > threshold) return 7;
    if (std::fabs(P[5]) > threshold) return 1;
    return 0;
}

/// Form D, with an answer of its own to the probe.
struct Form {
    static Status serve(unsigned flags, const Point& at) {
        if (flags & FF_PROBE) return answer_probe(at, coefficients_in_use(at.P), PROBE_MASK_ANSWER);
        return BothPaths<value, derivatives>::serve(flags, at);
    }
};

} // namespace

ANSATZ_MODEL(InvsPoly, Form)

ANSATZ_PAGE(InvsPoly, .title = "", .formula = "y = y0 + sum A/(1 + b z + c z^2 + d z^3),  z = (2 (x - xc)/w)^2",
            .parameters = {{"y0", "offset", Trait::offset}},
            .block = {{"xc", "centre", Trait::position},
                      {"w", "width, above 0; for b=1, c=0, d=0 the full width at half maximum", Trait::width},
                      {"A", "amplitude: height above the offset", Trait::amplitude},
                      {"b", "coefficient of z; 1, with c = d = 0, makes it a Lorentzian", Trait::constant},
                      {"c", "coefficient of z^2", Trait::constant},
                      {"d", "coefficient of z^3", Trait::constant}},
            .notes = "Width and coefficients scale together: hold one of them fixed per peak in a fit, b=1 for "
                     "instance. Negative c or d make poles: bound them from below by 0. Fails for w <= 0. A "
                     "peak of amplitude 0 has no derivatives: do not start a fit there.")

} // namespace ansatz::inverse_poly
