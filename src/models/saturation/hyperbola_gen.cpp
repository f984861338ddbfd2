// HyperbolaGen: the generalised hyperbola, rising from P1 - P2 at x = 0 towards P1.
//
//   y = P1 - P2 / (1 + P3 x)^(1/P4)
//
//   P1 limit, P2 the rise that leads to it (both in the unit of y), P3 rate (1/x), P4 shape: 1 gives the
//   plain hyperbola, towards 0 the approach gets steeper.
//
//   Fails for P4 == 0, for 1 + P3 x <= 0 and where the power overflows or underflows to 0.

#include "protocol/handbook_law.h"

namespace ansatz::hyperbola_gen {
namespace {

Status value(const Point& at) {
    const auto [n, P, xs, y, dyda] = at;
    const double base = 1 + P[3] * xs[1];
    if (P[4] == 0 || base <= 0) return fail(at);
    const double W = safe_pow(base, 1 / P[4]);
    if (math_error() || W == 0) return fail(at);
    y[1] = P[1] - P[2] / W;
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, xs, y, dyda] = at;
    const double x = xs[1];
    const double base = 1 + P[3] * x;
    if (P[4] == 0 || base <= 0) return fail(at, 1, 2, 3, 4);
    const double W = safe_pow(base, 1 / P[4]);
    const double log_base = log(base);
    if (math_error() || W == 0) return fail(at, 1, 2, 3, 4);
    const double rest = P[2] / W;
    y[1] = P[1] - rest;
    dyda[1] = 1;
    dyda[2] = -1 / W;
    dyda[3] = rest * x / P[4] / base;
    dyda[4] = -rest * log_base / P[4] / P[4];
    return success;
}

} // namespace

ANSATZ_MODEL(HyperbolaGen, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(HyperbolaGen, .title = "", .formula = "y = a - b/(1 + c x)^(1/d)",
            .parameters = {{"a", "limit for large x, for d > 0", Trait::level},
                           {"b", "rise from x = 0 to the limit", Trait::constant},
                           {"c", "rate, 1/(unit of x)", Trait::rate},
                           {"d", "shape, not 0: 1 for the plain hyperbola", Trait::shape}},
            .notes = "Fails where 1 + c x <= 0 and for d = 0. For d towards 0 only c/d, the rate of an "
                     "exponential approach, is determined.")

} // namespace ansatz::hyperbola_gen
