// GaussMod. Values only. Ahead of the tail the formula is a product of huge and tiny factors; there it is taken
// as A/(2 t) e^(-d^2/(2 w^2)) times the scaled function e^(b^2) erfc(b), d = x - c, b = (w/t - d/w)/sqrt 2, so
// that a peak of very short decay is the plain Gaussian to full accuracy. Blocks: see blocks.h.

#include "models/asymmetric_peaks/blocks.h"
#include "special/erfcx.h"

namespace ansatz::gauss_mod {
namespace {

struct Peak {
    static constexpr int size = 4, amplitude = 0;

    static bool allows(const Scalar* p) { return !(p[2] <= 0 || p[3] <= 0); }

    static Real value(Real x, const Scalar* p) {
        constexpr Scalar sqrt_2 = 1.4142135623730951;
        const Scalar A = p[0], c = p[1], w = p[2], t = p[3];
        const Scalar ratio = w / t;
        const Real d = x - c, z = d / w;
        const Real b = (ratio - z) / sqrt_2;
        if (b < 0) return A / (2 * t) * safe_exp(0.5 * (ratio * ratio) - d / t) * erfc(b);
        return A / (2 * t) * safe_exp(-0.5 * (z * z)) * erfcx(b);
    }
};

} // namespace

ANSATZ_MODEL(GaussMod, blocks::ValueOrRefusal<Peak>)

ANSATZ_PAGE(
    GaussMod, .title = "Exponentially modified Gaussian peaks on a common offset, each by its area",
    .formula = "y = y0 + sum A/(2 t) exp(w^2/(2 t^2) - (x - xc)/t) erfc((w/t - (x - xc)/w)/sqrt(2))",
    .parameters = {{"y0", "offset", Trait::offset}},
    .block = {{"A", "area", Trait::area},
              {"xc", "centre of the Gaussian; the mean of the peak is xc + t", Trait::position},
              {"w", "width, the standard deviation of the Gaussian", Trait::width, positive},
              {"t", "decay time of the exponential that drags out its right flank", Trait::time, positive}},
    .typical = {{0.2, 2, 2, 0.4, 0.8, 4, 7, 0.5, 1.5}, 0, 14},
    .known_as = "EMG, exponentially modified normal distribution",
    .notes = "A Gaussian convolved with an exponential decay. Mind the order: the area comes first. "
             "Fails for w <= 0 and t <= 0. A t far below w is a Gaussian, whose xc and t cannot be told "
             "apart.")

} // namespace ansatz::gauss_mod
