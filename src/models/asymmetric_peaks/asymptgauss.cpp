// asymptgauss. Where e^(-a d) overflows the width has reached 0, and so has the peak. Blocks: see blocks.h.

#include "models/asymmetric_peaks/blocks.h"

namespace ansatz::asymptgauss {
namespace {

constexpr Scalar four_ln_2 = 2.772588722239781;

struct Peak {
    static constexpr int size = 4, amplitude = 1;

    static bool allows(const Scalar* p) { return !(p[2] <= 0); }

    static Real value(Real x, const Scalar* p) {
        const Scalar c = p[0], A = p[1], w = p[2], a = p[3];
        const Real d = x - c;
        const Real u = d * (1 + blocks::saturating_exp(-a * d)) / (2 * w);
        return A * safe_exp(-four_ln_2 * (u * u));
    }

    static Real slopes(Real x, const Scalar* p, Real* slope) {
        const Scalar c = p[0], A = p[1], w = p[2], a = p[3];
        const Real d = x - c;
        const Real e = blocks::saturating_exp(-a * d);
        const Real u = d * (1 + e) / (2 * w);
        const Real g = safe_exp(-four_ln_2 * (u * u));
        if (g == 0) return blocks::nothing<size>(slope);
        const Real peak = A * g;
        const Real by_u = -2 * four_ln_2 * u * peak;
        slope[0] = by_u * (a * d * e - (1 + e)) / (2 * w);
        slope[1] = g;
        slope[2] = -by_u * u / w;
        slope[3] = -by_u * d * d * e / (2 * w);
        return peak;
    }
};

} // namespace

ANSATZ_MODEL(asymptgauss, blocks::BothPaths<Peak>)

ANSATZ_PAGE(asymptgauss, .title = "Gaussian peaks on a common offset whose width changes along x",
            .formula = "y = y0 + sum A exp(-4 ln(2) ((x - xc)/W)^2),  W = 2 w/(1 + exp(-a (x - xc)))",
            .parameters = {{"y0", "offset", Trait::offset}},
            .block = {{"xc", "centre, where y0 + A is reached", Trait::position},
                      {"A", "height", Trait::amplitude},
                      {"w", "full width at half maximum as it is at the centre", Trait::width, positive},
                      {"a", "asymmetry, 1/(unit of x); positive: the longer flank is on the right",
                       Trait::rate}},
            .typical = {{0.2, 3, 2, 1.5, 0.8, 7, 3, 1.5, -0.6}, 0, 10}, .departures = {{3, "A = 0"}},
            .source = "Stancik and Brauns, 2008",
            .notes = "The width runs from 0 at one end of x to 2 w at the other. Fails for w <= 0. a = 0 is a "
                     "Gaussian, and a fair start for a fit. A peak of height 0 has no derivatives: do not "
                     "start a fit there.")

} // namespace ansatz::asymptgauss
