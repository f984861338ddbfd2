// ExtremeCum. The number of terms is nParams / 7, counted without regard to the offset: the last parameter read
// is P(7 m + 1).
//
// The exponentials are limited: from 300 widths below a location on, the inner one counts as zero instead of as
// huge. Widths are not tested; a failure only an error indicator left set by the caller can cause. A derivative
// request alone returns 0 and writes nothing.

#include "protocol/forms.h"

namespace ansatz::extreme_cum {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    y[1] = P[1];
    const int terms = n / 7;
    for (int k = 1; k <= terms; ++k) {
        const Scalar* p = P + 1 + 7 * (k - 1);
        const Scalar A1 = p[1], xc = p[2], wx = p[3], A2 = p[4], yc = p[5], wy = p[6], A12 = p[7];
        const Real e1 = clamped_exp((xc - x[1]) / wx);
        if (math_error()) return fail_surface(at);
        const Real e2 = clamped_exp((yc - x[2]) / wy);
        if (math_error()) return fail_surface(at);
        const Real term = A2 * clamped_exp(-e2) + A1 * clamped_exp(-e1) + A12 * clamped_exp(-e1 - e2);
        y[k + 1] = term;
        if (math_error()) return fail_surface(at);
        y[1] += term;
    }
    return success;
}

} // namespace

ANSATZ_MODEL(ExtremeCum, ValueOrNothing<value>)

ANSATZ_PAGE(ExtremeCum, .title = "Extreme-value distribution functions of both variables and their products",
            .formula = "y = y0 + sum (Ax F1 + Ay F2 + Axy F1 F2),  F1 = exp(-exp((xc - x1)/wx)),  F2 = "
                       "exp(-exp((yc - x2)/wy))",
            .parameters = {{"y0", "offset", Trait::offset}},
            .block = {{"Ax", "height of the step along x1", Trait::amplitude},
                      {"xc", "location of that step", Trait::position},
                      {"wx", "its width (as x1)", Trait::width, not_zero},
                      {"Ay", "height of the step along x2", Trait::amplitude},
                      {"yc", "location of that step", Trait::position, Dimension{.x2 = 1}},
                      {"wy", "its width (as x2)", Trait::width, Dimension{.x2 = 1}, not_zero},
                      {"Axy", "height of the joint step", Trait::amplitude}},
            .block_name = "term", .layout = {.lead = 1, .block = 7, .skipped = 0},
            .typical = {{0.2, 1, 2, 0.5, 0.8, 3, 0.7, 2, 0.6, 7, 0.8, 0.5, 6, 0.5, 1}, 0, 10, 0, 8},
            .notes = "A negative width turns a step round. More than 300 widths below a location the step is "
                     "back on its plateau: keep the data within that.")

} // namespace ansatz::extreme_cum
