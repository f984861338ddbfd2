// Stirling. The derivative path does not test its exponential: asked for alone it succeeds after an overflow
// with infinite or undefined numbers, and the error indicator stays set.

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
    const Real e = safe_exp(P[3] * x[1]);
    const Real growth = (e - 1) / P[3];
    dyda[2] = growth;
    dyda[3] = (e * x[1] - growth) * P[2] / P[3];
    y[1] = P[1] + P[2] * growth;
    return success;
}

} // namespace

ANSATZ_MODEL(Stirling, BothPaths<value, derivatives>)

ANSATZ_PAGE(Stirling, .title = "Exponential growth by its slope at the start",
            .formula = "y = a + b (exp(k x) - 1)/k",
            .parameters = {{"a", "y at x = 0", Trait::level},
                           {"b", "slope at x = 0", Trait::slope},
                           {"k", "rate, 1/(unit of x); negative: growth that levels off", Trait::rate,
                            not_zero}},
            .typical = {{1, 0.5, 0.3}, 0, 10}, .same_as = "ExpDec1(y0 = a - b/k, A1 = b/k, t1 = -1/k)",
            .notes = "Fails for k = 0, where the curve would be the straight line a + b x, and loses digits "
                     "where k x is much closer to 0 than 1. The value fails where the exponential overflows.")

} // namespace ansatz::stirling
