// Fourier2D: first harmonics along both variables with free periods, a common offset and any number of blocks.
//
//   z = P1 + sum over the blocks of  a cos t + b sin t + c cos s + d sin s,   t = x1/Lx, s = x2/Ly
//
//   P1 offset; then per block a, b, c, d, Lx, Ly; a scale is the period divided by 2 pi (same unit as its x).
//   The number of blocks is (nParams - 1) / 6. y[k+1] is block k alone, without the offset.
//
//   A failure writes MISSING_VALUE into x[2] and leaves y[1] and the components as they stand. The call fails
//   for nParams <= 0; the value also on a range or domain error, which is how a scale of 0 shows (except where
//   its x is 0 too: not a number, with status 0). The derivatives are not tested: a scale of 0 makes them not
//   numbers, with status 0 and the error indicator left set.

#include "protocol/forms.h"

namespace ansatz::fourier2d {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (n <= 0) return fail_surface(at);
    y[1] = P[1];
    const int blocks = (n - 1) / 6;
    for (int k = 1; k <= blocks; ++k) {
        const double* p = P + 1 + 6 * (k - 1);
        const double t = x[1] / p[5], s = x[2] / p[6];
        const double block = p[1] * cos(t) + p[2] * sin(t) + p[3] * cos(s) + p[4] * sin(s);
        if (math_error()) return fail_surface(at);
        y[k + 1] = block;
        y[1] += block;
    }
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (n <= 0) return fail_surface(at);
    y[1] = P[1];
    dyda[1] = 1;
    const int blocks = (n - 1) / 6;
    for (int k = 1; k <= blocks; ++k) {
        const double* p = P + 1 + 6 * (k - 1);
        double* d = dyda + 1 + 6 * (k - 1);
        const double a = p[1], b = p[2], c = p[3], e = p[4], Lx = p[5], Ly = p[6];
        const double t = x[1] / Lx, s = x[2] / Ly;
        const double cos_t = cos(t), sin_t = sin(t), cos_s = cos(s), sin_s = sin(s);
        d[1] = cos_t;
        d[2] = sin_t;
        d[3] = cos_s;
        d[4] = sin_s;
        d[5] = (sin_t * x[1] * a - cos_t * x[1] * b) / Lx / Lx;
        d[6] = (sin_s * x[2] * c - cos_s * x[2] * e) / Ly / Ly;
        const double block = a * cos_t + b * sin_t + c * cos_s + e * sin_s;
        y[k + 1] = block;
        y[1] += block;
    }
    return success;
}

} // namespace

ANSATZ_MODEL(Fourier2D, BothPaths<value, derivatives>)

ANSATZ_PAGE(Fourier2D, .title = "",
            .formula = "y = y0 + sum (a cos(x1/Lx) + b sin(x1/Lx) + c cos(x2/Ly) + d sin(x2/Ly))",
            .parameters = {{"y0", "offset", Trait::offset}},
            .block = {{"a", "of cos(x1/Lx)", Trait::constant},
                      {"b", "of sin(x1/Lx)", Trait::constant},
                      {"c", "of cos(x2/Ly)", Trait::constant},
                      {"d", "of sin(x2/Ly)", Trait::constant},
                      {"Lx", "period along x1 divided by 2 pi", Trait::constant},
                      {"Ly", "period along x2 divided by 2 pi", Trait::constant}},
            .block_name = "term",
            .notes = "Fails for a scale Lx or Ly of 0. Start the scales near their values: a fit finds the "
                     "nearest of many minima.")

} // namespace ansatz::fourier2d
