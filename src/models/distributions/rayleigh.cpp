// Rayleigh: the Rayleigh distribution function, the length of a vector with two normal components.
//
//   y = 1 - e^(-x^2 / (2 P1^2))
//
//   P1 scale (same unit as x), the standard deviation of each component.
//
//   Fails for x < 0 and for P1 <= 0. A derivative request outside the domain leaves the error indicator as it
//   found it. One path per call: with FF_VALUE no derivative is computed. A call that requests nothing
//   returns 1.

#include "models/distributions/answers.h"

namespace ansatz::rayleigh {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (x[1] < 0 || P[1] <= 0) return fail(at);
    y[1] = 1 - safe_exp(x[1] * x[1] / (P[1] * P[1]) * -0.5);
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (x[1] < 0 || P[1] <= 0) return reject(at, 1);
    const double u = x[1] / P[1];
    const double e = safe_exp(u * u * -0.5);
    y[1] = 1 - e;
    dyda[1] = e * -(u * u / P[1]);
    return math_error() ? fail(at, 1) : success;
}

} // namespace

ANSATZ_MODEL(Rayleigh, OnePath<value, derivatives, distribution::with_derivatives>)

ANSATZ_PAGE(Rayleigh, .title = "", .formula = "y = 1 - exp(-x^2/(2 s^2))",
            .parameters = {{"s", "scale (as x), the standard deviation of each component", Trait::constant}},
            .notes = "The distribution function, from 0 to 1. Fails for x < 0 and s <= 0.")

} // namespace ansatz::rayleigh
