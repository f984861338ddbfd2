// ExpLinear. With a decay length of 0 the value ends the call: no derivatives, even when both were requested;
// on the derivative path the first two slots are 0. The derivative path never fails: after an overflow its
// numbers are infinite or undefined, the status is 0 and the error indicator stays set.

#include "protocol/forms.h"

namespace ansatz::exp_linear {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (P[2] == 0) {
        y[1] = P[3] + P[4] * x[1];
        return ends_call;
    }
    y[1] = P[1] * safe_exp(-x[1] / P[2]) + P[3] + P[4] * x[1];
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    dyda[3] = 1;
    dyda[4] = x[1];
    if (P[2] == 0) {
        dyda[1] = dyda[2] = 0;
        y[1] = P[3] + P[4] * x[1];
        return success;
    }
    const Real e = safe_exp(-x[1] / P[2]);
    const Real decay = P[1] * e;
    dyda[1] = e;
    dyda[2] = decay * x[1] / (P[2] * P[2]);
    y[1] = decay + P[3] + P[4] * x[1];
    return success;
}

} // namespace

ANSATZ_MODEL(ExpLinear, BothPaths<value, derivatives>)

ANSATZ_PAGE(ExpLinear, .title = "Exponential decay on a straight line", .formula = "y = a exp(-x/t) + b + c x",
            .parameters = {{"a", "amplitude of the decay at x = 0", Trait::amplitude},
                           {"t", "decay length, unit of x; negative for growth", Trait::time, not_zero},
                           {"b", "intercept of the line", Trait::offset},
                           {"c", "slope of the line", Trait::slope}},
            .typical = {{4, 1.5, 1, 0.3}, 0, 10},
            .notes = "The value fails where the exponential overflows, the derivatives are infinite there. "
                     "t = 0 stands for no exponential and cannot be left by a fit: do not start there.")

} // namespace ansatz::exp_linear
