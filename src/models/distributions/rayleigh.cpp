// Rayleigh. A derivative request outside the domain leaves the error indicator as it found it.

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
    const Real u = x[1] / P[1];
    const Real e = safe_exp(u * u * -0.5);
    y[1] = 1 - e;
    dyda[1] = e * -(u * u / P[1]);
    return math_error() ? fail(at, 1) : success;
}

} // namespace

ANSATZ_MODEL(Rayleigh, OnePath<value, derivatives, distribution::with_derivatives>)

ANSATZ_PAGE(Rayleigh, .title = "The distribution function of the length of a vector with two normal components",
            .formula = "y = 1 - exp(-x^2/(2 s^2))",
            .parameters = {{"s", "scale (as x), the standard deviation of each component", Trait::width,
                            positive}},
            .x = {not_negative}, .typical = {{2}, 0, 8}, .scales = Scales::x_only,
            .known_as = "Rayleigh distribution", .source = "Rayleigh, 1880",
            .notes = "From 0 to 1. Fails for x < 0 and s <= 0.")

} // namespace ansatz::rayleigh
