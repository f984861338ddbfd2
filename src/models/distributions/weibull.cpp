// Weibull: the density of the Weibull distribution with a location, on an offset.
//
//   y = P1 + (P3 / P2) u^(P3 - 1) e^(-u^P3),   u = (x - P4) / P2
//
//   P1 offset, P2 scale (same unit as x), P3 shape (no unit), P4 location (same unit as x), where the density
//   begins. y[2] is the density alone, without the offset.
//
//   Outside the domain, P2 <= 0 or x <= P4, the marker goes into y[2] while y[1] holds the offset, and the
//   error indicator is left as it was; the status is 1 as for every failure. An overflow fails in the ordinary
//   way, with the marker in y[1]. Needs nParams >= 4: with fewer the call returns 1 and y = P1. No derivatives:
//   asked for them alone it returns 1 and y = P1.

#include "models/distributions/answers.h"

namespace ansatz::weibull {
namespace {

/// The answer outside the domain.
Status outside(const Point& at) {
    at.y[2] = MISSING_VALUE;
    return failure;
}

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    y[1] = P[1];
    if ((n - 1) / 3 < 1) return failure;
    if (P[2] <= 0) return outside(at);
    const double t = x[1] - P[4];
    if (t <= 0) return outside(at);
    const double u = t / P[2];
    if (u <= 0) return outside(at); // a quotient too small for a double
    const double ln_u = log(u);
    if (math_error()) return fail(at);
    const double exponent = (P[3] - 1.0) * ln_u - safe_exp(P[3] * ln_u);
    if (math_error()) return fail(at);
    const double density = safe_exp(exponent) * P[3] / P[2];
    if (math_error()) return fail(at);
    y[2] = density;
    y[1] += density;
    return success;
}

Status refuse_with_offset(const Point& at) {
    at.y[1] = at.P[1];
    return failure;
}

} // namespace

ANSATZ_MODEL(Weibull, ValueOrRefusal<value, distribution::values, refuse_with_offset>)

ANSATZ_PAGE(
    Weibull, .title = "", .formula = "y = y0 + (k/b) u^(k - 1) exp(-u^k),  u = (x - x0)/b",
    .parameters = {{"y0", "offset", Trait::offset},
                   {"b", "scale (as x)", Trait::constant},
                   {"k", "shape", Trait::shape},
                   {"x0", "location, where the density begins", Trait::constant}},
    .notes = "A density of area 1. Fails for b <= 0 and x <= x0: keep x0 below the smallest x (--upper x0).")

} // namespace ansatz::weibull
