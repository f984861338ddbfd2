// Power2D. The number of terms is nParams / 5, counted without regard to the offset: the last parameter read is
// P(5 m + 1).
//
// Never fails, but may leave the error indicator set. The query says that there are no derivatives, but
// FF_DERIV computes them all the same. The derivative by p takes ln|x1|, so that x1 < 0 with a whole power
// stays finite, and is 0 at x1 == 0; the derivative by q exists for x2 > 0 only.

#include "protocol/blocks.h"

namespace ansatz::power_2d {
namespace {

Status value(const Point& at) {
    return add_blocks<5>(at, at.n / 5, [&](const Scalar* p, int) -> Outcome {
        const Real X = safe_pow(at.x[1], p[2]), Y = safe_pow(at.x[2], p[4]);
        return p[1] * X + p[3] * Y + Y * (X * p[5]);
    });
}

Status derivatives(const Point& at) {
    const Real x1 = at.x[1], x2 = at.x[2];
    at.dyda[1] = 1;
    return add_blocks<5>(at, at.n / 5, [&](const Scalar* p, int k) -> Outcome {
        const Scalar a = p[1], c = p[3], d = p[5];
        const Real X = safe_pow(x1, p[2]), Y = safe_pow(x2, p[4]);
        const Real aX = a * X, cY = c * Y, dXY = Y * (X * d);
        Real* s = at.dyda + k;
        s[1] = X;
        s[2] = x1 == 0 ? 0 : (aX + dXY) * log(std::fabs(x1));
        s[3] = Y;
        s[4] = (cY + dXY) * log(x2);
        s[5] = X * Y;
        return aX + cY + dXY;
    });
}

} // namespace

ANSATZ_MODEL(Power2D, BothPaths<value, derivatives, Answers{.query = 0}>)

ANSATZ_PAGE(
    Power2D, .title = "Powers of both variables and their product on a common offset",
    .formula = "y = y0 + sum (a x1^p + c x2^q + d x1^p x2^q)", .parameters = {{"y0", "offset", Trait::offset}},
    .block = {{"a", "of the power of x1", Trait::coefficient, Dimension{.y = 1}},
              {"p", "power of x1", Trait::exponent},
              {"c", "of the power of x2", Trait::coefficient, Dimension{.y = 1}},
              {"q", "power of x2", Trait::exponent},
              {"d", "of the product of both powers", Trait::coefficient, Dimension{.y = 1}}},
    .block_name = "term", .layout = {.lead = 1, .block = 5, .skipped = 0}, .x = {not_negative, not_negative},
    .typical = {{0.2, 1, 0.5, 1.5, 0.7, 0.3, 0.1, 1.8, 0.2, 1.5, -0.05}, 0.1, 4, 0.1, 4},
    .scales = Scales::y_only, .departures = {{3, "x1 < 0"}, {5, "x2 <= 0"}},
    .notes = "Gives no number for a negative x with a broken power, and infinity for 0 with a negative one.")

} // namespace ansatz::power_2d
