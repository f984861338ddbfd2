// Giddings: a common offset and any number of chromatographic peaks, each given by its area.
//
//   y = P1 + sum over the peaks of  A/w sqrt(c/x) I1(2 sqrt(c x)/w) e^(-(x + c)/w)
//
//   P1 offset; then per peak: centre c, width w, area A (of the signal; where w is not small against c,
//   the share e^(-c/w) of it is not seen, the peak being 0 for x <= 0). Blocks: see blocks.h.
//
//   Fails per peak for w <= 0 and c <= 0. The Bessel function is scaled and taken together with the
//   exponential, (sqrt x - sqrt c)^2 being what is left of the exponent, so that 2 sqrt(c x)/w may be as large
//   as it likes.

#include "models/asymmetric_peaks/blocks.h"
#include "special/bessel.h"

namespace ansatz::giddings {
namespace {

struct Peak {
    static constexpr int size = 3, amplitude = 2;

    static bool allows(const double* p) { return !(p[1] <= 0 || p[0] <= 0); }

    static double value(double x, const double* p) {
        if (x <= 0) return 0;
        const double c = p[0], w = p[1], A = p[2];
        const double rx = sqrt(x), rc = sqrt(c);
        const double h = (x - c) / (rx + rc); // rx - rc, without its cancellation
        const double e = safe_exp(-(h * h) / w);
        if (e == 0) return 0;
        return A / w * (rc / rx) * scaled_bessel_i1(2 * rx * rc / w) * e;
    }

    static double slopes(double x, const double* p, double* d) {
        if (x <= 0) return blocks::nothing<size>(d);
        const double c = p[0], w = p[1], A = p[2];
        const double rx = sqrt(x), rc = sqrt(c);
        const double h = (x - c) / (rx + rc);
        const double e = safe_exp(-(h * h) / w);
        if (e == 0) return blocks::nothing<size>(d);
        const double t = 2 * rx * rc / w;
        const double i1 = scaled_bessel_i1(t), i0_minus_i1 = scaled_bessel_i0_minus_i1(t);
        const double unit = rc / rx * i1 * e / w;
        d[0] = A * e / (w * w) * (i0_minus_i1 + h / rx * i1);
        d[1] = A * e / (w * w * w) * (rc / rx) * (h * h * i1 - 2 * rx * rc * i0_minus_i1);
        d[2] = unit;
        return A * unit;
    }
};

} // namespace

ANSATZ_MODEL(Giddings, blocks::BothPaths<Peak>)

ANSATZ_PAGE(
    Giddings, .title = "",
    .formula = "y = y0 + sum (A/w) sqrt(xc/x) I1(2 sqrt(xc x)/w) exp(-(x + xc)/w) for x > 0, y0 otherwise",
    .parameters = {{"y0", "offset", Trait::offset}},
    .block = {{"xc", "centre, close to the mean", Trait::position},
              {"w", "width, in the unit of x; the standard deviation is sqrt(2 w xc)", Trait::width},
              {"A", "area", Trait::area}},
    .notes = "The chromatographic peak of a random walk; I1 is a modified Bessel function. Fails for xc <= 0 "
             "and w <= 0.")

} // namespace ansatz::giddings
