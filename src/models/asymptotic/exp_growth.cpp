// ExpGrowth: exponential growth from x = 0.
//
//   y = P1 e^(x/P2)
//
//   P1 the response at x = 0, P2 the stretch of x in which the response grows by the factor e; negative: decay.
//
//   Fails for P2 == 0 and where the exponential overflows. An exponent below -300 gives 0.

#include "protocol/handbook_law.h"

namespace ansatz::exp_growth {
namespace {

Status value(const Point& at) {
    const auto [n, P, xs, y, dyda] = at;
    if (P[2] == 0) return fail(at);
    y[1] = P[1] * safe_exp(xs[1] / P[2]);
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, xs, y, dyda] = at;
    if (P[2] == 0) return fail(at, 1, 2);
    const double exponent = xs[1] / P[2];
    const double E = safe_exp(exponent);
    y[1] = P[1] * E;
    dyda[1] = E;
    dyda[2] = -y[1] * exponent / P[2];
    return math_error() ? fail(at, 1, 2) : success;
}

} // namespace

ANSATZ_MODEL(ExpGrowth, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(ExpGrowth, .title = "", .formula = "y = a exp(x/t)",
            .parameters = {{"a", "response at x = 0", Trait::level},
                           {"t", "x over which y grows by the factor e; negative for decay", Trait::constant}},
            .notes = "Fails for t = 0. A fit cannot cross t = 0: start with the right sign.")

} // namespace ansatz::exp_growth
