// SGompertz. Where the inner exponential overflows, long before the growth, y and all slopes are 0; asked for
// value and derivatives at once, such a point gets the value only.

#include "protocol/limits.h"

namespace ansatz::sgompertz {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (P[1] <= 0 || P[3] <= 0) return fail(at);
    const Real t = safe_exp(-(x[1] - P[2]) * P[3]);
    if (range_error()) {
        reaches(at, 0);
        return ends_call;
    }
    const Real g = safe_exp(-t);
    if (math_error()) return fail(at);
    y[1] = g * P[1];
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (P[1] <= 0 || P[3] <= 0) return fail(at, 1, 2, 3);
    const Real d = x[1] - P[2];
    const Scalar rate = P[3];
    const Real t = safe_exp(-d * rate);
    if (range_error()) return reaches(at, 0, 0, 0, 0);
    const Real g = safe_exp(-t);
    if (math_error()) return fail(at, 1, 2, 3);
    const Real level = P[1] * g;
    const Real w = level * t;
    y[1] = level;
    dyda[1] = g;
    dyda[2] = -w * rate;
    dyda[3] = w * d;
    return success;
}

} // namespace

ANSATZ_MODEL(SGompertz, BothPaths<value, derivatives>)

ANSATZ_PAGE(SGompertz, .title = "Growth that starts fast and closes in on its ceiling slowly",
            .formula = "y = a exp(-exp(-(x - xc) k))",
            .parameters = {{"a", "ceiling", Trait::ceiling, positive},
                           {"xc", "centre: x of the fastest growth, where y = a/e", Trait::position},
                           {"k", "rate", Trait::rate, positive}},
            .typical = {{8, 4, 0.9}, 0, 12}, .known_as = "Gompertz growth curve", .source = "Gompertz, 1825",
            .notes = "Fails for a <= 0 and for k <= 0.")

} // namespace ansatz::sgompertz
