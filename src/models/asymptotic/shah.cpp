// Shah: a straight line and a decaying exponential written by its base.
//
//   y = P1 + P2 x + P3 P4^x
//
//   P1 intercept, P2 slope (unit of y per unit of x), P3 amplitude, P4 base (factor per unit of x).
//
//   Fails for P4 <= 0 and P4 >= 1 (both bounds excluded) and on a range error of the power (far to the left).
//   With P3 == 0 the value is the line alone and the call ends there: no derivatives, even when both were
//   requested; ask for the derivatives alone. An error of the power on the derivative path keeps dyda[1] and
//   dyda[2], and is the one failure here that leaves the error indicator set: clear it before the next call.

#include "protocol/forms.h"

namespace ansatz::shah {
namespace {

bool base_fails(double base) {
    return base >= 1 || base <= 0;
}

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (base_fails(P[4])) return fail(at);
    const double line = P[1] + P[2] * x[1];
    if (P[3] == 0) {
        y[1] = line;
        return ends_call;
    }
    y[1] = line + P[3] * safe_pow(P[4], x[1]);
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (base_fails(P[4])) return fail(at, 1, 2, 3, 4);
    dyda[1] = 1;
    dyda[2] = x[1];
    const double w = safe_pow(P[4], x[1]);
    if (math_error()) return reject(at, 3, 4);
    const double decay = P[3] * w;
    dyda[3] = w;
    dyda[4] = decay * x[1] / P[4];
    y[1] = P[1] + P[2] * x[1] + decay;
    return success;
}

} // namespace

ANSATZ_MODEL(Shah, BothPaths<value, derivatives>)

ANSATZ_PAGE(Shah, .title = "", .formula = "y = a + b x + c r^x",
            .parameters = {{"a", "intercept of the line", Trait::constant},
                           {"b", "slope of the line", Trait::slope},
                           {"c", "amplitude of the decay at x = 0", Trait::amplitude},
                           {"r", "base: the part left after one unit of x, above 0 and below 1", Trait::base}},
            .notes = "Fails for r <= 0 and r >= 1.")

} // namespace ansatz::shah
