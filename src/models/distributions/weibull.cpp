// Weibull. y[2] is the density alone, without the offset.
//
// Outside the domain, b <= 0 or x <= x0, the marker goes into y[2] while y[1] holds the offset, and the error
// indicator is left as it was; the status is 1 as for every failure. An overflow fails in the ordinary way,
// with the marker in y[1]. Needs nParams >= 4: with fewer the call returns 1 and y = P1. Asked for derivatives
// alone it returns 1 and y = P1.

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
    const Real t = x[1] - P[4];
    if (t <= 0) return outside(at);
    const Real u = t / P[2];
    if (u <= 0) return outside(at); // a quotient too small for a double
    const Real ln_u = log(u);
    if (math_error()) return fail(at);
    const Real exponent = (P[3] - 1.0) * ln_u - safe_exp(P[3] * ln_u);
    if (math_error()) return fail(at);
    const Real density = safe_exp(exponent) * P[3] / P[2];
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
    Weibull,
    .title = "The density of a distribution of lifetimes or strengths above a smallest one, on an offset",
    .formula = "y = y0 + (k/b) u^(k - 1) exp(-u^k),  u = (x - x0)/b",
    .parameters = {{"y0", "offset", Trait::offset},
                   {"b", "scale (as x)", Trait::width, positive},
                   {"k", "shape", Trait::shape, positive},
                   {"x0", "location, where the density begins", Trait::threshold}},
    .typical = {{0.05, 2, 1.8, 0.5}, 0.55, 7}, .scales = Scales::neither,
    .same_as =
        "Weibull3(y0 = y0, xc = x0 + b (1 - 1/k)^(1/k), A = (k/b) (1 - 1/k)^(1 - 1/k) exp(1/k - 1), w1 = "
        "b, w2 = k)",
    .known_as = "Weibull distribution, three-parameter Weibull distribution", .source = "Weibull, 1951",
    .notes =
        "A density of area 1. Fails for b <= 0 and x <= x0: keep x0 below the smallest x (--upper x0). The "
        "same curve as Weibull3 for k > 1 only.")

} // namespace ansatz::weibull
