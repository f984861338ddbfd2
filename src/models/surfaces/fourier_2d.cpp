// Fourier2D. Fails for nParams <= 0; the value also on a range or domain error, which is how a scale of 0 shows
// (except where its x is 0 too: not a number, with status 0). The derivatives are not tested: a scale of 0
// makes them not numbers, with status 0 and the error indicator left set.

#include "protocol/blocks.h"

namespace ansatz::fourier_2d {
namespace {

Status value(const Point& at) {
    if (at.n <= 0) return fail_surface(at);
    return add_blocks<6>(at, (at.n - 1) / 6, [&](const Scalar* p, int) -> Outcome {
        const Real t = at.x[1] / p[5], s = at.x[2] / p[6];
        const Real block = p[1] * cos(t) + p[2] * sin(t) + p[3] * cos(s) + p[4] * sin(s);
        if (math_error()) return fail_surface(at);
        return block;
    });
}

Status derivatives(const Point& at) {
    if (at.n <= 0) return fail_surface(at);
    at.dyda[1] = 1;
    return add_blocks<6>(at, (at.n - 1) / 6, [&](const Scalar* p, int k) -> Outcome {
        const Scalar a = p[1], b = p[2], c = p[3], e = p[4], Lx = p[5], Ly = p[6];
        const Real t = at.x[1] / Lx, s = at.x[2] / Ly;
        const Real cos_t = cos(t), sin_t = sin(t), cos_s = cos(s), sin_s = sin(s);
        Real* d = at.dyda + k;
        d[1] = cos_t;
        d[2] = sin_t;
        d[3] = cos_s;
        d[4] = sin_s;
        d[5] = (sin_t * at.x[1] * a - cos_t * at.x[1] * b) / Lx / Lx;
        d[6] = (sin_s * at.x[2] * c - cos_s * at.x[2] * e) / Ly / Ly;
        return a * cos_t + b * sin_t + c * cos_s + e * sin_s;
    });
}

} // namespace

ANSATZ_MODEL(Fourier2D, BothPaths<value, derivatives>)

ANSATZ_PAGE(Fourier2D, .title = "Waves of free periods along both variables on a common offset",
            .formula = "y = y0 + sum (a cos(x1/Lx) + b sin(x1/Lx) + c cos(x2/Ly) + d sin(x2/Ly))",
            .parameters = {{"y0", "offset", Trait::offset}},
            .block = {{"a", "of cos(x1/Lx)", Trait::amplitude},
                      {"b", "of sin(x1/Lx)", Trait::amplitude},
                      {"c", "of cos(x2/Ly)", Trait::amplitude},
                      {"d", "of sin(x2/Ly)", Trait::amplitude},
                      {"Lx", "period along x1 divided by 2 pi", Trait::period, positive},
                      {"Ly", "period along x2 divided by 2 pi", Trait::period, Dimension{.x2 = 1}, positive}},
            .block_name = "term",
            .typical = {{0.5, 1, 0.5, -0.6, 0.8, 1, 0.8, 0.3, -0.2, 0.2, 0.3, 0.4, 0.3}, 0, 8, 0, 6},
            .known_as = "Fourier series",
            .notes = "Fails for Lx or Ly of 0. Start them near their values: a fit finds the nearest of many "
                     "minima.")

} // namespace ansatz::fourier_2d
