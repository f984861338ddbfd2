// BET: multilayer adsorption against the relative pressure x.
//
//   BET      y = P1 P2 x / D,  D = 1 + (P2 - 2 - (P2 - 1) x) x = (1 - x) (1 + (P2 - 1) x)
//            P1 amount of a full monolayer (unit of y); P2 energy constant, without a unit
//   BETMod   y = x / D,        D = P1 + (P2 - (P1 + P2) x) x = (1 - x) (P1 + (P1 + P2) x)
//            P1 first, P2 second coefficient (1/unit of y): 1/(m c) and (c - 2)/(m c) for the monolayer
//            amount m and the energy constant c of BET
//
//   Both fail for D == 0, at saturation (x = 1) and at the second zero of D, and nowhere else: beyond
//   saturation the value is negative and means nothing. No library function is called, so a pending error
//   passes through unseen.

#include "protocol/handbook_law.h"

namespace ansatz::bet {
namespace {

double denominator(const double* P, double x) {
    return 1 + (P[2] - 2 - (P[2] - 1) * x) * x;
}

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const double D = denominator(P, x[1]);
    if (D == 0) return fail(at);
    y[1] = P[1] * P[2] * x[1] / D;
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const double D = denominator(P, x[1]);
    if (D == 0) return fail(at, 1, 2);
    const double h = P[2] * x[1] / D;
    dyda[1] = h;
    y[1] = P[1] * h;
    dyda[2] = (P[1] - y[1] * (1 - x[1])) * x[1] / D;
    return success;
}

} // namespace
} // namespace ansatz::bet

namespace ansatz::bet_mod {
namespace {

double denominator(const double* P, double x) {
    return P[1] + (P[2] - (P[1] + P[2]) * x) * x;
}

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const double D = denominator(P, x[1]);
    if (D == 0) return fail(at);
    y[1] = x[1] / D;
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const double D = denominator(P, x[1]);
    if (D == 0) return fail(at, 1, 2);
    const double h = x[1] / D;
    y[1] = h;
    dyda[1] = -h * (1 - x[1] * x[1]) / D;
    dyda[2] = dyda[1] - (x[1] - 1) * h / D;
    return success;
}

} // namespace

ANSATZ_MODEL(BET, HandbookLaw<bet::value, bet::derivatives>)

ANSATZ_PAGE(BET, .title = "", .formula = "y = a b x/((1 - x) (1 + (b - 1) x))",
            .parameters = {{"a", "amount of a full monolayer", Trait::constant},
                           {"b", "energy constant, without a unit", Trait::constant}},
            .notes = "x is the relative pressure, below 1. Fails at x = 1 and where 1 + (b - 1) x = 0; values "
                     "beyond x = 1 mean nothing.")

ANSATZ_MODEL(BETMod, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(
    BETMod, .title = "", .formula = "y = x/((1 - x) (a + (a + b) x))",
    .parameters = {{"a", "1/(m c) for the monolayer amount m and the energy constant c", Trait::constant},
                   {"b", "(c - 2)/(m c)", Trait::constant}},
    .notes = "BET by other constants: c = 2 + b/a and m = 1/(a c). Fails at x = 1 and where a + (a + b) x = 0.")

} // namespace ansatz::bet_mod
