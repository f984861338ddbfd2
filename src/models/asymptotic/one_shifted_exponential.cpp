// Exp1P1 (routine Exponent), ExponentEVP: exponential growth from a shifted origin.
//
//   Exp1P1        y = e^(x - P1)            P1 shift: the x where y is 1
//   ExponentEVP   y = P2 e^(x - P1)         P1 reference x, P2 response there; reads params[2], writes dyda[2]
//
//   Both fail on a range error alone.

#include "protocol/handbook_law.h"

namespace ansatz {
namespace {
namespace exponent {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    y[1] = safe_exp(x[1] - P[1]);
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const double e = safe_exp(x[1] - P[1]);
    if (math_error()) return fail(at, 1);
    dyda[1] = -e;
    y[1] = e;
    return success;
}

} // namespace exponent

namespace exponent_evp {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    y[1] = P[2] * safe_exp(x[1] - P[1]);
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const double e = safe_exp(x[1] - P[1]);
    if (math_error()) return fail(at, 1, 2);
    const double w = P[2] * e;
    dyda[1] = -w;
    dyda[2] = e;
    y[1] = w;
    return success;
}

} // namespace exponent_evp
} // namespace

ANSATZ_MODEL(Exp1P1, HandbookLaw<exponent::value, exponent::derivatives>)

ANSATZ_PAGE(Exp1P1, .title = "", .formula = "y = exp(x - a)",
            .parameters = {{"a", "shift: x where y is 1", Trait::constant}},
            .notes = "Fails when the exponential overflows.")

ANSATZ_MODEL(ExponentEVP, HandbookLaw<exponent_evp::value, exponent_evp::derivatives>)

ANSATZ_PAGE(ExponentEVP, .title = "", .formula = "y = y1 exp(x - x1)",
            .parameters = {{"x1", "reference x, your choice", Trait::reference},
                           {"y1", "y expected at x1", Trait::constant}},
            .notes = "Fails when the exponential overflows.")

} // namespace ansatz
