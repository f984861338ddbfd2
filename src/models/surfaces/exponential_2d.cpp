// Exponential2D. The number of terms is nParams / 3, counted without regard to the offset: the last parameter
// read is P(3 m + 1). Without a term the derivative by P1 keeps what it held.
//
// Decay lengths are not tested. A failure, which only an error indicator left set by the caller can cause,
// marks no derivative.

#include "protocol/blocks.h"

namespace ansatz::exponential_2d {
namespace {

Status value(const Point& at) {
    return add_blocks<3>(at, at.n / 3, [&](const Scalar* p, int) -> Outcome {
        const Real e1 = clamped_exp(-(at.x[1] / p[2]));
        if (math_error()) return fail_surface(at);
        const Real e2 = clamped_exp(-(at.x[2] / p[3]));
        if (math_error()) return fail_surface(at);
        return p[1] * e1 * e2;
    });
}

Status derivatives(const Point& at) {
    return add_blocks<3>(at, at.n / 3, [&](const Scalar* p, int k) -> Outcome {
        const Scalar A = p[1], t1 = p[2], t2 = p[3];
        const Real e1 = clamped_exp(-(at.x[1] / t1));
        if (math_error()) return fail_surface(at);
        const Real e2 = clamped_exp(-(at.x[2] / t2));
        if (math_error()) return fail_surface(at);
        const Real term = A * e1 * e2;
        at.dyda[1] = 1;
        Real* d = at.dyda + k;
        d[1] = e1 * e2;
        d[2] = term * at.x[1] / (t1 * t1);
        d[3] = term * at.x[2] / (t2 * t2);
        return term;
    });
}

} // namespace

ANSATZ_MODEL(Exponential2D, BothPaths<value, derivatives>)

ANSATZ_PAGE(Exponential2D, .title = "Exponential decays along both variables at once on a common offset",
            .formula = "y = y0 + sum A exp(-x1/tx) exp(-x2/ty)",
            .parameters = {{"y0", "offset", Trait::offset}},
            .block = {{"A", "amplitude at the origin", Trait::amplitude},
                      {"tx", "decay length along x1; negative: growth", Trait::time, not_zero},
                      {"ty", "decay length along x2; negative: growth", Trait::time, Dimension{.x2 = 1},
                       not_zero}},
            .block_name = "term", .layout = {.lead = 1, .block = 3, .skipped = 0},
            .typical = {{0.2, 3, 3, 2, 1, 8, 6}, 0, 10, 0, 8},
            .notes = "A factor beyond e^300 counts as zero. Do not start near a decay length of 0.")

} // namespace ansatz::exponential_2d
