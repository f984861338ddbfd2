// RationalTaylor. The query says that there are no derivatives, but FF_DERIV computes them all the same; at
// x1 == 0 they fail after the first seven of the block were written. The y of a derivative request pairs the
// fifth coefficient with x2^2 instead of x1 x2, so it is the value only where that coefficient is 0 or x1 = x2:
// take y from a call with FF_VALUE alone.

#include "protocol/blocks.h"

namespace ansatz::rational_taylor {
namespace {

Real numerator(const Scalar* p, const Real* x) {
    return p[1] + p[2] * x[1] + p[3] * x[2] + p[4] * safe_pow(x[2], 2.0) + p[5] * x[1] * x[2];
}

Real denominator(const Scalar* p, const Real* x) {
    return 1 + p[6] * x[1] + p[7] * (x[1] * x[1]) + p[8] * x[2] + p[9] * (x[2] * x[2]) + p[10] * x[1] * x[2];
}

Status value(const Point& at) {
    return add_blocks<10, 0>(at, at.n / 10, [&](const Scalar* p, int) -> Outcome {
        const Real D = denominator(p, at.x);
        if (D == 0) return fail_surface(at);
        return numerator(p, at.x) / D;
    });
}

Status derivatives(const Point& at) {
    const Real x1 = at.x[1], x2 = at.x[2];
    return add_blocks<10, 0>(at, at.n / 10, [&](const Scalar* p, int k) -> Outcome {
        const Real D = denominator(p, at.x);
        if (D == 0) return fail_surface(at);
        const Real r = 1 / D;
        const Real g = -(safe_pow(r, 2.0) * x1 * numerator(p, at.x));
        Real* d = at.dyda + k;
        d[1] = r;
        d[2] = x1 * r;
        d[3] = x2 * r;
        d[4] = x2 * x2 * r;
        d[5] = x1 * x2 * r;
        d[6] = g;
        d[7] = g * x1;
        if (x1 == 0) return fail_surface(at);
        const Real h = g * x2 / x1;
        d[8] = h;
        d[9] = x2 * h;
        d[10] = g * x2;
        return p[1] * d[1] + p[2] * d[2] + p[3] * d[3] + p[4] * d[4] + p[5] * d[4];
    });
}

} // namespace

ANSATZ_MODEL(RationalTaylor, BothPaths<value, derivatives, Answers{.query = 0}>)

ANSATZ_PAGE(
    RationalTaylor, .title = "Ratios of polynomials of second order in two variables",
    .formula = "y = sum (a + b x1 + c x2 + d x2^2 + f x1 x2)/(1 + g x1 + h x1^2 + k x2 + m x2^2 + n x1 x2)",
    .block = {{"a", "level at the origin", Trait::level},
              {"b", "of x1 in the numerator", Trait::coefficient, Dimension{.x = -1, .y = 1}},
              {"c", "of x2 in the numerator", Trait::coefficient, Dimension{.y = 1, .x2 = -1}},
              {"d", "of x2^2 in the numerator", Trait::coefficient, Dimension{.y = 1, .x2 = -2}},
              {"f", "of x1 x2 in the numerator", Trait::coefficient, Dimension{.x = -1, .y = 1, .x2 = -1}},
              {"g", "of x1 in the denominator", Trait::coefficient, Dimension{.x = -1}},
              {"h", "of x1^2 in the denominator", Trait::coefficient, Dimension{.x = -2}},
              {"k", "of x2 in the denominator", Trait::coefficient, Dimension{.x2 = -1}},
              {"m", "of x2^2 in the denominator", Trait::coefficient, Dimension{.x2 = -2}},
              {"n", "of x1 x2 in the denominator", Trait::coefficient, Dimension{.x = -1, .x2 = -1}}},
    .block_name = "term",
    .typical = {{1,   2,    -0.5, 0.3,  0.4,  0.2, 0.5, 0.3, 0.2, 0.1,
                 0.5, -0.2, 0.8,  -0.1, 0.05, 0.4, 0.1, 0.1, 0.3, 0.05},
                0,
                5,
                0,
                5},
    .known_as = "rational function",
    .notes = "x1^2 stands in the denominator only. Fails where a denominator is 0; near there it has a pole. "
             "The call for derivatives also fails at x1 = 0. Start from g, h, k, m, n = 0.")

} // namespace ansatz::rational_taylor
