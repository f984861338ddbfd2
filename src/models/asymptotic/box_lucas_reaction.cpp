// BoxLucas1, BoxLucas2: the product of a first-order reaction over time, and the intermediate of two in a row.
//
//   BoxLucas1   y = P1 (1 - e^(-P2 x))                               P1 plateau, P2 rate
//   BoxLucas2   y = P1 (e^(-P2 x) - e^(-P1 x)) / (P1 - P2)           P1 rate of formation, P2 rate of decay
//
//   Rates are per unit of x and may be negative. Both fail on a range error, BoxLucas2 also for equal rates,
//   whose limit it does not take: on the derivative path that marks y[1] alone. With P1 == 0 BoxLucas2 has the
//   value 0, once both exponentials have passed, and the call ends there: no derivatives, even when both were
//   requested. Close to equal rates digits are lost to cancellation.

#include "protocol/forms.h"

namespace ansatz {
namespace {
namespace box_lucas1 {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    y[1] = P[1] * (1 - safe_exp(-P[2] * x[1]));
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const double e = safe_exp(-P[2] * x[1]);
    if (math_error()) return fail(at, 1, 2);
    const double rise = 1 - e;
    dyda[1] = rise;
    dyda[2] = x[1] * P[1] * e;
    y[1] = P[1] * rise;
    return success;
}

} // namespace box_lucas1

namespace box_lucas2 {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const double d = P[1] - P[2];
    if (d == 0) return fail(at);
    const double e1 = safe_exp(-P[1] * x[1]);
    const double e2 = safe_exp(-P[2] * x[1]);
    if (math_error()) return fail(at);
    if (P[1] == 0) {
        y[1] = 0;
        return ends_call;
    }
    y[1] = P[1] * (e2 - e1) / d;
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const double d = P[1] - P[2];
    if (d == 0) return fail(at);
    const double e1 = safe_exp(-P[1] * x[1]);
    const double e2 = safe_exp(-P[2] * x[1]);
    if (math_error()) return fail(at, 1, 2);
    const double D = e2 - e1;
    const double yield = D * P[1] / d;
    dyda[1] = (D - yield + e1 * P[1] * x[1]) / d;
    dyda[2] = (yield - e2 * P[1] * x[1]) / d;
    y[1] = P[1] == 0 ? 0 : yield;
    return success;
}

} // namespace box_lucas2
} // namespace

ANSATZ_MODEL(BoxLucas1, BothPaths<box_lucas1::value, box_lucas1::derivatives>)

ANSATZ_PAGE(BoxLucas1, .title = "", .formula = "y = a (1 - exp(-b x))",
            .parameters = {{"a", "plateau", Trait::level}, {"b", "rate, 1/(unit of x)", Trait::rate}},
            .notes = "Fails when the exponential overflows.")

ANSATZ_MODEL(BoxLucas2, BothPaths<box_lucas2::value, box_lucas2::derivatives>)

ANSATZ_PAGE(BoxLucas2, .title = "", .formula = "y = a (exp(-b x) - exp(-a x))/(a - b)",
            .parameters = {{"a", "rate of formation, 1/(unit of x)", Trait::rate},
                           {"b", "rate of decay, 1/(unit of x)", Trait::rate}},
            .notes = "Fails for a = b. Start on the right side of it: the larger rate is a where formation is "
                     "the faster step.")

} // namespace ansatz
