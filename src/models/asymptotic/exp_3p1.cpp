// Exp3P1, Exp3P1Md: an exponential of a shifted reciprocal, as vapour pressures and viscosities follow it
// with the temperature x.
//
//   Exp3P1     y = P1 e^(P2/(x + P3))
//     P1 the limit for large x (unit of y), P2 and P3 in the unit of x.
//   Exp3P1Md   y = e^(P1 + P2/(x + P3))
//     the same curves as long as they are positive; P1 is the logarithm of the limit.
//
//   Fails for x + P3 == 0 and where the exponential overflows. An exponent below -300 gives 0.

#include "protocol/handbook_law.h"

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

ANSATZ_MODEL(Exp3P1, HandbookLaw<exp_3p1::value, exp_3p1::derivatives>)

ANSATZ_PAGE(Exp3P1, .title = "", .formula = "y = a exp(b/(x + c))",
            .parameters = {{"a", "limit for large x", Trait::level},
                           {"b", "strength of the exponent, in the unit of x", Trait::constant},
                           {"c", "shift, in the unit of x", Trait::constant}},
            .notes = "Fails at x = -c and where the exponential overflows. The three parameters are strongly "
                     "correlated: a fit from afar may need hundreds of iterations.")

ANSATZ_MODEL(Exp3P1Md, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(Exp3P1Md, .title = "", .formula = "y = exp(a + b/(x + c))",
            .parameters = {{"a", "logarithm of the limit for large x", Trait::constant},
                           {"b", "strength of the exponent, in the unit of x", Trait::constant},
                           {"c", "shift, in the unit of x", Trait::constant}},
            .notes = "Positive responses only. Fails at x = -c and where the exponential overflows.")

} // namespace ansatz::exp_3p1_md
