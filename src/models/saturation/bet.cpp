// BET and BETMod. They fail where the denominator is exactly 0, and nowhere else. No library function is
// called, so a pending error passes through unseen.

#include "protocol/handbook_law.h"

namespace ansatz::bet {
namespace {

Real denominator(const Scalar* P, Real x) {
    return 1 + (P[2] - 2 - (P[2] - 1) * x) * x;
}

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Real D = denominator(P, x[1]);
    if (D == 0) return fail(at);
    y[1] = P[1] * P[2] * x[1] / D;
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Real D = denominator(P, x[1]);
    if (D == 0) return fail(at, 1, 2);
    const Real h = P[2] * x[1] / D;
    dyda[1] = h;
    y[1] = P[1] * h;
    dyda[2] = (P[1] - y[1] * (1 - x[1])) * x[1] / D;
    return success;
}

} // namespace

ANSATZ_MODEL(BET, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(BET, .title = "Multilayer adsorption against the relative pressure",
            .formula = "y = a b x/((1 - x) (1 + (b - 1) x))",
            .parameters = {{"a", "amount of a full monolayer", Trait::level, positive},
                           {"b", "energy constant, without a unit", Trait::shape, positive}},
            .x = {Limits{.lower = 0, .upper = 1, .upper_open = true}}, .typical = {{2, 40}, 0, 0.8},
            .scales = Scales::y_only, .known_as = "Brunauer-Emmett-Teller isotherm",
            .source = "Brunauer, Emmett and Teller, 1938",
            .notes = "x is the relative pressure, below 1. Fails at x = 1 and where 1 + (b - 1) x = 0; values "
                     "beyond x = 1 are negative and mean nothing.")

} // namespace ansatz::bet

namespace ansatz::bet_mod {
namespace {

Real denominator(const Scalar* P, Real x) {
    return P[1] + (P[2] - (P[1] + P[2]) * x) * x;
}

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Real D = denominator(P, x[1]);
    if (D == 0) return fail(at);
    y[1] = x[1] / D;
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Real D = denominator(P, x[1]);
    if (D == 0) return fail(at, 1, 2);
    const Real h = x[1] / D;
    y[1] = h;
    dyda[1] = -h * (1 - x[1] * x[1]) / D;
    dyda[2] = dyda[1] - (x[1] - 1) * h / D;
    return success;
}

} // namespace

ANSATZ_MODEL(BETMod, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(
    BETMod,
    .title = "Multilayer adsorption against the relative pressure, by the coefficients of its straight line",
    .formula = "y = x/((1 - x) (a + (a + b) x))",
    .parameters = {{"a", "1/(m c) for the monolayer amount m and the energy constant c", Trait::inverse_level,
                    positive},
                   {"b", "(c - 2)/(m c)", Trait::inverse_level}},
    .x = {Limits{.lower = 0, .upper = 1, .upper_open = true}}, .typical = {{0.0125, 0.475}, 0, 0.8},
    .scales = Scales::y_only, .same_as = "BET(a = 1/(2 a + b), b = 2 + b/a)",
    .known_as = "Brunauer-Emmett-Teller isotherm", .source = "Brunauer, Emmett and Teller, 1938",
    .notes = "x is the relative pressure. Fails at x = 1 and where a + (a + b) x = 0; values beyond x = 1 are "
             "negative and mean nothing.")

} // namespace ansatz::bet_mod
