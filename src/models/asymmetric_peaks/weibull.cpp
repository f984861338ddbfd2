// Weibull3. Values only. The powers are taken through ln(S/s0), which is 0 at the centre; where S^k overflows
// the peak has reached its limit 0. Blocks: see blocks.h.

#include "models/asymmetric_peaks/blocks.h"

namespace ansatz::weibull3 {
namespace {

struct Peak {
    static constexpr int size = 4, amplitude = 1;

    static bool allows(const Scalar* p) { return !(p[2] <= 0 || p[3] <= 1); }

    static Real value(Real x, const Scalar* p) {
        const Scalar c = p[0], A = p[1], w1 = p[2], k = p[3];
        const Scalar s0_to_k = (k - 1) / k;
        const Scalar s0 = safe_pow(s0_to_k, 1 / k);
        const Real S = (x - c) / w1 + s0;
        if (S <= 0) return 0;
        const Real L = log(S / s0);
        return A * safe_exp((k - 1) * L - s0_to_k * (blocks::saturating_exp(k * L) - 1));
    }
};

} // namespace

ANSATZ_MODEL(Weibull3, blocks::ValueOrRefusal<Peak>)

ANSATZ_PAGE(Weibull3, .title = "Weibull peaks on a common offset, each by its height",
            .formula = "y = y0 + sum A f,  f = (S/s0)^(w2 - 1) exp(s0^w2 - S^w2) for S > 0, 0 otherwise,  S = "
                       "(x - xc)/w1 + s0,  s0 = (1 - 1/w2)^(1/w2)",
            .parameters = {{"y0", "offset", Trait::offset}},
            .block = {{"xc", "centre, where the maximum is", Trait::position},
                      {"A", "height", Trait::amplitude},
                      {"w1", "width: the scale of x", Trait::width, positive},
                      {"w2", "shape; about 3.6 is nearly symmetric, below it the tail is right", Trait::shape,
                       above(1)}},
            .typical = {{0.2, 2, 2, 1.5, 1.6, 7.5, 3, 3, 3.6}, 0, 12}, .known_as = "Weibull distribution",
            .source = "Weibull, 1939", .notes = "0 left of xc - w1 s0. Fails for w1 <= 0 and w2 <= 1.")

} // namespace ansatz::weibull3
