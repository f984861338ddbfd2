// Freundlich: the power law of adsorption (and of much else: "TimePow" is the same routine).
//
//   Freundlich       y = P1 x^P2          P1 scale, the response at x = 1; P2 exponent
//                                         fails: x <= 0, overflow
//   FreundlichMod1   y = P1 x^(1/P2)      P1 scale; P2 inverse exponent
//                                         fails: x <= 0, P2 == 0, overflow
//   FreundlichEVP    y = P2 (P4/P2)^r,  r = ln(x/P1) / ln(P3/P1)
//                                         P1, P3 reference positions; P2, P4 responses expected there
//                                         fails: a parameter or x <= 0, P1 == P3, overflow, a quotient
//                                         of positive numbers so small that it is 0
//
//   x = 0 fails although the law has a value there for a positive exponent.

#include "protocol/handbook_law.h"

namespace ansatz::freundlich {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (x[1] <= 0) return fail(at);
    y[1] = P[1] * safe_pow(x[1], P[2]);
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (x[1] <= 0) return fail(at, 1, 2);
    const double W = safe_pow(x[1], P[2]);
    if (math_error()) return fail(at, 1, 2);
    dyda[1] = W;
    y[1] = P[1] * W;
    dyda[2] = y[1] * log(x[1]);
    return math_error() ? fail_slots(at, 2) : success;
}

} // namespace
} // namespace ansatz::freundlich

namespace ansatz::freundlich_mod1 {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (x[1] <= 0 || P[2] == 0) return fail(at);
    y[1] = P[1] * safe_pow(x[1], 1 / P[2]);
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (x[1] <= 0 || P[2] == 0) return fail(at, 1, 2);
    const double W = safe_pow(x[1], 1 / P[2]);
    if (math_error()) return fail(at, 1, 2);
    dyda[1] = W;
    y[1] = P[1] * W;
    dyda[2] = -y[1] * log(x[1]) / P[2] / P[2];
    return math_error() ? fail_slots(at, 2) : success;
}

} // namespace
} // namespace ansatz::freundlich_mod1

namespace ansatz::freundlich_evp {
namespace {

bool outside(const Point& at) {
    const double* P = at.P;
    return P[1] <= 0 || P[3] <= 0 || P[2] <= 0 || P[4] <= 0 || at.x[1] <= 0 || P[1] == P[3];
}

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (outside(at)) return fail(at);
    y[1] = P[2] * safe_pow(P[4] / P[2], log(x[1] / P[1]) / of_parameters<log>(P[3] / P[1]));
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (outside(at)) return fail_all(at, 4);
    const double R = of_parameters<log>(P[3] / P[1]), r = log(x[1] / P[1]) / R;
    const double s = P[2] * safe_pow(P[4] / P[2], r);
    const double g = of_parameters<log>(P[4] / P[2]) * s / R;
    if (math_error()) return fail_all(at, 4);
    y[1] = s;
    dyda[3] = -g * r / P[3];
    dyda[1] = (r - 1) / P[1] * g;
    dyda[2] = (1 - r) * s / P[2];
    dyda[4] = r * s / P[4];
    return success;
}

} // namespace

ANSATZ_MODEL(Freundlich, HandbookLaw<freundlich::value, freundlich::derivatives>)

ANSATZ_PAGE(Freundlich, .title = "", .formula = "y = a x^b",
            .parameters = {{"a", "response at x = 1", Trait::level}, {"b", "exponent", Trait::exponent}},
            .notes = "Fails for x <= 0, also at x = 0 where a positive b would give 0.")

ANSATZ_PAGE(TimePow, .title = "", .formula = "y = a x^b",
            .parameters = {{"a", "response at x = 1", Trait::level}, {"b", "exponent", Trait::exponent}},
            .notes = "The same routine as Freundlich. Fails for x <= 0.")

ANSATZ_MODEL(FreundlichMod1, HandbookLaw<freundlich_mod1::value, freundlich_mod1::derivatives>)

ANSATZ_PAGE(FreundlichMod1, .title = "", .formula = "y = a x^(1/b)",
            .parameters = {{"a", "response at x = 1", Trait::level},
                           {"b", "inverse of the exponent, not 0", Trait::constant}},
            .notes = "Fails for x <= 0 and for b = 0.")

ANSATZ_MODEL(FreundlichEVP, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(FreundlichEVP, .title = "", .formula = "y = y1 (y2/y1)^(ln(x/x1)/ln(x2/x1))",
            .parameters = {{"x1", "x of the response y1", Trait::reference},
                           {"y1", "response at x1", Trait::response},
                           {"x2", "x of the response y2", Trait::reference},
                           {"y2", "response at x2", Trait::response}},
            .notes = "The power law through the points (x1, y1) and (x2, y2). Fails unless x and all four are "
                     "above 0, and for x1 = x2.")

} // namespace ansatz::freundlich_evp
