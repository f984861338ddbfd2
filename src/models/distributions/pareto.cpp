// Pareto2. Fails for x <= 0, leaving the error indicator as it found it, and on a range or domain error: a
// negative b with a broken a; for the derivatives any b <= 0, whose logarithm does not exist.

#include "models/distributions/answers.h"

namespace ansatz::pareto2 {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (x[1] <= 0) return reject(at);
    const Real p = safe_pow(P[2] / x[1], P[1]);
    if (math_error()) return fail(at);
    y[1] = 1 - p;
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (x[1] <= 0) return reject(at, 1, 2);
    const Real r = P[2] / x[1];
    const Real p = safe_pow(r, P[1]);
    if (math_error()) return fail(at, 1, 2);
    dyda[1] = -log(r) * p;
    if (math_error()) return fail(at, 1, 2);
    dyda[2] = -(P[1] / P[2]) * p;
    y[1] = 1 - p;
    return success;
}

} // namespace

ANSATZ_MODEL(Pareto2, OnePath<value, derivatives, distribution::with_derivatives>)

ANSATZ_PAGE(Pareto2, .title = "The distribution function of incomes or sizes above a smallest one",
            .formula = "y = 1 - (b/x)^a",
            .parameters = {{"a", "shape", Trait::shape, positive},
                           {"b", "scale (as x), the smallest x of the distribution", Trait::threshold,
                            positive}},
            .x = {positive}, .typical = {{1.5, 1}, 1, 10}, .scales = Scales::x_only,
            .known_as = "Pareto distribution, Pareto type I distribution, power-law distribution",
            .source = "Pareto, 1896",
            .notes = "From 0 to 1; negative below x = b. Fails for x <= 0; a fit fails for b <= 0.")

} // namespace ansatz::pareto2
