// Exp3P2: the exponential of a parabola.
//
//   y = e^(P1 + P2 x + P3 x^2)
//
//   P1 the logarithm of the response at x = 0, P2 (1/x) and P3 (1/x^2) the coefficients of the parabola. With
//   P3 < 0 it is a Gaussian with its maximum at x = -P2/(2 P3).
//
//   Fails where the exponential overflows only. An exponent below -300 gives 0.

#include "protocol/handbook_law.h"

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

ANSATZ_MODEL(Exp3P2, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(Exp3P2, .title = "", .formula = "y = exp(a + b x + c x^2)",
            .parameters = {{"a", "logarithm of the response at x = 0", Trait::constant},
                           {"b", "1/(unit of x)", Trait::constant},
                           {"c", "1/(unit of x)^2; negative for a bell with its maximum at x = -b/(2 c)",
                            Trait::constant}},
            .notes = "Positive responses only. Fails where the exponential overflows.")

} // namespace ansatz::exp_3p2
