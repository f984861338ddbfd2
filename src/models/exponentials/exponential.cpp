// Exponential. The value also fails where k x > 1000, an overflow anyway unless k x is infinite: there the
// derivatives still answer, with infinities.

#include "protocol/forms.h"

namespace ansatz::exponential {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Real u = P[3] * x[1];
    if (u > 1000) return fail(at);
    y[1] = safe_exp(u) * P[2] + P[1];
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Real e = safe_exp(P[3] * x[1]);
    if (math_error()) return fail(at, 1, 2, 3);
    dyda[1] = 1;
    dyda[2] = e;
    dyda[3] = P[2] * e * x[1];
    y[1] = e * P[2] + P[1];
    return success;
}

} // namespace

ANSATZ_MODEL(Exponential, BothPaths<value, derivatives>)

ANSATZ_PAGE(Exponential, .title = "Exponential growth or decay on an offset, by a rate",
            .formula = "y = y0 + A exp(k x)",
            .parameters = {{"y0", "offset", Trait::offset},
                           {"A", "amplitude, height above the offset at x = 0", Trait::amplitude},
                           {"k", "rate, 1/(unit of x); positive for growth, negative for decay", Trait::rate}},
            .typical = {{1, 0.5, 0.3}, 0, 10}, .same_as = "ExpDec1(y0 = y0, A1 = A, t1 = -1/k)",
            .notes = "Fails where the exponential overflows, for k x above 709, even with an amplitude of 0.")

} // namespace ansatz::exponential
