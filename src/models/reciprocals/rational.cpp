// Rational: the quotient of two straight lines.
//
//   y = (P1 + P2 x) / (P3 + P4 x)
//
//   Only the ratios of the four parameters matter: a fit should hold one of them fixed.
//
//   Fails where the denominator is 0; the value also for nParams < 1, although four parameters are read
//   whatever their number. No library function is called, so a pending error passes through unseen.

#include "protocol/forms.h"

namespace ansatz::rational {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (n < 1) return fail(at);
    const double d = P[4] * x[1] + P[3];
    if (d == 0) return fail(at);
    y[1] = (P[2] * x[1] + P[1]) / d;
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, xs, y, dyda] = at;
    const double x = xs[1];
    const double d = P[4] * x + P[3];
    if (d == 0) return fail(at, 1, 2, 3, 4);
    dyda[1] = 1 / d;
    dyda[2] = x / d;
    y[1] = (P[2] * x + P[1]) / d;
    dyda[3] = -y[1] / d;
    dyda[4] = dyda[3] * x;
    return success;
}

} // namespace

ANSATZ_MODEL(Rational, BothPaths<value, derivatives>)

ANSATZ_PAGE(Rational, .title = "", .formula = "y = (a + b x)/(c + d x)",
            .parameters = {{"a", "constant of the numerator", Trait::constant},
                           {"b", "slope of the numerator", Trait::slope},
                           {"c", "constant of the denominator", Trait::constant},
                           {"d", "slope of the denominator", Trait::slope}},
            .notes = "Only the ratios of the parameters matter: hold one of them fixed in a fit, c=1 for "
                     "instance. Fails only where the denominator is exactly 0.")

} // namespace ansatz::rational
