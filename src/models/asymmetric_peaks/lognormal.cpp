// LogNormal: a common offset and any number of log-normal peaks, each given by its area.
//
//   y = P1 + sum over the peaks of  A/(sqrt(2 pi) w x) e^(-ln(x/c)^2 / (2 w^2)),   0 for x <= 0
//
//   P1 offset; then per peak: centre c (the median; the maximum is at c e^(-w^2)), width w (the standard
//   deviation of ln x), area A. Blocks: see blocks.h.
//
//   Fails per peak for w <= 0 and c <= 0.

#include "models/asymmetric_peaks/blocks.h"

namespace ansatz::lognormal {
namespace {

constexpr double sqrt_2_pi = 2.5066282746310002;

struct Peak {
    static constexpr int size = 3, amplitude = 2;

    static bool allows(const double* p) { return !(p[1] <= 0 || p[0] <= 0); }

    static double value(double x, const double* p) {
        const double c = p[0], w = p[1], A = p[2];
        const double ratio = x / c;
        if (ratio <= 0) return 0; // also where it is too small for a double
        const double L = log(ratio) / w;
        const double e = safe_exp(-0.5 * (L * L));
        if (e == 0) return 0;
        return A * (e / (sqrt_2_pi * w * x));
    }

    static double slopes(double x, const double* p, double* d) {
        const double c = p[0], w = p[1], A = p[2];
        const double ratio = x / c;
        if (ratio <= 0) return blocks::nothing<size>(d);
        const double L = log(ratio) / w;
        const double e = safe_exp(-0.5 * (L * L));
        if (e == 0) return blocks::nothing<size>(d);
        const double unit = e / (sqrt_2_pi * w * x);
        const double peak = A * unit;
        d[0] = peak * L / (w * c);
        d[1] = peak * (L * L - 1) / w;
        d[2] = unit;
        return peak;
    }
};

} // namespace

ANSATZ_MODEL(LogNormal, blocks::BothPaths<Peak, Answers{.probe = true}>)

ANSATZ_PAGE(LogNormal, .title = "",
            .formula = "y = y0 + sum A/(sqrt(2 pi) w x) exp(-ln(x/xc)^2/(2 w^2)) for x > 0, y0 otherwise",
            .parameters = {{"y0", "offset", Trait::offset}},
            .block = {{"xc", "median; the maximum is at xc exp(-w^2)", Trait::constant},
                      {"w", "width, the standard deviation of ln x", Trait::width},
                      {"A", "area", Trait::area}},
            .notes = "Fails for xc <= 0 and w <= 0.")

} // namespace ansatz::lognormal
