// The frame of the peak surfaces with a width per axis: a common offset and any number of peaks over the plane.
//
//   P1 offset; then per peak a block that begins with amplitude A, centre xc and width wx on x1, centre yc and
//   width wy on x2. The number of peaks is (nParams - 1) / 5, or / 6 for a shape whose blocks are six apart.
//   y[i+1] is peak i alone, without the offset.
//
//   A failure writes MISSING_VALUE into x[2] and leaves y[1] and the components as they stand. The call fails
//   for nParams < 1, for a width of 0 and on a range or domain error. A negative width is accepted for the
//   value, which it does not change, and fails for the derivatives; these look at range errors only. A peak of
//   amplitude 0 is skipped, whatever its widths: its component keeps what it held, its derivatives are 0.
#pragma once

#include "protocol/blocks.h"

#include <algorithm>

namespace ansatz::peak_surface {

/// One peak's block of parameters beside the point. A shape derives from it, computes what takes the library
/// or a division when it is made, and combines that in component() and in partials(d), with d[1] the derivative
/// by A. It states the distance of its blocks (stride) and how many derivative slots a peak fills (slots) and
/// loses on a failure (marked).
struct Block {
    const Scalar* p;
    Real x1, x2;
    Scalar A = p[1], xc = p[2], wx = p[3], yc = p[4], wy = p[5];
};

/// The derivative by a centre, from the common factor s; exactly 0 at the centre.
inline Real by_centre(Real s, Real x, Scalar centre) {
    return x == centre ? 0 : s / (x - centre);
}

template <class Shape> Status value(const Point& at) {
    if (at.n < 1) return fail_surface(at);
    const int peaks = (at.n - 1) / Shape::stride;
    return add_blocks<Shape::stride>(at, peaks, [&](const Scalar* p, int) -> Outcome {
        if (p[1] == 0) return skipped;
        if (p[3] == 0 || p[5] == 0) return fail_surface(at);
        const Real peak = Shape{{p, at.x[1], at.x[2]}}.component();
        if (math_error()) return fail_surface(at);
        return peak;
    });
}

template <class Shape> Status derivatives(const Point& at) {
    if (at.n < 1) return fail_surface(at);
    at.dyda[1] = 1;
    const int peaks = (at.n - 1) / Shape::stride;
    return add_blocks<Shape::stride>(at, peaks, [&](const Scalar* p, int k) -> Outcome {
        Real* d = at.dyda + k;
        if (p[1] == 0) {
            std::fill_n(d + 1, Shape::slots, 0.0);
            return skipped;
        }
        const auto fail_peak = [&] {
            std::fill_n(d + 1, Shape::marked, MISSING_VALUE);
            return fail_surface(at);
        };
        if (p[3] <= 0 || p[5] <= 0) return fail_peak();
        const Shape shape{{p, at.x[1], at.x[2]}};
        if (range_error()) return fail_peak();
        shape.partials(d);
        return shape.component();
    });
}

template <class Shape> using Form = BothPaths<value<Shape>, derivatives<Shape>>;

} // namespace ansatz::peak_surface
