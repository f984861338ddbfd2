// ExpGrowth. An overflow is seen after the derivatives are written, and marks them all.

#include "protocol/handbook_law.h"

namespace ansatz::exp_growth {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (P[2] == 0) return fail(at);
    y[1] = P[1] * safe_exp(x[1] / P[2]);
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (P[2] == 0) return fail(at, 1, 2);
    const Real exponent = x[1] / P[2];
    const Real E = safe_exp(exponent);
    y[1] = P[1] * E;
    dyda[1] = E;
    dyda[2] = -y[1] * exponent / P[2];
    return math_error() ? fail(at, 1, 2) : success;
}

} // namespace

ANSATZ_MODEL(ExpGrowth, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(ExpGrowth, .title = "Exponential growth by a growth time", .formula = "y = a exp(x/t)",
            .parameters = {{"a", "response at x = 0", Trait::level},
                           {"t", "growth time, unit of x: y grows by the factor e over it; negative for decay",
                            Trait::time, not_zero}},
            .typical = {{1, 3}, 0, 10}, .same_as = "Exp2PMod1(a = a, b = 1/t)",
            .notes = "Fails for t = 0 and where the exponential overflows. A fit cannot cross t = 0: start "
                     "with the right sign.")

} // namespace ansatz::exp_growth
