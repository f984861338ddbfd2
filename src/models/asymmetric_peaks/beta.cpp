// Beta: a common offset and any number of peaks of bounded support.
//
//   y = P1 + sum over the peaks of  A (1 + r/(p-1) z)^(p-1) (1 - r/(q-1) z)^(q-1),   z = (x - c)/w, r = p + q -
//   2
//
//   P1 offset; then per peak: centre c, amplitude A (the height, reached at c), width w (of the whole support,
//   which begins w (p-1)/r left of c), shapes p and q (left and right flank). Blocks: see blocks.h.
//
//   0 outside the support. Fails per peak for w <= 0, p <= 1 and q <= 1. The powers are taken together, through
//   their logarithms: for steep shapes one of them alone would overflow down a flank where the peak is small.

#include "models/asymmetric_peaks/blocks.h"

namespace ansatz::beta {
namespace {

struct Peak {
    static constexpr int size = 5, amplitude = 1;

    static bool allows(const double* P) { return !(P[2] <= 0 || P[3] <= 1 || P[4] <= 1); }

    static double value(double x, const double* P) {
        const double c = P[0], A = P[1], w = P[2], p = P[3], q = P[4];
        const double z = (x - c) / w, r = p + q - 2;
        const double u = r / (p - 1) * z, v = r / (q - 1) * z;
        if (1 + u <= 0 || 1 - v <= 0) return 0;
        return A * safe_exp((p - 1) * log1p(u) + (q - 1) * log1p(-v));
    }

    static double slopes(double x, const double* P, double* d) {
        const double c = P[0], A = P[1], w = P[2], p = P[3], q = P[4];
        const double z = (x - c) / w, r = p + q - 2;
        const double u = r / (p - 1) * z, v = r / (q - 1) * z;
        const double left = 1 + u, right = 1 - v;
        if (left <= 0 || right <= 0) return blocks::nothing<size>(d);
        const double ln_left = log1p(u), ln_right = log1p(-v);
        const double unit = safe_exp((p - 1) * ln_left + (q - 1) * ln_right);
        const double peak = A * unit;
        const double by_centre = peak * z * r / ((p - 1) * left) * r / ((q - 1) * right) * r / w;
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
    Beta, .title = "",
    .formula = "y = y0 + sum A B,  B = (1 + r z/(p - 1))^(p - 1) (1 - r z/(q - 1))^(q - 1) for (1 - p)/r < z < "
               "(q - 1)/r, 0 otherwise,  z = (x - xc)/w,  r = p + q - 2",
    .parameters = {{"y0", "offset", Trait::offset}},
    .block = {{"xc", "centre, where the maximum is", Trait::position},
              {"A", "height", Trait::amplitude},
              {"w", "width of the whole support, from zero to zero", Trait::width},
              {"p", "shape of the left flank, above 1", Trait::shape},
              {"q", "shape of the right flank, above 1", Trait::shape}},
    .notes =
        "0 outside its support, which begins w (p - 1)/r left of the centre. Fails for w <= 0, p <= 1 and q <= "
        "1. w, p and q are strongly correlated: the ends of the support are where there is little to see.")

} // namespace ansatz::beta
