// LogNormal2D. The number of terms is nParams / 7, counted without regard to the offset: the last parameter
// read is P(7 m + 1).
//
// Fails on a range or domain error. A log-width of 0 makes its ridge vanish (at its top exactly: not a number).
// A derivative request alone returns 0 and writes nothing.

#include "protocol/blocks.h"

namespace ansatz::log_normal_2d {
namespace {

Real ridge(Real x, Scalar c, Scalar s) {
    const Real l = log(x / c);
    return clamped_exp(l * l * -0.5 / s / s);
}

Status value(const Point& at) {
    return add_blocks<7>(at, at.n / 7, [&](const Scalar* p, int) -> Outcome {
        // p[1] A1, p[2] c1, p[3] s1, p[4] A2, p[5] c2, p[6] s2, p[7] A12
        const Real e1 = ridge(at.x[1], p[2], p[3]);
        if (math_error()) return fail_surface(at);
        const Real e2 = ridge(at.x[2], p[5], p[6]);
        if (math_error()) return fail_surface(at);
        return p[1] * e1 + p[4] * e2 + p[7] * e1 * e2;
    });
}

} // namespace

ANSATZ_MODEL(LogNormal2D, ValueOrNothing<value>)

ANSATZ_PAGE(
    LogNormal2D, .title = "Log-normal ridges across both variables and their products on a common offset",
    .formula = "y = y0 + sum (Ax e1 + Ay e2 + Axy e1 e2),  e1 = exp(-ln(x1/cx)^2/(2 wx^2)),  e2 = "
               "exp(-ln(x2/cy)^2/(2 wy^2))",
    .parameters = {{"y0", "offset", Trait::offset}},
    .block = {{"Ax", "amplitude of the ridge across x1", Trait::amplitude},
              {"cx", "top of that ridge on x1", Trait::position, positive},
              {"wx", "its width, on the scale of ln x1", Trait::log_width, positive},
              {"Ay", "amplitude of the ridge across x2", Trait::amplitude},
              {"cy", "top of that ridge on x2", Trait::position, Dimension{.x2 = 1}, positive},
              {"wy", "its width, on the scale of ln x2", Trait::log_width, positive},
              {"Axy", "amplitude of the joint peak", Trait::amplitude}},
    .block_name = "term", .layout = {.lead = 1, .block = 7, .skipped = 0}, .x = {positive, positive},
    .typical = {{0.2, 1, 2, 0.5, 0.8, 1.5, 0.4, 2, 0.6, 7, 0.2, 0.5, 5, 0.2, 1}, 0.1, 10, 0.1, 8},
    .notes = "Fails for x1/cx <= 0 and x2/cy <= 0. Negative x1 with a negative cx is served, and x2 likewise.")

} // namespace ansatz::log_normal_2d
