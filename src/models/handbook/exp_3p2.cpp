// Exp3P2: the exponential of a parabola.
//
//   y = e^(P1 + P2 x + P3 x^2)
//
//   P1 the logarithm of the response at x = 0, P2 (1/x) and P3 (1/x^2) the coefficients of the parabola. With
//   P3 < 0 it is a Gaussian with its maximum at x = -P2/(2 P3).
//
//   Fails where the exponential overflows only. An exponent below -300 gives 0.

#include "models/handbook/law.h"

namespace ansatz::exp_3p2 {
namespace {

Status value(const Point& at) {
    const auto [n, P, xs, y, dyda] = at;
    const double x = xs[1];
    y[1] = safe_exp(P[1] + P[2] * x + P[3] * (x * x));
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, xs, y, dyda] = at;
    const double x = xs[1];
    y[1] = safe_exp(P[1] + P[2] * x + P[3] * (x * x));
    dyda[1] = y[1];
    dyda[2] = y[1] * x;
    dyda[3] = dyda[2] * x;
    return math_error() ? fail(at, 1, 2, 3) : success;
}

} // namespace
} // namespace ansatz::exp_3p2

ANSATZ_MODEL(Ratkowsky4339, ansatz::HandbookLaw<ansatz::exp_3p2::value, ansatz::exp_3p2::derivatives>)
