// BiGaussian: a common offset and any number of peaks made of two half Gaussians.
//
//   y = P1 + sum over the peaks of  H e^(-((x - c)/w)^2 / 2),   w = w1 for x < c, w2 otherwise
//
//   P1 offset; then per peak: centre c, height H, left and right width w1 and w2 (standard deviations).
//   Blocks: see blocks.h.
//
//   Fails per peak where either width is 0, also the one not in use at this x; a negative width counts as its
//   absolute value in y. The query is answered 0, but derivatives are computed on request, and they are true
//   ones.

#include "models/asymmetric_peaks/blocks.h"

namespace ansatz::bigaussian {
namespace {

struct Peak {
    static constexpr int size = 4, amplitude = 1;

    static bool allows(const double* p) { return !(p[2] == 0 || p[3] == 0); }

    static double value(double x, const double* p) {
        const double c = p[0], H = p[1];
        const double t = (x - c) / (x < c ? p[2] : p[3]);
        return H * safe_exp(-0.5 * (t * t));
    }

    static double slopes(double x, const double* p, double* d) {
        const double c = p[0], H = p[1];
        const int side = x < c ? 2 : 3;
        const double w = p[side];
        const double t = (x - c) / w;
        const double g = safe_exp(-0.5 * (t * t));
        const double peak = H * g;
        const double by_centre = peak * t / w;
        d[0] = by_centre;
        d[1] = g;
        d[2] = d[3] = 0;
        d[side] = by_centre * t;
        return peak;
    }
};

} // namespace

ANSATZ_MODEL(BiGaussian, blocks::BothPaths<Peak, Answers{.query = 0, .probe = true}>)

ANSATZ_PAGE(BiGaussian, .title = "",
            .formula = "y = y0 + sum H exp(-(x - xc)^2/(2 w^2)),  w = w1 for x < xc, w2 otherwise",
            .parameters = {{"y0", "offset", Trait::offset}},
            .block = {{"xc", "centre, where the maximum is", Trait::position},
                      {"H", "height", Trait::amplitude},
                      {"w1", "width of the left half, a standard deviation", Trait::width},
                      {"w2", "width of the right half, a standard deviation", Trait::width}},
            .notes = "Fails for w1 = 0 and w2 = 0; a width and its negative give the same curve: bound both "
                     "from below by 0.")

} // namespace ansatz::bigaussian
