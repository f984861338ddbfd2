// GaussMod: a common offset and any number of exponentially modified Gaussian peaks, each given by its area.
//
//   y = P1 + sum over the peaks of  A/(2 t) e^(w^2/(2 t^2) - d/t) erfc((w/t - d/w)/sqrt 2),   d = x - c
//
//   P1 offset; then per peak: area A, centre c and width w (standard deviation) of the Gaussian, decay time t
//   of the exponential that it is convolved with. The mean of the peak is c + t. Blocks: see blocks.h.
//
//   Values only. Fails per peak for w <= 0 and t <= 0. Ahead of the tail the formula is a product of huge and
//   tiny factors; there it is taken as A/(2 t) e^(-d^2/(2 w^2)) times the scaled function e^(b^2) erfc(b), so
//   that a peak of very short decay is the plain Gaussian to full accuracy.

#include "models/asymmetric_peaks/blocks.h"
#include "special/erfcx.h"

namespace ansatz::gauss_mod {
namespace {

struct Peak {
    static constexpr int size = 4, amplitude = 0;

    static bool allows(const double* p) { return !(p[2] <= 0 || p[3] <= 0); }

    static double value(double x, const double* p) {
        constexpr double sqrt_2 = 1.4142135623730951;
        const double A = p[0], c = p[1], w = p[2], t = p[3];
        const double d = x - c, z = d / w, ratio = w / t;
        const double b = (ratio - z) / sqrt_2;
        if (b < 0) return A / (2 * t) * safe_exp(0.5 * (ratio * ratio) - d / t) * erfc(b);
        return A / (2 * t) * safe_exp(-0.5 * (z * z)) * erfcx(b);
    }
};

} // namespace

ANSATZ_MODEL(GaussMod, blocks::ValueOrRefusal<Peak>)

ANSATZ_PAGE(GaussMod, .title = "",
            .formula = "y = y0 + sum A/(2 t) exp(w^2/(2 t^2) - (x - xc)/t) erfc((w/t - (x - xc)/w)/sqrt(2))",
            .parameters = {{"y0", "offset", Trait::offset}},
            .block = {{"A", "area", Trait::area},
                      {"xc", "centre of the Gaussian; the mean of the peak is xc + t", Trait::position},
                      {"w", "width, the standard deviation of the Gaussian", Trait::width},
                      {"t", "decay time of the exponential that drags out its right flank", Trait::constant}},
            .notes = "Mind the order: the area comes first. Fails for w <= 0 and t <= 0. A t far below w is a "
                     "Gaussian, whose xc and t cannot be told apart.")

} // namespace ansatz::gauss_mod
