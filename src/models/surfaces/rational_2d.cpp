// Rational2D. Powers that overflow leave the error indicator set. The query says that there are no derivatives,
// but FF_DERIV computes them all the same; the last two of a block divide by x1.

#include "protocol/blocks.h"

namespace ansatz::rational_2d {
namespace {

Real numerator(const Scalar* p, const Real* x, Real x2_cubed) {
    return p[1] + p[2] * x[1] + p[3] * x[2] + p[4] * (x[2] * x[2]) + p[5] * x2_cubed;
}

Real denominator(const Scalar* p, const Real* x) {
    return 1 + p[6] * x[1] + p[7] * (x[1] * x[1]) + p[8] * safe_pow(x[1], 3) + p[9] * x[2] +
           p[10] * (x[2] * x[2]);
}

Status value(const Point& at) {
    return add_blocks<10, 0>(at, at.n / 10, [&](const Scalar* p, int) -> Outcome {
        const Real D = denominator(p, at.x);
        if (D == 0) return fail_surface(at);
        return numerator(p, at.x, safe_pow(at.x[2], 3)) / D;
    });
}

Status derivatives(const Point& at) {
    const Real x1 = at.x[1], x2 = at.x[2];
    return add_blocks<10, 0>(at, at.n / 10, [&](const Scalar* p, int k) -> Outcome {
        const Real D = denominator(p, at.x);
        if (D == 0) return fail_surface(at);
        const Real r = 1 / D, x2_cubed = safe_pow(x2, 3);
        const Real g = -(safe_pow(r, 2.0) * x1 * numerator(p, at.x, x2_cubed));
        Real* d = at.dyda + k;
        d[1] = r;
        d[2] = x1 * r;
        d[3] = x2 * r;
        d[4] = x2 * x2 * r;
        d[5] = x2_cubed * r;
        d[6] = g;
        d[7] = g * x1;
        d[8] = g * x1 * x1;
        d[9] = g * x2 / x1;
        d[10] = x2 * d[9];
        return p[1] * d[1] + p[2] * d[2] + p[3] * d[3] + p[4] * d[4] + p[5] * d[5];
    });
}

} // namespace

ANSATZ_MODEL(Rational2D, BothPaths<value, derivatives, Answers{.query = 0}>)

ANSATZ_PAGE(
    Rational2D, .title = "Ratios of polynomials up to the third order in two variables",
    .formula = "y = sum (a + b x1 + c x2 + d x2^2 + f x2^3)/(1 + g x1 + h x1^2 + k x1^3 + m x2 + n x2^2)",
    .block = {{"a", "level at the origin", Trait::level},
              {"b", "of x1 in the numerator", Trait::coefficient, Dimension{.x = -1, .y = 1}},
              {"c", "of x2 in the numerator", Trait::coefficient, Dimension{.y = 1, .x2 = -1}},
              {"d", "of x2^2 in the numerator", Trait::coefficient, Dimension{.y = 1, .x2 = -2}},
              {"f", "of x2^3 in the numerator", Trait::coefficient, Dimension{.y = 1, .x2 = -3}},
              {"g", "of x1 in the denominator", Trait::coefficient, Dimension{.x = -1}},
              {"h", "of x1^2 in the denominator", Trait::coefficient, Dimension{.x = -2}},
              {"k", "of x1^3 in the denominator", Trait::coefficient, Dimension{.x = -3}},
              {"m", "of x2 in the denominator", Trait::coefficient, Dimension{.x2 = -1}},
              {"n", "of x2^2 in the denominator", Trait::coefficient, Dimension{.x2 = -2}}},
    .block_name = "term",
    .typical = {{1,   2,    -0.5, 0.3,  0.1,  0.2, 0.5, 0.1,  0.3, 0.2,
                 0.5, -0.2, 0.8,  -0.1, 0.05, 0.4, 0.1, 0.05, 0.1, 0.3},
                0,
                5,
                0,
                5},
    .departures = {{9, "x1 = 0"}, {10, "x1 = 0"}}, .known_as = "rational function",
    .notes = "Powers of x1 beyond the first stand in the denominator only, the third power of x2 in the "
             "numerator only. Fails where a denominator is 0; near there it has a pole. Start from g, h, k, m, "
             "n = 0.")

} // namespace ansatz::rational_2d
