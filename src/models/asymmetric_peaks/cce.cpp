// CCE. Values only. The rise is taken as 1 / (1 + e^(-2 k2 (x - c2))), the same as half of 1 + tanh without its
// cancellation, and reaches its limit 0 where that exponential overflows. Blocks: see blocks.h.

#include "models/asymmetric_peaks/blocks.h"

namespace ansatz::cce {
namespace {

struct Peak {
    static constexpr int size = 8, amplitude = 1;

    static bool allows(const Scalar* p) { return !(p[2] <= 0); }

    static Real value(Real x, const Scalar* p) {
        const Scalar c1 = p[0], A = p[1], w = p[2], B = p[3], k2 = p[4], c2 = p[5], k3 = p[6], c3 = p[7];
        const Real d = x - c1, late = x - c3;
        const Real gauss = safe_exp(-(d * d) / (2 * w));
        const Real rise = 1 / (1 + blocks::saturating_exp(-2 * k2 * (x - c2)));
        const Real decay = safe_exp(-0.5 * k3 * (std::fabs(late) + late));
        return A * (gauss + B * rise * decay);
    }
};

} // namespace

ANSATZ_MODEL(CCE, blocks::ValueOrRefusal<Peak>)

ANSATZ_PAGE(
    CCE, .title = "Chromatographic peaks on a common offset, Gaussians with a tail that rises and decays",
    .formula = "y = y0 + sum A (exp(-(x - xc1)^2/(2 w)) + (B/2) (1 + tanh(k2 (x - xc2))) exp(-k3 (x - xc3 + "
               "abs(x - xc3))/2))",
    .parameters = {{"y0", "offset", Trait::offset}},
    .block = {{"xc1", "centre of the peak", Trait::position},
              {"A", "height of the peak without its tail", Trait::amplitude},
              {"w", "variance of the peak, in the squared unit of x", Trait::width, Dimension{.x = 2},
               positive},
              {"B", "size of the tail, relative to A", Trait::coefficient},
              {"k2", "rate at which the tail rises, 1/(unit of x)", Trait::rate, positive},
              {"xc2", "where the tail has half risen", Trait::position},
              {"k3", "rate at which the tail decays, 1/(unit of x)", Trait::rate, not_negative},
              {"xc3", "where the decay begins", Trait::position}},
    .typical = {{0.2, 3, 4, 0.15, 0.5, 2.5, 3.5, 0.8, 4, 11, 3, 0.3, 0.4, 2, 12, 0.6, 12.5}, 0, 20},
    .known_as = "Chesler-Cram peak", .source = "Chesler and Cram, 1973",
    .notes =
        "w is a variance: its root is the width. Fails for w <= 0, and far right for k3 < 0. A fit has many "
        "minima: start it close, with the rise and the decay where the plot shows them.")

} // namespace ansatz::cce
