// CCE: a common offset and any number of chromatographic peaks with a tail that rises and decays (Chesler and
// Cram).
//
//   y = P1 + sum over the peaks of
//       A (e^(-(x - c1)^2/(2 w)) + B (1 - (1 - tanh(k2 (x - c2)))/2) e^(-k3 (|x - c3| + (x - c3))/2))
//
//   P1 offset; then per peak: centre c1, amplitude A, variance w (a square of x's unit), relative tail
//   amplitude B, rise rate k2 and rise centre c2, decay rate k3 and decay centre c3 (no decay before it).
//   Blocks: see blocks.h.
//
//   Values only. Fails per peak for w <= 0, and where a negative decay rate lets the tail overflow. The rise is
//   taken as 1 / (1 + e^(-2 k2 (x - c2))), the same without cancellation, and reaches its limit 0 where that
//   exponential overflows.

#include "models/asymmetric_peaks/blocks.h"

namespace ansatz::chesler_cram {
namespace {

struct Peak {
    static constexpr int size = 8, amplitude = 1;

    static bool allows(const double* p) { return !(p[2] <= 0); }

    static double value(double x, const double* p) {
        const double c1 = p[0], A = p[1], w = p[2], B = p[3], k2 = p[4], c2 = p[5], k3 = p[6], c3 = p[7];
        const double d = x - c1, late = x - c3;
        const double gauss = safe_exp(-(d * d) / (2 * w));
        const double rise = 1 / (1 + blocks::saturating_exp(-2 * k2 * (x - c2)));
        const double decay = safe_exp(-0.5 * k3 * (std::fabs(late) + late));
        return A * (gauss + B * rise * decay);
    }
};

} // namespace

ANSATZ_MODEL(CCE, blocks::ValueOrRefusal<Peak>)

ANSATZ_PAGE(
    CCE, .title = "",
    .formula = "y = y0 + sum A (exp(-(x - xc1)^2/(2 w)) + (B/2) (1 + tanh(k2 (x - xc2))) exp(-k3 (x - xc3 + "
               "abs(x - xc3))/2))",
    .parameters = {{"y0", "offset", Trait::offset}},
    .block = {{"xc1", "centre of the peak", Trait::position},
              {"A", "height of the peak without its tail", Trait::amplitude},
              {"w", "variance of the peak, in the squared unit of x", Trait::constant},
              {"B", "size of the tail, relative to A", Trait::constant},
              {"k2", "rate at which the tail rises, 1/(unit of x)", Trait::rate},
              {"xc2", "where the tail has half risen", Trait::constant},
              {"k3", "rate at which the tail decays, 1/(unit of x)", Trait::rate},
              {"xc3", "where the decay begins", Trait::constant}},
    .notes = "A chromatographic peak with a tail (Chesler and Cram). w is a variance: its root is the width. "
             "Fails for w <= 0, and far right for k3 < 0. A fit has many minima: start it close, with the rise "
             "and the decay where the plot shows them, and bound k2 and k3 from below by 0.")

} // namespace ansatz::chesler_cram
