// Voigt5. The number of peaks is (nParams - 1) / 4; parameters after the last whole peak are ignored. A peak of
// area 0 is skipped, whatever its widths: its component keeps what it held. Fails for nParams < 1 and for a
// width of exactly 0; negative widths give a number, though no peak that means anything. The Voigt function
// errs by up to 2.4e-6 of its height (measured for wL/wG from 0.001 to 100). Its constants have nine digits.
//
// The first peak comes out right. To every further peak the Voigt function of the peak computed before it is
// added, unless the further peak is seen from far in its Gaussian wing (region II below, |X| < 12): results of
// more than one peak differ from a sum of Voigt profiles, and depend on the order of the peaks. Hosts rely on
// all of that.

#include "protocol/blocks.h"

namespace ansatz::voigt {
namespace {

constexpr Scalar unit_gauss = 0.939437278; // 2 sqrt(ln 2 / pi), the height of a Gaussian of width and area 1
constexpr Scalar two_sqrt_ln_2 = 1.665109222;
constexpr Scalar sqrt_ln_2 = 0.832554611;

// Humlicek's rational approximation of the complex probability function with twelve points, 1979.
constexpr int nodes = 6;
constexpr Scalar T[nodes] = {0.314240376, 0.947788391, 1.59768264, 2.27950708, 3.02063703, 3.8897249};
constexpr Scalar C[nodes] = {1.01172805,   -0.75197147,     0.012557727,
                             0.0100220082, -0.000242068135, 5.00848061e-07};
constexpr Scalar S[nodes] = {1.39323,       0.231152406,    -0.155351466,
                             0.00621836624, 9.19082986e-05, -6.27525958e-07};

/// Region I, around the peak.
void add_near(Real X, Scalar Y, Real& K) {
    const Scalar Y1 = Y + 1.5, Y2 = Y1 * Y1;
    for (int i = 0; i < nodes; ++i) {
        const Real R = X - T[i], D = 1 / (R * R + Y2);
        const Real Rp = X + T[i], Dp = 1 / (Rp * Rp + Y2);
        K += C[i] * (Y1 * D + Y1 * Dp) - S[i] * (R * D - Rp * Dp);
    }
}

/// Region II, the wings of a nearly Gaussian peak: corrections to its exponential.
void add_far(Real X, Scalar Y, Real& K) {
    const Scalar Y1 = Y + 1.5, Y2 = Y1 * Y1, Y3 = Y + 3;
    const auto term = [&](Real R, Scalar c, Scalar s) {
        const Real D = 1 / (R * R + Y2), RD = R * D;
        return Y * (c * (R * RD - 1.5 * Y1 * D) + s * Y3 * RD) / (R * R + 2.25);
    };
    for (int i = 0; i < nodes; ++i) {
        K += term(X - T[i], C[i], S[i]);
        K += term(X + T[i], C[i], -S[i]);
    }
}

/// Adds the Voigt function, the real part K(X, Y) of the probability function, to what K holds already. False
/// where an error is pending.
bool add_voigt(Real X, Scalar Y, Real& K) {
    const Real size = std::fabs(X);
    if (Y > 0.85 || size < 18.1 * Y + 1.65) {
        add_near(X, Y, K);
        return true;
    }
    if (size < 12) {
        K = safe_exp(-(X * X));
        if (math_error()) return false;
    }
    add_far(X, Y, K);
    return true;
}

Status value(const Point& at) {
    if (at.n < 1) return fail(at);
    Real K = 0; // goes from one peak into the next
    return add_blocks<4>(at, (at.n - 1) / 4, [&](const Scalar* p, int) -> Outcome {
        const Scalar c = p[1], A = p[2], wG = p[3], wL = p[4];
        if (A == 0) return skipped;
        if (wG == 0 || wL == 0) return fail(at);
        const Real X = (at.x[1] - c) * two_sqrt_ln_2 / wG;
        const Scalar Y = wL * sqrt_ln_2 / wG;
        if (!add_voigt(X, Y, K)) return fail(at);
        return A * (K * unit_gauss / wG);
    });
}

} // namespace

ANSATZ_MODEL(Voigt5, ValueOrRefusal<value, Answers{.query = 0, .probe = true}>)

ANSATZ_PAGE(Voigt5, .title = "Voigt peaks on a common offset, each by its area",
            .formula = "y = y0 + sum A voigt(x - xc, wG, wL)", .parameters = {{"y0", "offset", Trait::offset}},
            .block = {{"xc", "centre", Trait::position},
                      {"A", "area", Trait::area},
                      {"wG", "width of the Gaussian part, full at half maximum", Trait::width, positive},
                      {"wL", "width of the Lorentzian part, full at half maximum", Trait::width, positive}},
            .typical = {{0.2, 5, 4, 1, 0.8}, 0, 10}, .known_as = "Voigt profile", .source = "Voigt, 1912",
            .notes = "voigt(d, wG, wL) is a Gaussian and a Lorentzian of these widths, convolved, of area 1 "
                     "around d = 0. Good to 3e-6 of the height. Fails for wG = 0 and wL = 0, so a pure "
                     "Gaussian or Lorentzian is out of reach. Meant for one peak: each further one has the "
                     "shape of the peak before it added, so that the areas of several peaks are not their own. "
                     "Take PsdVoigt1 or PsdVoigt2 for those.")

} // namespace ansatz::voigt
