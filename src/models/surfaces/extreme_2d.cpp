// Extreme2D. The number of terms is nParams / 5, counted without regard to the offset: the last parameter read
// is P(5 m + 1).
//
// The exponentials are limited: far out on the steep side the peak is zero, without an error. A width of 0 is
// not tested: the peak is then zero, at its centre not a number. A failure, which only an error indicator left
// set by the caller can cause, marks no derivative.

#include "protocol/blocks.h"

namespace ansatz::extreme_2d {
namespace {

Status value(const Point& at) {
    return add_blocks<5>(at, at.n / 5, [&](const Scalar* p, int) -> Outcome {
        const Scalar a = p[1], q = p[2], A = p[3], xc = p[4], w = p[5];
        const Real e1 = clamped_exp((xc - at.x[1]) / w);
        if (math_error()) return fail_surface(at);
        const Real e2 = clamped_exp(1 - e1 - (at.x[1] - xc) / w);
        if (math_error()) return fail_surface(at);
        return a * at.x[2] + q * (at.x[2] * at.x[2]) + A * e2;
    });
}

Status derivatives(const Point& at) {
    at.dyda[1] = 1;
    return add_blocks<5>(at, at.n / 5, [&](const Scalar* p, int k) -> Outcome {
        const Scalar a = p[1], q = p[2], A = p[3], xc = p[4], w = p[5];
        const Real e1 = clamped_exp((xc - at.x[1]) / w);
        if (math_error()) return fail_surface(at);
        const Real e2 = clamped_exp(1 - e1 - (at.x[1] - xc) / w);
        if (math_error()) return fail_surface(at);
        const Real Ae2 = A * e2, square = at.x[2] * at.x[2];
        Real* d = at.dyda + k;
        d[1] = at.x[2];
        d[2] = square;
        d[3] = e2;
        d[4] = (1 - e1) * Ae2 / w;
        d[5] = (e1 * (xc - at.x[1]) + (at.x[1] - xc)) * Ae2 / w / w;
        return a * at.x[2] + q * square + Ae2;
    });
}

} // namespace

ANSATZ_MODEL(Extreme2D, BothPaths<value, derivatives>)

ANSATZ_PAGE(Extreme2D, .title = "Asymmetric extreme-value peaks along x1 over a parabola along x2",
            .formula = "y = y0 + sum (b x2 + c x2^2 + A exp(1 - exp(-u) - u)),  u = (x1 - xc)/w",
            .parameters = {{"y0", "offset", Trait::offset}},
            .block = {{"b", "linear coefficient of x2", Trait::coefficient, Dimension{.y = 1, .x2 = -1}},
                      {"c", "quadratic coefficient of x2", Trait::coefficient, Dimension{.y = 1, .x2 = -2}},
                      {"A", "height of the peak along x1", Trait::amplitude},
                      {"xc", "centre of the peak on x1", Trait::position},
                      {"w", "width; negative: the long tail points to small x1", Trait::width, not_zero}},
            .block_name = "term", .layout = {.lead = 1, .block = 5, .skipped = 0},
            .typical = {{0.5, 0.4, -0.05, 3, 3, 1, 0.2, -0.05, 2, 9, -0.8}, 0, 12, 0, 6},
            .notes = "With several terms only the sums of b and of c are determined: hold all but one of each.")

} // namespace ansatz::extreme_2d
