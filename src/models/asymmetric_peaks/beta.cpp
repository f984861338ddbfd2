// Beta. The powers are taken together, through their logarithms: for steep shapes one of them alone would
// overflow down a flank where the peak is small. Blocks: see blocks.h.

#include "models/asymmetric_peaks/blocks.h"

namespace ansatz::beta {
namespace {

struct Peak {
    static constexpr int size = 5, amplitude = 1;

    static bool allows(const Scalar* P) { return !(P[2] <= 0 || P[3] <= 1 || P[4] <= 1); }

    static Real value(Real x, const Scalar* P) {
        const Scalar c = P[0], A = P[1], w = P[2], p = P[3], q = P[4];
        const Scalar r = p + q - 2;
        const Real z = (x - c) / w;
        const Real u = r / (p - 1) * z, v = r / (q - 1) * z;
        if (1 + u <= 0 || 1 - v <= 0) return 0;
        return A * safe_exp((p - 1) * log1p(u) + (q - 1) * log1p(-v));
    }

    static Real slopes(Real x, const Scalar* P, Real* d) {
        const Scalar c = P[0], A = P[1], w = P[2], p = P[3], q = P[4];
        const Scalar r = p + q - 2;
        const Real z = (x - c) / w;
        const Real u = r / (p - 1) * z, v = r / (q - 1) * z;
        const Real left = 1 + u, right = 1 - v;
        if (left <= 0 || right <= 0) return blocks::nothing<size>(d);
        const Real ln_left = log1p(u), ln_right = log1p(-v);
        const Real unit = safe_exp((p - 1) * ln_left + (q - 1) * ln_right);
        const Real peak = A * unit;
        const Real by_centre = peak * z * r / ((p - 1) * left) * r / ((q - 1) * right) * r / w;
        d[0] = by_centre;
        d[1] = unit;
        d[2] = by_centre * z;
        // By p: ln(left) - z (q-1)/((p-1) left) - z/right, less its terms linear in z, which cancel. So by q.
        d[3] = peak * ((ln_left - u) + z * (u * (q - 1) / ((p - 1) * left) - v / right));
        d[4] = peak * ((ln_right + v) + z * (v * (p - 1) / ((q - 1) * right) - u / left));
        return peak;
    }
};

} // namespace

ANSATZ_MODEL(Beta, blocks::BothPaths<Peak>)

ANSATZ_PAGE(
    Beta, .title = "Peaks of bounded support on a common offset, the shape of a beta distribution",
    .formula = "y = y0 + sum A B,  B = (1 + r z/(p - 1))^(p - 1) (1 - r z/(q - 1))^(q - 1) for (1 - p)/r < z < "
               "(q - 1)/r, 0 otherwise,  z = (x - xc)/w,  r = p + q - 2",
    .parameters = {{"y0", "offset", Trait::offset}},
    .block = {{"xc", "centre, where the maximum is", Trait::position},
              {"A", "height", Trait::amplitude},
              {"w", "width of the whole support, from zero to zero", Trait::width, positive},
              {"p", "shape of the left flank", Trait::shape, above(1)},
              {"q", "shape of the right flank", Trait::shape, above(1)}},
    .typical = {{0.2, 3, 2, 4, 2, 4, 7, 3, 4, 5, 2.5}, 0, 10}, .departures = {{3, "A = 0"}},
    .known_as = "beta distribution",
    .notes =
        "0 outside its support, which begins w (p - 1)/r left of the centre. Fails for w <= 0, p <= 1 and q "
        "<= 1. w, p and q are strongly correlated: the ends of the support are where there is little to "
        "see. A peak of height 0 has no derivatives: do not start a fit there.")

} // namespace ansatz::beta
