// DoseResp. The number of terms is nParams / 5, counted without regard to the offset: the last parameter read
// is P(5 m + 1).
//
// Fails for x1 <= 0 or x2 <= 0, unless there is no term. Overflows and domain errors are not tested: a negative
// half-effect dose with a broken exponent gives not a number, with status 0 and the error indicator left set.

#include "protocol/blocks.h"

namespace ansatz::dose_resp {
namespace {

Status value(const Point& at) {
    return add_blocks<5>(at, at.n / 5, [&](const Scalar* p, int) -> Outcome {
        const Scalar D1 = p[2], h1 = p[3], D2 = p[4], h2 = p[5];
        if (at.x[1] <= 0 || at.x[2] <= 0) return fail_surface(at);
        const Real p1 = safe_pow(at.x[1] / D1, -h1), p2 = safe_pow(at.x[2] / D2, -h2);
        const Scalar A = p[1];
        return A / (p1 + 1) / (p2 + 1);
    });
}

Status derivatives(const Point& at) {
    const Real x1 = at.x[1], x2 = at.x[2];
    at.dyda[1] = 1;
    return add_blocks<5>(at, at.n / 5, [&](const Scalar* p, int k) -> Outcome {
        Real* d = at.dyda + k;
        const Scalar D1 = p[2], h1 = p[3], D2 = p[4], h2 = p[5];
        if (x1 <= 0 || x2 <= 0) return fail_surface(at);
        const Real r1 = x1 / D1, r2 = x2 / D2;
        const Real p1 = safe_pow(r1, -h1), p2 = safe_pow(r2, -h2);
        const Scalar A = p[1];
        const Real q1 = 1 + p1, q2 = 1 + p2;
        const Real by_A = 1 / q1 / q2;
        d[1] = by_A;
        d[2] = -(safe_pow(r1, -1.0 - h1) * A * h1 * x1 / D1 / D1 / q1 / q1 / q2);
        d[3] = log(r1) * A * p1 / q1 / q1 / q2;
        d[4] = -(safe_pow(r2, -1.0 - h2) * A * h2 * x2 / D2 / D2 / q1 / q2 / q2);
        d[5] = log(r2) * A * p2 / q1 / q2 / q2;
        return A * by_A;
    });
}

} // namespace

ANSATZ_MODEL(DoseResp, BothPaths<value, derivatives>)

ANSATZ_PAGE(
    DoseResp, .title = "Joint responses to two doses on a common offset",
    .formula = "y = y0 + sum A/((1 + (x1/Dx)^(-hx)) (1 + (x2/Dy)^(-hy)))",
    .parameters = {{"y0", "offset", Trait::offset}},
    .block = {{"A", "full response, to large doses of both", Trait::amplitude},
              {"Dx", "half-effect dose on x1", Trait::half_point, positive},
              {"hx", "slope, on the scale of ln x1; negative: the response falls", Trait::exponent},
              {"Dy", "half-effect dose on x2", Trait::half_point, Dimension{.x2 = 1}, positive},
              {"hy", "slope, on the scale of ln x2; negative: the response falls", Trait::exponent}},
    .block_name = "term", .layout = {.lead = 1, .block = 5, .skipped = 0}, .x = {positive, positive},
    .typical = {{0.2, 3, 2, 2, 1, 3, 2, 6, 4, 3, 2}, 0.1, 10, 0.1, 5},
    .notes = "Fails for x1 <= 0 and x2 <= 0; gives no number for negative Dx or Dy: bound them from below.")

} // namespace ansatz::dose_resp
