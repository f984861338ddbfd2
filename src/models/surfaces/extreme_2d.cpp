// Extreme2D. The number of terms is nParams / 5, counted without regard to the offset: the last parameter read
// is P(5 m + 1).
//
// The exponentials are limited: far out on the steep side the peak is zero, without an error. A width of 0 is
// not tested: the peak is then zero, at its centre not a number. A failure, which only an error indicator left
// set by the caller can cause, marks no derivative.

#include "protocol/forms.h"

namespace ansatz::extreme_2d {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    y[1] = P[1];
    const int terms = n / 5;
    for (int i = 1; i <= terms; ++i) {
        const Scalar* p = P + 1 + 5 * (i - 1);
        const Scalar a = p[1], q = p[2], A = p[3], xc = p[4], w = p[5];
        const Real e1 = clamped_exp((xc - x[1]) / w);
        if (math_error()) return fail_surface(at);
        const Real e2 = clamped_exp(1 - e1 - (x[1] - xc) / w);
        if (math_error()) return fail_surface(at);
        const Real term = a * x[2] + q * (x[2] * x[2]) + A * e2;
        y[i + 1] = term;
        y[1] += term;
    }
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    y[1] = P[1];
    dyda[1] = 1;
    const int terms = n / 5;
    for (int i = 1; i <= terms; ++i) {
        const Scalar* p = P + 1 + 5 * (i - 1);
        Real* d = dyda + 1 + 5 * (i - 1);
        const Scalar a = p[1], q = p[2], A = p[3], xc = p[4], w = p[5];
        const Real e1 = clamped_exp((xc - x[1]) / w);
        if (math_error()) return fail_surface(at);
        const Real e2 = clamped_exp(1 - e1 - (x[1] - xc) / w);
        if (math_error()) return fail_surface(at);
        const Real Ae2 = A * e2, square = x[2] * x[2];
        d[1] = x[2];
        d[2] = square;
        d[3] = e2;
        d[4] = (1 - e1) * Ae2 / w;
        d[5] = (e1 * (xc - x[1]) + (x[1] - xc)) * Ae2 / w / w;
        const Real term = a * x[2] + q * square + Ae2;
        y[i + 1] = term;
        y[1] += term;
    }
    return success;
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
