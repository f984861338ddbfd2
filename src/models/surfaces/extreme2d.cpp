// Extreme2D: a common offset and any number of terms, each an extreme-value peak along x1 over a parabola along
// x2.
//
//   z = P1 + sum over the terms of  a x2 + q x2^2 + A e^(1 - e^(-t) - t),   t = (x1 - xc)/w
//
//   P1 offset; then per term linear coefficient a and quadratic coefficient q of x2, height A of the peak, its
//   centre xc and width w (same unit as x1; negative: the long tail points to small x1). The number of terms is
//   nParams / 5, counted without regard to the offset: the last parameter read is P(5 m + 1). y[i+1] is term i
//   alone, without the offset.
//
//   The exponentials are limited: far out on the steep side the peak is zero, without an error. A width of 0 is
//   not tested: the peak is then zero, at its centre not a number. A failure, which only an error indicator
//   left set by the caller can cause, writes MISSING_VALUE into x[2] and no derivative.

#include "protocol/forms.h"

namespace ansatz::extreme2d {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    y[1] = P[1];
    const int terms = n / 5;
    for (int i = 1; i <= terms; ++i) {
        const double* p = P + 1 + 5 * (i - 1);
        const double a = p[1], q = p[2], A = p[3], xc = p[4], w = p[5];
        const double e1 = clamped_exp((xc - x[1]) / w);
        if (math_error()) return fail_surface(at);
        const double e2 = clamped_exp(1 - e1 - (x[1] - xc) / w);
        if (math_error()) return fail_surface(at);
        const double term = a * x[2] + q * (x[2] * x[2]) + A * e2;
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
        const double* p = P + 1 + 5 * (i - 1);
        double* d = dyda + 1 + 5 * (i - 1);
        const double a = p[1], q = p[2], A = p[3], xc = p[4], w = p[5];
        const double e1 = clamped_exp((xc - x[1]) / w);
        if (math_error()) return fail_surface(at);
        const double e2 = clamped_exp(1 - e1 - (x[1] - xc) / w);
        if (math_error()) return fail_surface(at);
        const double Ae2 = A * e2, square = x[2] * x[2];
        d[1] = x[2];
        d[2] = square;
        d[3] = e2;
        d[4] = (1 - e1) * Ae2 / w;
        d[5] = (e1 * (xc - x[1]) + (x[1] - xc)) * Ae2 / w / w;
        const double term = a * x[2] + q * square + Ae2;
        y[i + 1] = term;
        y[1] += term;
    }
    return success;
}

} // namespace

ANSATZ_MODEL(Extreme2D, BothPaths<value, derivatives>)

ANSATZ_PAGE(Extreme2D, .title = "",
            .formula = "y = y0 + sum (b x2 + c x2^2 + A exp(1 - exp(-u) - u)),  u = (x1 - xc)/w",
            .parameters = {{"y0", "offset", Trait::offset}},
            .block = {{"b", "linear coefficient of x2", Trait::constant},
                      {"c", "quadratic coefficient of x2", Trait::constant},
                      {"A", "height of the peak along x1", Trait::amplitude},
                      {"xc", "centre of the peak on x1", Trait::position},
                      {"w", "width; negative: the long tail points to small x1", Trait::width}},
            .block_name = "term", .layout = {.lead = 1, .block = 5, .skipped = 0},
            .notes = "An asymmetric peak along x1 on a parabola along x2. With several terms only the sums of "
                     "b and of c are determined.")

} // namespace ansatz::extreme2d
