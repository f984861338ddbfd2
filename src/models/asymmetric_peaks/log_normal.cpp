// LogNormal. 0 for x <= 0. Blocks: see blocks.h.

#include "models/asymmetric_peaks/blocks.h"

namespace ansatz::log_normal {
namespace {

constexpr Scalar sqrt_2_pi = 2.5066282746310002;

struct Peak {
    static constexpr int size = 3, amplitude = 2;

    static bool allows(const Scalar* p) { return !(p[1] <= 0 || p[0] <= 0); }

    static Real value(Real x, const Scalar* p) {
        const Scalar c = p[0], w = p[1], A = p[2];
        const Real ratio = x / c;
        if (ratio <= 0) return 0; // also where it is too small for a double
        const Real L = log(ratio) / w;
        const Real e = safe_exp(-0.5 * (L * L));
        if (e == 0) return 0;
        return A * (e / (sqrt_2_pi * w * x));
    }

    static Real slopes(Real x, const Scalar* p, Real* d) {
        const Scalar c = p[0], w = p[1], A = p[2];
        const Real ratio = x / c;
        if (ratio <= 0) return blocks::nothing<size>(d);
        const Real L = log(ratio) / w;
        const Real e = safe_exp(-0.5 * (L * L));
        if (e == 0) return blocks::nothing<size>(d);
        const Real unit = e / (sqrt_2_pi * w * x);
        const Real peak = A * unit;
        d[0] = peak * L / (w * c);
        d[1] = peak * (L * L - 1) / w;
        d[2] = unit;
        return peak;
    }
};

} // namespace

ANSATZ_MODEL(LogNormal, blocks::BothPaths<Peak, Answers{.probe = true}>)

ANSATZ_PAGE(LogNormal, .title = "Log-normal peaks on a common offset, each by its area",
            .formula = "y = y0 + sum A/(sqrt(2 pi) w x) exp(-ln(x/xc)^2/(2 w^2)) for x > 0, y0 otherwise",
            .parameters = {{"y0", "offset", Trait::offset}},
            .block = {{"xc", "median; the maximum is at xc exp(-w^2)", Trait::position, positive},
                      {"w", "width, the standard deviation of ln x", Trait::log_width, positive},
                      {"A", "area", Trait::area}},
            .typical = {{0.2, 2, 0.4, 2, 6, 0.2, 4}, 0, 12}, .departures = {{4, "A = 0"}},
            .known_as = "log-normal distribution, Galton distribution", .source = "McAlister, 1879",
            .notes = "Fails for xc <= 0 and w <= 0. A peak of area 0 has no derivatives: do not start a fit "
                     "there.")

} // namespace ansatz::log_normal
