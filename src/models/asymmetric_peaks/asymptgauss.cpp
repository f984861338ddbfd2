// asymptgauss: a common offset and any number of Gaussian peaks whose width changes along x.
//
//   y = P1 + sum over the peaks of  A e^(-4 ln 2 (d/W)^2),   d = x - c,  W = 2 w / (1 + e^(-a d))
//
//   P1 offset; then per peak: centre c, amplitude A (the height, reached at c), width w (the full width at half
//   maximum at c), asymmetry a (a rate, per unit of x: with a > 0 the width runs from 0 far left to 2 w far
//   right; 0 is the plain Gaussian). Blocks: see blocks.h.
//
//   Fails per peak for w <= 0. Where e^(-a d) overflows the width has reached 0, and so has the peak.

#include "models/asymmetric_peaks/blocks.h"

namespace ansatz::asymptgauss {
namespace {

constexpr double four_ln_2 = 2.772588722239781;

struct Peak {
    static constexpr int size = 4, amplitude = 1;

    static bool allows(const double* p) { return !(p[2] <= 0); }

    static double value(double x, const double* p) {
        const double c = p[0], A = p[1], w = p[2], a = p[3];
        const double d = x - c;
        const double u = d * (1 + blocks::saturating_exp(-a * d)) / (2 * w);
        return A * safe_exp(-four_ln_2 * (u * u));
    }

    static double slopes(double x, const double* p, double* slope) {
        const double c = p[0], A = p[1], w = p[2], a = p[3];
        const double d = x - c;
        const double e = blocks::saturating_exp(-a * d);
        const double u = d * (1 + e) / (2 * w);
        const double g = safe_exp(-four_ln_2 * (u * u));
        if (g == 0) return blocks::nothing<size>(slope);
        const double peak = A * g;
        const double by_u = -2 * four_ln_2 * u * peak;
        slope[0] = by_u * (a * d * e - (1 + e)) / (2 * w);
        slope[1] = g;
        slope[2] = -by_u * u / w;
        slope[3] = -by_u * d * d * e / (2 * w);
        return peak;
    }
};

} // namespace

ANSATZ_MODEL(asymptgauss, blocks::BothPaths<Peak>)

ANSATZ_PAGE(asymptgauss, .title = "",
            .formula = "y = y0 + sum A exp(-4 ln(2) ((x - xc)/W)^2),  W = 2 w/(1 + exp(-a (x - xc)))",
            .parameters = {{"y0", "offset", Trait::offset}},
            .block = {{"xc", "centre, where y0 + A is reached", Trait::position},
                      {"A", "height", Trait::amplitude},
                      {"w", "full width at half maximum as it is at the centre", Trait::width},
                      {"a", "asymmetry, 1/(unit of x); positive: the longer flank is on the right",
                       Trait::constant}},
            .notes = "Fails for w <= 0. a = 0 is a Gaussian, and a fair start for a fit.")

} // namespace ansatz::asymptgauss
