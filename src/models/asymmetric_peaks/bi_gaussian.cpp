// BiGaussian. Fails where either width is 0, also the one not in use at this x; a negative width counts as its
// absolute value in y. The query is answered 0, but derivatives are computed on request, and they are true
// ones. Blocks: see blocks.h.

#include "models/asymmetric_peaks/blocks.h"

namespace ansatz::bi_gaussian {
namespace {

struct Peak {
    static constexpr int size = 4, amplitude = 1;

    static bool allows(const Scalar* p) { return !(p[2] == 0 || p[3] == 0); }

    static Real value(Real x, const Scalar* p) {
        const Scalar c = p[0], H = p[1];
        const Real t = (x - c) / (x < c ? p[2] : p[3]);
        return H * safe_exp(-0.5 * (t * t));
    }

    static Real slopes(Real x, const Scalar* p, Real* d) {
        const Scalar c = p[0], H = p[1];
        const int side = x < c ? 2 : 3;
        const Scalar w = p[side];
        const Real t = (x - c) / w;
        const Real g = safe_exp(-0.5 * (t * t));
        const Real peak = H * g;
        const Real by_centre = peak * t / w;
        d[0] = by_centre;
        d[1] = g;
        d[2] = d[3] = 0;
        d[side] = by_centre * t;
        return peak;
    }
};

} // namespace

ANSATZ_MODEL(BiGaussian, blocks::BothPaths<Peak, Answers{.query = 0, .probe = true}>)

ANSATZ_PAGE(BiGaussian, .title = "Peaks on a common offset, each made of two half Gaussians",
            .formula = "y = y0 + sum H exp(-(x - xc)^2/(2 w^2)),  w = w1 for x < xc, w2 otherwise",
            .parameters = {{"y0", "offset", Trait::offset}},
            .block = {{"xc", "centre, where the maximum is", Trait::position},
                      {"H", "height", Trait::amplitude},
                      {"w1", "width of the left half, a standard deviation", Trait::width, positive},
                      {"w2", "width of the right half, a standard deviation", Trait::width, positive}},
            .typical = {{0.2, 3, 2, 0.4, 1.2, 7.5, 3, 1, 0.4}, 0, 10}, .departures = {{3, "H = 0"}},
            .known_as = "two-piece normal distribution, split normal distribution", .source = "Fechner, 1897",
            .notes = "Fails for w1 = 0 and w2 = 0; a width and its negative give the same curve. A peak of "
                     "height 0 has no derivatives: do not start a fit there.")

} // namespace ansatz::bi_gaussian
