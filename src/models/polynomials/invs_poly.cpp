// InvsPoly. The number of peaks is (nParams - 1) / 6; parameters after the last whole peak are ignored.
//
// Fails where a peak with an amplitude other than 0 has a width <= 0; the value also for nParams < 1, which the
// derivatives take for no peak. A peak of amplitude 0 is skipped: its component and its derivatives keep what
// they held. A zero of the polynomial is not looked for: the peak is infinite there. No library function is
// called, so a pending error passes through unseen.

#include "protocol/blocks.h"

#include <cmath>

namespace ansatz::invs_poly {
namespace {

Status value(const Point& at) {
    if (at.n < 1) return fail(at);
    return add_blocks<6>(at, (at.n - 1) / 6, [&](const Scalar* p, int) -> Outcome {
        const Scalar c = p[1], w = p[2], A = p[3], a1 = p[4], a2 = p[5], a3 = p[6];
        if (A == 0) return skipped;
        if (0 >= w) return fail(at);
        const Real u = (at.x[1] - c) * 2 / w;
        const Real z = u * u;
        const Real D = (a3 * z + a2) * z * z + a1 * z + 1;
        return A / D;
    });
}

Status derivatives(const Point& at) {
    at.dyda[1] = 1;
    return add_blocks<6>(at, (at.n - 1) / 6, [&](const Scalar* p, int k) -> Outcome {
        const Scalar c = p[1], w = p[2], A = p[3], a1 = p[4], a2 = p[5], a3 = p[6];
        if (A == 0) return skipped;
        if (0 >= w) return fail(at, 1, k + 1, k + 2, k + 3, k + 4, k + 5, k + 6);
        const Real u = (at.x[1] - c) * 2 / w;
        const Real z = u * u;
        const Real D = ((a3 * z + a2) * z + a1) * z + 1;
        const Real D2 = D * D;
        const Real by_A = 1 / D;
        const Real by_a1 = -(A * z / D2);
        const Real by_a2 = by_a1 * z;
        const Real by_w = ((6 * a3 * z + 4 * a2) * z + 2 * a1) * A * z / w / D2;
        Real* d = at.dyda + k;
        d[1] = at.x[1] == c ? 0 : by_w * w / (at.x[1] - c);
        d[2] = by_w;
        d[3] = by_A;
        d[4] = by_a1;
        d[5] = by_a2;
        d[6] = by_a2 * z;
        return by_A * A;
    });
}

/// Which coefficients of the first peak are in use: the low five, three, one or none of the bits.
std::int32_t coefficients_in_use(const Scalar* P) {
    constexpr Scalar threshold = 1e-10;
    if (std::fabs(P[7]) > threshold) return 31;
    if (std::fabs(P[6]) > threshold) return 7;
    if (std::fabs(P[5]) > threshold) return 1;
    return 0;
}

/// BothPaths, with an answer of its own to the probe.
struct Form {
    static Status serve(unsigned flags, const Point& at) {
        if (flags & FF_PROBE) return answer_probe(at, coefficients_in_use(at.P), PROBE_MASK_ANSWER);
        return BothPaths<value, derivatives>::serve(flags, at);
    }
};

} // namespace

ANSATZ_MODEL(InvsPoly, Form)

ANSATZ_PAGE(
    InvsPoly, .title = "Peaks on a common offset, each the reciprocal of a polynomial",
    .formula = "y = y0 + sum A/(1 + b z + c z^2 + d z^3),  z = (2 (x - xc)/w)^2",
    .parameters = {{"y0", "offset", Trait::offset}},
    .block = {{"xc", "centre", Trait::position},
              {"w", "width; with b = 1 and c = d = 0 the full width at half maximum", Trait::width, positive},
              {"A", "amplitude: height above the offset", Trait::amplitude},
              {"b", "coefficient of z; 1, with c = d = 0, makes the peak a Lorentzian", Trait::coefficient},
              {"c", "coefficient of z^2", Trait::coefficient},
              {"d", "coefficient of z^3; below 0 the peak has poles", Trait::coefficient, not_negative}},
    .typical = {{0.2, 3, 1.5, 2, 1, 0, 0, 7, 2, 3, 0.5, 0.3, 0.1}, 0, 10},
    .departures = {{2, "A = 0"}, {3, "A = 0"}, {4, "A = 0"}, {5, "A = 0"}, {6, "A = 0"}, {7, "A = 0"}},
    .notes = "Width and coefficients scale together: hold one of them fixed per peak in a fit, b = 1 for "
             "instance. Negative coefficients may make poles: bound c and d from below by 0. Fails for w <= 0. "
             "A peak of amplitude 0 has no derivatives: do not start a fit there.")

} // namespace ansatz::invs_poly
