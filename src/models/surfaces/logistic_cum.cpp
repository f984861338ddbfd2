// LogisticCum. The number of terms is nParams / 5, counted without regard to the offset: the last parameter
// read is P(5 m + 1).
//
// The exponentials are limited: from 300 widths below a centre on, e^(-u) counts as zero instead of as huge.
// Widths are not tested. A failure, which only an error indicator left set by the caller can cause, marks no
// derivative.

#include "protocol/blocks.h"

namespace ansatz::logistic_cum {
namespace {

Status value(const Point& at) {
    return add_blocks<5>(at, at.n / 5, [&](const Scalar* p, int) -> Outcome {
        const Scalar A = p[1], xc = p[2], wx = p[3], yc = p[4], wy = p[5];
        const Real e1 = clamped_exp(-((at.x[1] - xc) / wx));
        if (math_error()) return fail_surface(at);
        const Real e2 = clamped_exp(-((at.x[2] - yc) / wy));
        if (math_error()) return fail_surface(at);
        return A / (e1 + 1) / (e2 + 1);
    });
}

Status derivatives(const Point& at) {
    at.dyda[1] = 1;
    return add_blocks<5>(at, at.n / 5, [&](const Scalar* p, int k) -> Outcome {
        const Scalar A = p[1], xc = p[2], wx = p[3], yc = p[4], wy = p[5];
        const Real dx = at.x[1] - xc, dy = at.x[2] - yc;
        const Real e1 = clamped_exp(-(dx / wx));
        if (math_error()) return fail_surface(at);
        const Real e2 = clamped_exp(-(dy / wy));
        if (math_error()) return fail_surface(at);
        const Real q1 = 1 + e1, q2 = 1 + e2;
        const Real by_A = 1 / q1 / q2;
        const Real by_xc = -(e1 * A / wx / q1 / q1 / q2);
        const Real by_yc = -(e2 * A / q1 / q2 / q2 / wy);
        Real* d = at.dyda + k;
        d[1] = by_A;
        d[2] = by_xc;
        d[3] = by_xc * dx / wx;
        d[4] = by_yc;
        d[5] = by_yc * dy / wy;
        return A * by_A;
    });
}

} // namespace

ANSATZ_MODEL(LogisticCum, BothPaths<value, derivatives>)

ANSATZ_PAGE(LogisticCum, .title = "Products of a logistic step along each variable on a common offset",
            .formula = "y = y0 + sum A/((1 + exp(-(x1 - xc)/wx)) (1 + exp(-(x2 - yc)/wy)))",
            .parameters = {{"y0", "offset", Trait::offset}},
            .block = {{"A", "height of the plateau", Trait::amplitude},
                      {"xc", "centre on x1", Trait::position},
                      {"wx", "width of the step along x1", Trait::width, not_zero},
                      {"yc", "centre on x2", Trait::position, Dimension{.x2 = 1}},
                      {"wy", "width of the step along x2", Trait::width, Dimension{.x2 = 1}, not_zero}},
            .block_name = "term", .layout = {.lead = 1, .block = 5, .skipped = 0},
            .typical = {{0.2, 2, 3, 0.6, 2, 0.4, 1, 8, 0.4, 5, 0.3}, 0, 12, 0, 8},
            .notes = "A negative width turns the step round. More than 300 widths below a centre the step is "
                     "back on its plateau: keep the data within that.")

} // namespace ansatz::logistic_cum
