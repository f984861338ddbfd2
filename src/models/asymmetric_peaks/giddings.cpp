// Giddings. The Bessel function is scaled and taken together with the exponential, (sqrt x - sqrt c)^2 being
// what is left of the exponent, so that 2 sqrt(c x)/w may be as large as it likes. Blocks: see blocks.h.

#include "models/asymmetric_peaks/blocks.h"
#include "special/bessel.h"

namespace ansatz::giddings {
namespace {

struct Peak {
    static constexpr int size = 3, amplitude = 2;

    static bool allows(const Scalar* p) { return !(p[1] <= 0 || p[0] <= 0); }

    static Real value(Real x, const Scalar* p) {
        if (x <= 0) return 0;
        const Scalar c = p[0], w = p[1], A = p[2];
        const Scalar rc = sqrt(c);
        const Real rx = sqrt(x);
        const Real h = (x - c) / (rx + rc); // rx - rc, without its cancellation
        const Real e = safe_exp(-(h * h) / w);
        if (e == 0) return 0;
        return A / w * (rc / rx) * scaled_bessel_i1(2 * rx * rc / w) * e;
    }

    static Real slopes(Real x, const Scalar* p, Real* d) {
        if (x <= 0) return blocks::nothing<size>(d);
        const Scalar c = p[0], w = p[1], A = p[2];
        const Scalar rc = sqrt(c);
        const Real rx = sqrt(x);
        const Real h = (x - c) / (rx + rc);
        const Real e = safe_exp(-(h * h) / w);
        if (e == 0) return blocks::nothing<size>(d);
        const Real t = 2 * rx * rc / w;
        const Real i1 = scaled_bessel_i1(t), i0_minus_i1 = scaled_bessel_i0_minus_i1(t);
        const Real unit = rc / rx * i1 * e / w;
        d[0] = A * e / (w * w) * (i0_minus_i1 + h / rx * i1);
        d[1] = A * e / (w * w * w) * (rc / rx) * (h * h * i1 - 2 * rx * rc * i0_minus_i1);
        d[2] = unit;
        return A * unit;
    }
};

} // namespace

ANSATZ_MODEL(Giddings, blocks::BothPaths<Peak>)

ANSATZ_PAGE(
    Giddings, .title = "Chromatographic peaks of a random walk on a common offset, each by its area",
    .formula = "y = y0 + sum (A/w) sqrt(xc/x) I1(2 sqrt(xc x)/w) exp(-(x + xc)/w) for x > 0, y0 otherwise",
    .parameters = {{"y0", "offset", Trait::offset}},
    .block = {{"xc", "centre, close to the mean", Trait::position, positive},
              {"w", "width, in the unit of x; the standard deviation is sqrt(2 w xc)", Trait::width, positive},
              {"A", "area", Trait::area}},
    .typical = {{0.2, 3, 0.1, 2, 9, 0.1, 4}, 0, 15}, .departures = {{4, "A = 0"}},
    .source = "Giddings and Eyring, 1955",
    .notes =
        "I1 is a modified Bessel function. Fails for xc <= 0 and w <= 0. Where w is not small against xc, "
        "the share exp(-xc/w) of the area is not seen, the peak being 0 for x <= 0. A peak of area 0 has no "
        "derivatives: do not start a fit there.")

} // namespace ansatz::giddings
