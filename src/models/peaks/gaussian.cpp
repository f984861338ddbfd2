// Gaussian. The constants have 14 and 15 digits; hosts rely on them.
//
// Four parameters per peak, for peak 1 with the common offset P1 before it, for later peaks with an idle slot.
// The number of peaks is nevertheless (nParams - 1) / 3: with nParams = 7 there are two peaks, and P8 is read.
// y[k+1] is peak k alone, without the offset. The derivative by an idle slot is reported as 1.
//
// The value is computed by every call, also by one that requests nothing. Fails for a width of 0, with y[1]
// alone marked; a negative width turns the peak upside down. A peak of area 0 is skipped: nothing of it is
// written.

#include "protocol/blocks.h"

namespace ansatz::gaussian {
namespace {

constexpr Scalar ln_2 = 0.69314718055994;
constexpr Scalar four_ln_2 = 2.77258872223978;
constexpr Scalar unit_area = 1.06446701943122; // sqrt(pi / (4 ln 2)), the area of a peak of width and height 1

Status compute(const Point& at, bool derivatives) {
    return add_blocks<4>(at, (at.n - 1) / 3, [&](const Scalar* p, int k) -> Outcome {
        const Scalar c = p[1], A = p[2], w = p[3];
        if (A == 0) return skipped;
        if (w == 0) return fail(at);
        const Real u = 2 * (at.x[1] - c) / w;
        const Real s = u * u * ln_2;
        const Real g = clamped_exp(-s) / (w * unit_area);
        if (math_error()) return fail(at); // the exponential is the peak's only library call
        if (derivatives) {
            Real* d = at.dyda + k;
            d[0] = 1;
            d[1] = A * g * u * four_ln_2 / w;
            d[2] = g;
            d[3] = (2 * s - 1) * A * g / w;
        }
        return A * g;
    });
}

struct Form {
    static Status serve(unsigned flags, const Point& at) {
        if (flags & FF_PROBE) return answer_probe(at);
        if (flags & FF_QUERY_DERIV) return 1;
        return compute(at, flags & FF_DERIV);
    }
};

} // namespace

ANSATZ_MODEL(Gaussian, Form)

ANSATZ_PAGE(Gaussian, .title = "A Gaussian peak on an offset, by its area and its full width at half maximum",
            .formula = "y = y0 + A/(w sqrt(pi/(4 ln(2)))) exp(-4 ln(2) ((x - xc)/w)^2)",
            .parameters = {{"y0", "offset", Trait::offset},
                           {"xc", "centre", Trait::position},
                           {"A", "area", Trait::area},
                           {"w", "width, full at half maximum", Trait::width, positive}},
            .layout = {.lead = 1, .block = 3, .stride = 4, .counted = 3}, .typical = {{0.2, 5, 4, 2}, 0, 10},
            .departures = {{1, "A = 0"}, {2, "A = 0"}, {3, "A = 0"}, {4, "A = 0"}},
            .same_as = "Gauss(y0 = y0, xc = xc, w = w/sqrt(2 ln(2)), A = A)",
            .known_as = "normal distribution, bell curve",
            .notes =
                "One peak: mind the order, area before width. Fails for w = 0; a negative w turns the peak "
                "upside down. A peak of area 0 has no derivatives: do not start a fit there. For several "
                "peaks take Gauss or GaussAmp; a program that calls this model with more parameters finds "
                "its peaks in blocks of four, of which the first is idle, although it counts one peak for "
                "every three.")

} // namespace ansatz::gaussian
