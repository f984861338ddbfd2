// Shah. With an amplitude of 0 the value ends the call: no derivatives, even when both were requested. An error
// of the power on the derivative path keeps dyda[1] and dyda[2], and is the one failure here that leaves the
// error indicator set.

#include "protocol/forms.h"

namespace ansatz::shah {
namespace {

bool base_fails(Scalar base) {
    return base >= 1 || base <= 0;
}

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (base_fails(P[4])) return fail(at);
    const Real line = P[1] + P[2] * x[1];
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
    const Real w = safe_pow(P[4], x[1]);
    if (math_error()) return reject(at, 3, 4);
    const Real decay = P[3] * w;
    dyda[3] = w;
    dyda[4] = decay * x[1] / P[4];
    y[1] = P[1] + P[2] * x[1] + decay;
    return success;
}

} // namespace

ANSATZ_MODEL(Shah, BothPaths<value, derivatives>)

ANSATZ_PAGE(Shah, .title = "Exponential decay on a straight line, by a base", .formula = "y = a + b x + c r^x",
            .parameters = {{"a", "intercept of the line", Trait::offset},
                           {"b", "slope of the line", Trait::slope},
                           {"c", "amplitude of the decay at x = 0", Trait::amplitude},
                           {"r", "base: the part left after one unit of x", Trait::base, between(0, 1)}},
            .typical = {{1, 0.3, 4, 0.5}, 0, 10}, .scales = Scales::y_only,
            .same_as = "ExpLinear(a = c, t = -1/ln(r), b = a, c = b)", .source = "Shah and Khatri, 1965",
            .notes = "Fails for r <= 0 and r >= 1, and far to the left, where the power overflows.")

} // namespace ansatz::shah
