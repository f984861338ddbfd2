// DoseResp: a common offset and any number of terms, each the joint response to two doses.
//
//   z = P1 + sum over the terms of  A / ((1 + (x1/D1)^(-h1)) (1 + (x2/D2)^(-h2)))
//
//   P1 offset; then per term full response A, half-effect dose D1 (same unit as x1) and slope h1 (no unit),
//   half-effect dose D2 and slope h2. The number of terms is nParams / 5, counted without regard to the offset:
//   the last parameter read is P(5 m + 1). y[k+1] is term k alone, without the offset.
//
//   Fails for x1 <= 0 or x2 <= 0, unless there is no term: MISSING_VALUE goes into x[2], y[1] and the
//   derivatives keep what they hold. Overflows and domain errors are not tested: a negative half-effect dose
//   with a broken slope gives not a number, with status 0 and the error indicator left set.

#include "protocol/forms.h"

namespace ansatz::doseresp {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    y[1] = P[1];
    const int terms = n / 5;
    for (int k = 1; k <= terms; ++k) {
        const double* p = P + 1 + 5 * (k - 1);
        const double A = p[1], D1 = p[2], h1 = p[3], D2 = p[4], h2 = p[5];
        if (x[1] <= 0 || x[2] <= 0) return fail_surface(at);
        const double p1 = safe_pow(x[1] / D1, -h1), p2 = safe_pow(x[2] / D2, -h2);
        const double term = A / (p1 + 1) / (p2 + 1);
        y[k + 1] = term;
        y[1] += term;
    }
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const double x1 = x[1], x2 = x[2];
    y[1] = P[1];
    dyda[1] = 1;
    const int terms = n / 5;
    for (int k = 1; k <= terms; ++k) {
        const double* p = P + 1 + 5 * (k - 1);
        double* d = dyda + 1 + 5 * (k - 1);
        const double A = p[1], D1 = p[2], h1 = p[3], D2 = p[4], h2 = p[5];
        if (x1 <= 0 || x2 <= 0) return fail_surface(at);
        const double r1 = x1 / D1, r2 = x2 / D2;
        const double p1 = safe_pow(r1, -h1), p2 = safe_pow(r2, -h2);
        const double q1 = 1 + p1, q2 = 1 + p2;
        const double by_A = 1 / q1 / q2;
        d[1] = by_A;
        d[2] = -(safe_pow(r1, -1.0 - h1) * A * h1 * x1 / D1 / D1 / q1 / q1 / q2);
        d[3] = log(r1) * A * p1 / q1 / q1 / q2;
        d[4] = -(safe_pow(r2, -1.0 - h2) * A * h2 * x2 / D2 / D2 / q1 / q2 / q2);
        d[5] = log(r2) * A * p2 / q1 / q2 / q2;
        const double term = A * by_A;
        y[k + 1] = term;
        y[1] += term;
    }
    return success;
}

} // namespace

ANSATZ_MODEL(DoseResp, BothPaths<value, derivatives>)

ANSATZ_PAGE(
    DoseResp, .title = "", .formula = "y = y0 + sum A/((1 + (x1/Dx)^(-hx)) (1 + (x2/Dy)^(-hy)))",
    .parameters = {{"y0", "offset", Trait::offset}},
    .block = {{"A", "full response", Trait::constant},
              {"Dx", "half-effect dose on x1", Trait::constant},
              {"hx", "slope, on the scale of ln x1", Trait::slope},
              {"Dy", "half-effect dose on x2", Trait::constant},
              {"hy", "slope, on the scale of ln x2", Trait::slope}},
    .block_name = "term", .layout = {.lead = 1, .block = 5, .skipped = 0},
    .notes = "Fails for x1 <= 0 and x2 <= 0; gives no number for negative Dx or Dy: bound them from below.")

} // namespace ansatz::doseresp
