// Chapman. Where the base 1 - e^(-P2 x) is 0 and P3 > 0 the value and all derivatives are 0, although for P3 <=
// 1 the true slope by P2 at P2 = 0 is not.

#include "protocol/handbook_law.h"

namespace ansatz::chapman {
namespace {

/// Outside the domain of the law, whatever P1.
bool outside(Real base, Scalar P3) {
    return base < 0 || (base == 0 && P3 <= 0);
}

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Real base = 1 - safe_exp(-P[2] * x[1]);
    if (math_error() || outside(base, P[3])) return fail(at);
    if (base == 0 && P[3] > 0) {
        y[1] = 0;
        return success;
    }
    y[1] = P[1] * safe_pow(base, P[3]);
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Real E = safe_exp(-P[2] * x[1]);
    const Real base = 1 - E;
    if (math_error() || outside(base, P[3])) return fail(at, 1, 2, 3);
    if (base == 0 && P[3] > 0) {
        y[1] = dyda[1] = dyda[2] = dyda[3] = 0;
        return success;
    }
    const Real W = safe_pow(base, P[3]);
    y[1] = P[1] * W;
    dyda[1] = W;
    dyda[2] = y[1] * P[3] / base * x[1] * E;
    dyda[3] = y[1] * log(base);
    return math_error() ? fail(at, 1, 2, 3) : success;
}

} // namespace

ANSATZ_MODEL(Chapman, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(Chapman, .title = "Growth from 0 towards a limit, with a start whose shape is a parameter",
            .formula = "y = a (1 - exp(-b x))^c",
            .parameters = {{"a", "limit", Trait::ceiling},
                           {"b", "rate, 1/(unit of x)", Trait::rate, positive},
                           {"c", "shape: above 1 for a sigmoid start", Trait::shape, positive}},
            .x = {not_negative}, .typical = {{8, 0.5, 3}, 0, 14}, .departures = {{2, "b = 0, c <= 1"}},
            .known_as = "Chapman-Richards growth curve", .source = "Richards, 1959; Chapman, 1961",
            .notes = "Fails where b and x have different signs, and at x = 0 for c <= 0. b = 0 has no "
                     "derivatives: a fit that starts there does not move.")

} // namespace ansatz::chapman
