// Exp3P1, Exp3P1Md: an exponential of a shifted reciprocal, as vapour pressures and viscosities follow it
// with the temperature x.
//
//   Exp3P1     y = P1 e^(P2/(x + P3))
//     P1 the limit for large x (unit of y), P2 and P3 in the unit of x.
//   Exp3P1Md   y = e^(P1 + P2/(x + P3))
//     the same curves as long as they are positive; P1 is the logarithm of the limit.
//
//   Fails for x + P3 == 0 and where the exponential overflows. An exponent below -300 gives 0.

#include "models/handbook/law.h"

namespace ansatz::exp_3p1 {
namespace {

Status value(const Point& at) {
    const auto [n, P, xs, y, dyda] = at;
    const double shifted = xs[1] + P[3];
    if (shifted == 0) return fail(at);
    y[1] = P[1] * safe_exp(P[2] / shifted);
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, xs, y, dyda] = at;
    const double shifted = xs[1] + P[3];
    if (shifted == 0) return fail(at, 1, 2, 3);
    const double exponent = P[2] / shifted;
    const double E = safe_exp(exponent);
    y[1] = P[1] * E;
    dyda[1] = E;
    dyda[2] = y[1] / shifted;
    dyda[3] = -dyda[2] * exponent;
    return math_error() ? fail(at, 1, 2, 3) : success;
}

} // namespace
} // namespace ansatz::exp_3p1

namespace ansatz::exp_3p1_md {
namespace {

Status value(const Point& at) {
    const auto [n, P, xs, y, dyda] = at;
    const double shifted = xs[1] + P[3];
    if (shifted == 0) return fail(at);
    y[1] = safe_exp(P[1] + P[2] / shifted);
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, xs, y, dyda] = at;
    const double shifted = xs[1] + P[3];
    if (shifted == 0) return fail(at, 1, 2, 3);
    const double reciprocal = P[2] / shifted;
    y[1] = safe_exp(P[1] + reciprocal);
    dyda[1] = y[1];
    dyda[2] = y[1] / shifted;
    dyda[3] = -dyda[2] * reciprocal;
    return math_error() ? fail(at, 1, 2, 3) : success;
}

} // namespace
} // namespace ansatz::exp_3p1_md

ANSATZ_MODEL(Ratkowsky4333, ansatz::HandbookLaw<ansatz::exp_3p1::value, ansatz::exp_3p1::derivatives>)
ANSATZ_MODEL(Ratkowsky4334, ansatz::HandbookLaw<ansatz::exp_3p1_md::value, ansatz::exp_3p1_md::derivatives>)
