// Stirling: exponential growth written by its slope at the start.
//
//   y = P1 + P2 (e^(P3 x) - 1) / P3
//
//   P1 value at x = 0, P2 slope there, P3 rate (per unit of x; negative: growth that levels off).
//
//   Fails for P3 == 0, whose limit, the straight line, it does not take; for |P3 x| much below 1 digits are
//   lost to cancellation. An overflow of the exponential fails the value. The derivative path does not test it:
//   asked for alone it succeeds there with infinite or undefined numbers, and the error indicator stays set.

#include "protocol/forms.h"

namespace ansatz::stirling {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (P[3] == 0) return fail(at);
    y[1] = P[1] + P[2] * (safe_exp(P[3] * x[1]) - 1) / P[3];
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    dyda[1] = 1;
    if (P[3] == 0) return fail(at, 2, 3);
    const double e = safe_exp(P[3] * x[1]);
    const double growth = (e - 1) / P[3];
    dyda[2] = growth;
    dyda[3] = (e * x[1] - growth) * P[2] / P[3];
    y[1] = P[1] + P[2] * growth;
    return success;
}

} // namespace

ANSATZ_MODEL(Stirling, BothPaths<value, derivatives>)

ANSATZ_PAGE(Stirling, .title = "", .formula = "y = a + b (exp(k x) - 1)/k",
            .parameters = {{"a", "y at x = 0", Trait::constant},
                           {"b", "slope at x = 0", Trait::slope},
                           {"k", "rate, 1/(unit of x), not 0; negative: growth that levels off", Trait::rate}},
            .notes = "Fails for k = 0, where the curve would be the straight line a + b x.")

} // namespace ansatz::stirling
