// LogisticCum: a common offset and any number of terms, each a product of two logistic curves.
//
//   z = P1 + sum over the terms of  A / ((1 + e^(-u)) (1 + e^(-v))),   u = (x1 - xc)/wx, v = (x2 - yc)/wy
//
//   P1 offset; then per term height A of the plateau, centre xc and width wx along x1, centre yc and width wy
//   along x2; a negative width turns the step round. The number of terms is nParams / 5, counted without regard
//   to the offset: the last parameter read is P(5 m + 1). y[k+1] is term k alone, without the offset.
//
//   The exponentials are limited: from 300 widths below a centre on, e^(-u) counts as zero instead of as huge,
//   and the term jumps back to the plateau. Keep data within that. Widths are not tested. A failure, which only
//   an error indicator left set by the caller can cause, writes MISSING_VALUE into x[2] and marks no
//   derivative.

#include "protocol/forms.h"

namespace ansatz::logisticcum {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    y[1] = P[1];
    const int terms = n / 5;
    for (int k = 1; k <= terms; ++k) {
        const double* p = P + 1 + 5 * (k - 1);
        const double A = p[1], xc = p[2], wx = p[3], yc = p[4], wy = p[5];
        const double e1 = clamped_exp(-((x[1] - xc) / wx));
        if (math_error()) return fail_surface(at);
        const double e2 = clamped_exp(-((x[2] - yc) / wy));
        if (math_error()) return fail_surface(at);
        const double term = A / (e1 + 1) / (e2 + 1);
        y[k + 1] = term;
        y[1] += term;
    }
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    y[1] = P[1];
    dyda[1] = 1;
    const int terms = n / 5;
    for (int k = 1; k <= terms; ++k) {
        const double* p = P + 1 + 5 * (k - 1);
        double* d = dyda + 1 + 5 * (k - 1);
        const double A = p[1], xc = p[2], wx = p[3], yc = p[4], wy = p[5];
        const double dx = x[1] - xc, dy = x[2] - yc;
        const double e1 = clamped_exp(-(dx / wx));
        if (math_error()) return fail_surface(at);
        const double e2 = clamped_exp(-(dy / wy));
        if (math_error()) return fail_surface(at);
        const double q1 = 1 + e1, q2 = 1 + e2;
        const double by_A = 1 / q1 / q2;
        const double by_xc = -(e1 * A / wx / q1 / q1 / q2);
        const double by_yc = -(e2 * A / q1 / q2 / q2 / wy);
        d[1] = by_A;
        d[2] = by_xc;
        d[3] = by_xc * dx / wx;
        d[4] = by_yc;
        d[5] = by_yc * dy / wy;
        const double term = A * by_A;
        y[k + 1] = term;
        y[1] += term;
    }
    return success;
}

} // namespace

ANSATZ_MODEL(LogisticCum, BothPaths<value, derivatives>)

ANSATZ_PAGE(LogisticCum, .title = "",
            .formula = "y = y0 + sum A/((1 + exp(-(x1 - xc)/wx)) (1 + exp(-(x2 - yc)/wy)))",
            .parameters = {{"y0", "offset", Trait::offset}},
            .block = {{"A", "height of the plateau", Trait::amplitude},
                      {"xc", "centre on x1", Trait::position},
                      {"wx", "width of the step along x1", Trait::width},
                      {"yc", "centre on x2", Trait::position},
                      {"wy", "the same along x2", Trait::constant}},
            .block_name = "term", .layout = {.lead = 1, .block = 5, .skipped = 0},
            .notes = "A negative width turns the step round. More than 300 widths below a centre the step is "
                     "back on its plateau: keep the data within that.")

} // namespace ansatz::logisticcum
