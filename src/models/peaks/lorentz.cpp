// Lorentz. The number of peaks is (nParams - 1) / 3; parameters after the last whole peak are ignored.
//
// Fails for nParams <= 0. The value fails for P3 <= 0, the width of the first peak, and where a peak's
// denominator is 0; later widths may be negative, which turns the peak upside down. The derivatives test one
// width only, see Form; a zero width further on divides by zero. No library function is called, so a pending
// error passes through unseen.

#include "protocol/blocks.h"

namespace ansatz::lorentz {
namespace {

constexpr Scalar pi = 3.141592653589793;
constexpr Scalar two_pi = 6.283185307179586;

/// A width that the host did not supply passes every test.
bool supplied(const Point& at, int slot) {
    return slot <= at.n;
}

Status value(const Point& at) {
    if (at.n <= 0) return fail(at);
    if (supplied(at, 3) && at.P[3] <= 0) return fail(at);
    return add_blocks<3>(at, (at.n - 1) / 3, [&](const Scalar* p, int) -> Outcome {
        const Scalar c = p[1], w = p[2], A = p[3];
        const Real d = at.x[1] - c;
        const Real den = d * (d * 4) + w * w;
        if (den == 0) return fail(at);
        return 2 * A / pi * (w / den);
    });
}

/// `summed` is the number of peaks that a value pass of the same call has summed.
Status derivatives(const Point& at, int summed) {
    if (at.n <= 0) return fail(at);
    const int tested = 3 * summed + 3;
    if (supplied(at, tested) && !(at.P[tested] > 0)) return fail(at, 1, tested - 1, tested, tested + 1);
    at.dyda[1] = 1;
    return add_blocks<3>(at, (at.n - 1) / 3, [&](const Scalar* p, int k) -> Outcome {
        const Scalar c = p[1], w = p[2], A = p[3];
        const Real u = (at.x[1] - c) * 2 / w;
        const Real q = 2 / ((u * u + 1) * (w * pi));
        const Real peak = q * A;
        Real* d = at.dyda + k;
        d[1] = q * (u * two_pi * peak);
        d[2] = (u * (w * pi * u) * q - 1) * peak / w;
        d[3] = q;
        return peak;
    });
}

/// BothPaths, but for the width that the derivatives test: the first peak's when they are requested alone, and
/// the one after the last peak when a value pass came before, if the host supplied that many parameters.
struct Form {
    static Status serve(unsigned flags, const Point& at) {
        if (flags & FF_PROBE) return answer_probe(at);
        if (flags & FF_QUERY_DERIV) return 1;
        if (flags & FF_VALUE) {
            if (const Status status = value(at); status != success) return status;
        }
        if (!(flags & FF_DERIV)) return success;
        return derivatives(at, flags & FF_VALUE ? (at.n - 1) / 3 : 0);
    }
};

} // namespace

ANSATZ_MODEL(Lorentz, Form)

ANSATZ_PAGE(Lorentz, .title = "Lorentzian peaks on a common offset, each by its area",
            .formula = "y = y0 + sum 2 A w/(pi (4 (x - xc)^2 + w^2))",
            .parameters = {{"y0", "offset", Trait::offset}},
            .block = {{"xc", "centre", Trait::position},
                      {"w", "width, full at half maximum", Trait::width, positive},
                      {"A", "area", Trait::area}},
            .typical = {{0.2, 3, 1, 2, 6.5, 1.5, 4}, 0, 10},
            .known_as = "Cauchy distribution, Breit-Wigner distribution",
            .notes = "Fails for w <= 0 of the first peak. Further widths may be negative, which turns the peak "
                     "upside down, and give no numbers where they are 0.")

} // namespace ansatz::lorentz
