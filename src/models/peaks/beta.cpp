// Beta: a common offset and any number of peaks of bounded support.
//
//   y = P1 + sum over the peaks of  A (1 + r/(p-1) z)^(p-1) (1 - r/(q-1) z)^(q-1),   z = (x - c)/w, r = p + q -
//   2
//
//   P1 offset; then per peak: centre c, amplitude A (the height, reached at c), width w (of the whole support,
//   which begins w (p-1)/r left of c), shapes p and q (left and right flank). Blocks: see blocks.h.
//
//   0 outside the support. Fails per peak for w <= 0, p <= 1 and q <= 1; also, for shapes above about 700,
//   where one power alone overflows far down a flank.

#include "models/peaks/blocks.h"

namespace ansatz::beta {
namespace {

struct Peak {
    static constexpr int size = 5, amplitude = 1;

    static bool allows(const double* P) { return !(P[2] <= 0 || P[3] <= 1 || P[4] <= 1); }

    static double value(double x, const double* P) {
        const double c = P[0], A = P[1], w = P[2], p = P[3], q = P[4];
        const double z = (x - c) / w, r = p + q - 2;
        const double left = 1 + r / (p - 1) * z, right = 1 - r / (q - 1) * z;
        if (left <= 0 || right <= 0) return 0;
        return A * safe_pow(left, p - 1) * safe_pow(right, q - 1);
    }

    static double slopes(double x, const double* P, double* d) {
        const double c = P[0], A = P[1], w = P[2], p = P[3], q = P[4];
        const double z = (x - c) / w, r = p + q - 2;
        const double left = 1 + r / (p - 1) * z, right = 1 - r / (q - 1) * z;
        if (left <= 0 || right <= 0) return blocks::nothing<size>(d);
        const double unit = safe_pow(left, p - 1) * safe_pow(right, q - 1);
        const double peak = A * unit;
        d[0] = peak * z * r / ((p - 1) * left) * r / ((q - 1) * right) * r / w;
        d[1] = unit;
        d[2] = d[0] * z;
        d[3] = peak * (log(left) - z * ((q - 1) / ((p - 1) * left) + 1 / right));
        d[4] = peak * (log(right) + z * (1 / left + (p - 1) / ((q - 1) * right)));
        return peak;
    }
};

} // namespace
} // namespace ansatz::beta

ANSATZ_MODEL(Beta, ansatz::blocks::FormD<ansatz::beta::Peak>)
