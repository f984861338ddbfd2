// LogNormal2D: a common offset and any number of terms, each of two log-normal ridges and their product.
//
//   z = P1 + sum over the terms of  A1 e1 + A2 e2 + A12 e1 e2,
//   e1 = e^(-(ln(x1/c1)/s1)^2 / 2), e2 = e^(-(ln(x2/c2)/s2)^2 / 2)
//
//   P1 offset; then per term amplitude A1 of the ridge across x1, its scale c1 (same unit as x1) and log-width
//   s1 (no unit); A2, c2, s2 of the ridge across x2; amplitude A12 of the joint term. The number of terms is
//   nParams / 7, counted without regard to the offset: the last parameter read is P(7 m + 1). y[i+1] is term i
//   alone, without the offset.
//
//   A failure writes MISSING_VALUE into x[2] and leaves y[1] and the components as they stand. The call fails
//   on a range or domain error, in particular for x1/c1 <= 0 or x2/c2 <= 0. A log-width of 0 makes its ridge
//   vanish (at its scale exactly: not a number). No derivatives; a derivative request alone returns 0 and
//   writes nothing.

#include "protocol/forms.h"

namespace ansatz::lognormal2d {
namespace {

double ridge(double x, double c, double s) {
    const double l = log(x / c);
    return clamped_exp(l * l * -0.5 / s / s);
}

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    y[1] = P[1];
    const int terms = n / 7;
    for (int i = 1; i <= terms; ++i) {
        const double* p = P + 1 + 7 * (i - 1); // p[1] A1, p[2] c1, p[3] s1, p[4] A2, p[5] c2, p[6] s2, p[7] A12
        const double e1 = ridge(x[1], p[2], p[3]);
        if (math_error()) return fail_surface(at);
        const double e2 = ridge(x[2], p[5], p[6]);
        if (math_error()) return fail_surface(at);
        const double term = p[1] * e1 + p[4] * e2 + p[7] * e1 * e2;
        y[i + 1] = term;
        y[1] += term;
    }
    return success;
}

} // namespace

ANSATZ_MODEL(LogNormal2D, ValueOrNothing<value>)

ANSATZ_PAGE(LogNormal2D, .title = "",
            .formula = "y = y0 + sum (Ax e1 + Ay e2 + Axy e1 e2),  e1 = exp(-ln(x1/cx)^2/(2 wx^2)),  e2 = "
                       "exp(-ln(x2/cy)^2/(2 wy^2))",
            .parameters = {{"y0", "offset", Trait::offset}},
            .block = {{"Ax", "amplitude of the ridge across x1", Trait::amplitude},
                      {"cx", "top of that ridge on x1", Trait::level},
                      {"wx", "its width, on the scale of ln x1", Trait::constant},
                      {"Ay", "amplitude of the ridge across x2", Trait::amplitude},
                      {"cy", "top of that ridge on x2", Trait::level},
                      {"wy", "its width, on the scale of ln x2", Trait::constant},
                      {"Axy", "amplitude of the joint peak", Trait::amplitude}},
            .block_name = "term", .layout = {.lead = 1, .block = 7, .skipped = 0},
            .notes = "Fails for x1/cx <= 0 and x2/cy <= 0.")

} // namespace ansatz::lognormal2d
