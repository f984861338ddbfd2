// ExtremeCum: a common offset and any number of terms, each of two extreme-value distribution functions and
// their product.
//
//   z = P1 + sum over the terms of  A1 F1 + A2 F2 + A12 F1 F2,
//   F1 = e^(-e^((xc - x1)/wx)), F2 = e^(-e^((yc - x2)/wy))
//
//   P1 offset; then per term amplitude A1 of the step along x1, its location xc and width wx; A2, yc, wy of the
//   step along x2; amplitude A12 of the joint step. The number of terms is nParams / 7, counted without regard
//   to the offset: the last parameter read is P(7 m + 1). y[k+1] is term k alone, without the offset.
//
//   The exponentials are limited: from 300 widths below a location on, the inner one counts as zero instead of
//   as huge, and the step jumps back to its plateau. Keep data within that. Widths are not tested. A failure,
//   which only an error indicator left set by the caller can cause, writes MISSING_VALUE into x[2]. No
//   derivatives; a derivative request alone returns 0 and writes nothing.

#include "protocol/forms.h"

namespace ansatz::extremecum {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    y[1] = P[1];
    const int terms = n / 7;
    for (int k = 1; k <= terms; ++k) {
        const double* p = P + 1 + 7 * (k - 1);
        const double A1 = p[1], xc = p[2], wx = p[3], A2 = p[4], yc = p[5], wy = p[6], A12 = p[7];
        const double e1 = clamped_exp((xc - x[1]) / wx);
        if (math_error()) return fail_surface(at);
        const double e2 = clamped_exp((yc - x[2]) / wy);
        if (math_error()) return fail_surface(at);
        const double term = A2 * clamped_exp(-e2) + A1 * clamped_exp(-e1) + A12 * clamped_exp(-e1 - e2);
        y[k + 1] = term;
        if (math_error()) return fail_surface(at);
        y[1] += term;
    }
    return success;
}

} // namespace

ANSATZ_MODEL(ExtremeCum, ValueOrNothing<value>)

ANSATZ_PAGE(ExtremeCum, .title = "",
            .formula = "y = y0 + sum (Ax F1 + Ay F2 + Axy F1 F2),  F1 = exp(-exp((xc - x1)/wx)),  F2 = "
                       "exp(-exp((yc - x2)/wy))",
            .parameters = {{"y0", "offset", Trait::offset}},
            .block = {{"Ax", "height of the step along x1", Trait::amplitude},
                      {"xc", "location of that step", Trait::constant},
                      {"wx", "its width (as x1)", Trait::constant},
                      {"Ay", "height of the step along x2", Trait::amplitude},
                      {"yc", "location of that step", Trait::constant},
                      {"wy", "its width (as x2)", Trait::constant},
                      {"Axy", "height of the joint step", Trait::amplitude}},
            .block_name = "term", .layout = {.lead = 1, .block = 7, .skipped = 0},
            .notes = "A negative width turns a step round. More than 300 widths below a location the step is "
                     "back on its plateau: keep the data within that.")

} // namespace ansatz::extremecum
