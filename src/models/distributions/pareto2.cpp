// Pareto2: the Pareto distribution function, incomes or sizes above a smallest one.
//
//   y = 1 - (P2/x)^P1
//
//   P1 shape (no unit), P2 scale, the smallest size (same unit as x); below it y is negative.
//
//   Fails for x <= 0, leaving the error indicator as it found it, and on a range or domain error: a negative P2
//   with a broken P1; for the derivatives any P2 <= 0, whose logarithm does not exist. One path per call: with
//   FF_VALUE no derivative is computed. A call that requests nothing returns 1.

#include "models/distributions/answers.h"

namespace ansatz::pareto2 {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (x[1] <= 0) return reject(at);
    const double p = safe_pow(P[2] / x[1], P[1]);
    if (math_error()) return fail(at);
    y[1] = 1 - p;
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (x[1] <= 0) return reject(at, 1, 2);
    const double r = P[2] / x[1];
    const double p = safe_pow(r, P[1]);
    if (math_error()) return fail(at, 1, 2);
    dyda[1] = -log(r) * p;
    if (math_error()) return fail(at, 1, 2);
    dyda[2] = -(P[1] / P[2]) * p;
    y[1] = 1 - p;
    return success;
}

} // namespace

ANSATZ_MODEL(Pareto2, OnePath<value, derivatives, distribution::with_derivatives>)

ANSATZ_PAGE(Pareto2, .title = "", .formula = "y = 1 - (b/x)^a",
            .parameters = {{"a", "shape", Trait::shape},
                           {"b", "scale (as x), the smallest x of the distribution", Trait::constant}},
            .notes = "The distribution function, from 0 to 1; negative below x = b. Fails for x <= 0; a fit "
                     "fails for b <= 0.")

} // namespace ansatz::pareto2
