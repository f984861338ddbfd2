// Chapman: growth from 0 towards a limit, with a sigmoid start where P3 > 1.
//
//   y = P1 (1 - e^(-P2 x))^P3
//
//   P1 limit (unit of y), P2 rate (1/x), P3 shape.
//
//   Fails where the base 1 - e^(-P2 x) is negative (P2 and x of different signs), where it is 0 and P3 <= 0,
//   and where the exponential or the power overflows. Where the base is 0 and P3 > 0 the value and all
//   derivatives are 0, although for P3 <= 1 the true slope by P2 at P2 = 0 is not: a fit that starts there does
//   not move.

#include "protocol/handbook_law.h"

namespace ansatz::chapman {
namespace {

/// Outside the domain of the law, whatever P1.
bool outside(double base, double P3) {
    return base < 0 || (base == 0 && P3 <= 0);
}

Status value(const Point& at) {
    const auto [n, P, xs, y, dyda] = at;
    const double base = 1 - safe_exp(-P[2] * xs[1]);
    if (math_error() || outside(base, P[3])) return fail(at);
    if (base == 0 && P[3] > 0) {
        y[1] = 0;
        return success;
    }
    y[1] = P[1] * safe_pow(base, P[3]);
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, xs, y, dyda] = at;
    const double x = xs[1];
    const double E = safe_exp(-P[2] * x);
    const double base = 1 - E;
    if (math_error() || outside(base, P[3])) return fail(at, 1, 2, 3);
    if (base == 0 && P[3] > 0) {
        y[1] = dyda[1] = dyda[2] = dyda[3] = 0;
        return success;
    }
    const double W = safe_pow(base, P[3]);
    y[1] = P[1] * W;
    dyda[1] = W;
    dyda[2] = y[1] * P[3] / base * x * E;
    dyda[3] = y[1] * log(base);
    return math_error() ? fail(at, 1, 2, 3) : success;
}

} // namespace

ANSATZ_MODEL(Chapman, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(Chapman, .title = "", .formula = "y = a (1 - exp(-b x))^c",
            .parameters = {{"a", "limit", Trait::level},
                           {"b", "rate, 1/(unit of x)", Trait::rate},
                           {"c", "shape: above 1 for a sigmoid start", Trait::shape}},
            .notes = "Fails where b and x have different signs, and at x = 0 for c <= 0. b = 0 has no "
                     "derivatives: a fit that starts there does not move.")

} // namespace ansatz::chapman
