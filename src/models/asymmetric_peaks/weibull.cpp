// Weibull3: a common offset and any number of Weibull peaks, each given by its height.
//
//   y = P1 + sum over the peaks of  A s0^(1-k) S^(k-1) e^(-S^k + s0^k),   S = (x - c)/w1 + s0,  s0 = ((k -
//   1)/k)^(1/k)
//
//   P1 offset; then per peak: centre c, amplitude A (the height, reached at c), width w1, shape k > 1 (the
//   parameter w2). 0 for S <= 0, left of the peak's beginning at c - w1 s0. Blocks: see blocks.h.
//
//   Values only. Fails per peak for w1 <= 0 and k <= 1. The powers are taken through ln(S/s0), which is 0 at
//   the centre; where S^k overflows the peak has reached its limit 0.

#include "models/asymmetric_peaks/blocks.h"

namespace ansatz::weibull3 {
namespace {

struct Peak {
    static constexpr int size = 4, amplitude = 1;

    static bool allows(const double* p) { return !(p[2] <= 0 || p[3] <= 1); }

    static double value(double x, const double* p) {
        const double c = p[0], A = p[1], w1 = p[2], k = p[3];
        const double s0_to_k = (k - 1) / k;
        const double s0 = safe_pow(s0_to_k, 1 / k);
        const double S = (x - c) / w1 + s0;
        if (S <= 0) return 0;
        const double L = log(S / s0);
        return A * safe_exp((k - 1) * L - s0_to_k * (blocks::saturating_exp(k * L) - 1));
    }
};

} // namespace

ANSATZ_MODEL(Weibull3, blocks::ValueOrRefusal<Peak>)

ANSATZ_PAGE(Weibull3, .title = "",
            .formula = "y = y0 + sum A f,  f = (S/s0)^(w2 - 1) exp(s0^w2 - S^w2) for S > 0, 0 otherwise,  S = "
                       "(x - xc)/w1 + s0,  s0 = (1 - 1/w2)^(1/w2)",
            .parameters = {{"y0", "offset", Trait::offset}},
            .block = {{"xc", "centre, where the maximum is", Trait::position},
                      {"A", "height", Trait::amplitude},
                      {"w1", "width: the scale of x", Trait::width},
                      {"w2", "shape, above 1; about 3.6 is nearly symmetric, below it the tail is right",
                       Trait::shape}},
            .notes = "0 left of xc - w1 s0. Fails for w1 <= 0 and w2 <= 1.")

} // namespace ansatz::weibull3
