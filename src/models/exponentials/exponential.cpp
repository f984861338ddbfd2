// Exponential: an exponential given by its rate.
//
//   y = P1 + P2 e^(P3 x)
//
//   P1 offset, P2 amplitude, the height above the offset at x = 0 (both unit of y), P3 rate (1 / unit of x;
//   positive: growth, negative: decay).
//
//   Fails on an overflow of the exponential, even with an amplitude of 0. The value also fails where P3 x >
//   1000, an overflow anyway unless P3 x is infinite: there the derivatives still answer, with infinities.

#include "protocol/forms.h"

namespace ansatz::exponential {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const double u = P[3] * x[1];
    if (u > 1000) return fail(at);
    y[1] = safe_exp(u) * P[2] + P[1];
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const double e = safe_exp(P[3] * x[1]);
    if (math_error()) return fail(at, 1, 2, 3);
    dyda[1] = 1;
    dyda[2] = e;
    dyda[3] = P[2] * e * x[1];
    y[1] = e * P[2] + P[1];
    return success;
}

} // namespace

ANSATZ_MODEL(Exponential, BothPaths<value, derivatives>)

ANSATZ_PAGE(Exponential, .title = "", .formula = "y = y0 + A exp(k x)",
            .parameters = {{"y0", "offset", Trait::offset},
                           {"A", "amplitude, height above the offset at x = 0", Trait::amplitude},
                           {"k", "rate, 1/unit of x; positive: growth, negative: decay", Trait::rate}},
            .notes = "Fails where the exponential overflows, for k x above 709.")

} // namespace ansatz::exponential
