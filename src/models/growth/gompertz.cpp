// SGompertz: growth that starts fast and closes in on its ceiling slowly.
//
//   y = P1 e^(-e^(-(x - P2) P3))
//
//   P1 ceiling, P2 time of the fastest growth (where y is P1/e), P3 rate (1 / unit of x).
//
//   Fails for P1 <= 0 and for P3 <= 0. Where the inner exponential overflows, long before the growth, y and all
//   slopes are 0; asked for value and derivatives at once, such a point gets the value only.

#include "protocol/limits.h"

namespace ansatz::gompertz {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (P[1] <= 0 || P[3] <= 0) return fail(at);
    const double t = safe_exp(-(x[1] - P[2]) * P[3]);
    if (range_error()) {
        reaches(at, 0);
        return ends_call;
    }
    const double g = safe_exp(-t);
    if (math_error()) return fail(at);
    y[1] = g * P[1];
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (P[1] <= 0 || P[3] <= 0) return fail(at, 1, 2, 3);
    const double d = x[1] - P[2], rate = P[3];
    const double t = safe_exp(-d * rate);
    if (range_error()) return reaches(at, 0, 0, 0, 0);
    const double g = safe_exp(-t);
    if (math_error()) return fail(at, 1, 2, 3);
    const double level = P[1] * g;
    const double w = level * t;
    y[1] = level;
    dyda[1] = g;
    dyda[2] = -w * rate;
    dyda[3] = w * d;
    return success;
}

} // namespace

ANSATZ_MODEL(SGompertz, BothPaths<value, derivatives>)

ANSATZ_PAGE(SGompertz, .title = "", .formula = "y = a exp(-exp(-(x - xc) k))",
            .parameters = {{"a", "ceiling, above 0", Trait::ceiling},
                           {"xc", "centre: x of the fastest growth, where y = a/e", Trait::position},
                           {"k", "rate, above 0", Trait::rate}},
            .notes = "Fails for a <= 0 and for k <= 0.")

} // namespace ansatz::gompertz
