// HyperbolaGen. The power may overflow or underflow to 0: both fail.

#include "protocol/handbook_law.h"

namespace ansatz::hyperbola_gen {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Real base = 1 + P[3] * x[1];
    if (P[4] == 0 || base <= 0) return fail(at);
    const Real W = safe_pow(base, 1 / P[4]);
    if (math_error() || W == 0) return fail(at);
    y[1] = P[1] - P[2] / W;
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Real base = 1 + P[3] * x[1];
    if (P[4] == 0 || base <= 0) return fail(at, 1, 2, 3, 4);
    const Real W = safe_pow(base, 1 / P[4]);
    const Real log_base = log(base);
    if (math_error() || W == 0) return fail(at, 1, 2, 3, 4);
    const Real rest = P[2] / W;
    y[1] = P[1] - rest;
    dyda[1] = 1;
    dyda[2] = -1 / W;
    dyda[3] = rest * x[1] / P[4] / base;
    dyda[4] = -rest * log_base / P[4] / P[4];
    return success;
}

} // namespace

ANSATZ_MODEL(HyperbolaGen, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(HyperbolaGen, .title = "Approach to a limit along a hyperbola whose power is a parameter",
            .formula = "y = a - b/(1 + c x)^(1/d)",
            .parameters = {{"a", "limit for large x, for d > 0", Trait::level},
                           {"b", "rise from x = 0 to the limit", Trait::amplitude},
                           {"c", "rate, 1/(unit of x)", Trait::rate},
                           {"d", "shape: 1 for the plain hyperbola", Trait::exponent, not_zero}},
            .typical = {{8, 6, 1, 0.5}, 0, 8}, .known_as = "generalised hyperbola",
            .notes = "Fails where 1 + c x <= 0, for d = 0 and where the power overflows. For d towards 0 only "
                     "c/d, the rate of an "
                     "exponential approach, is determined.")

} // namespace ansatz::hyperbola_gen
