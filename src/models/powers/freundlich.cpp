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
    const Real W = safe_pow(x[1], P[2]);
    if (math_error()) return fail(at, 1, 2);
    dyda[1] = W;
    y[1] = P[1] * W;
    dyda[2] = y[1] * log(x[1]);
    return math_error() ? fail_slots(at, 2) : success;
}

} // namespace

ANSATZ_MODEL(Freundlich, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(Freundlich, .title = "Power law of adsorption", .formula = "y = a x^b",
            .parameters = {{"a", "response at x = 1", Trait::level}, {"b", "exponent", Trait::exponent}},
            .x = {positive}, .typical = {{3, 0.4}, 0.05, 10}, .scales = Scales::y_only,
            .same_as = "Allometric1(a = a, b = b)", .known_as = "Freundlich isotherm",
            .source = "Freundlich, 1906",
            .notes = "Fails for x <= 0, also at x = 0 where a positive b would give 0.")

ANSATZ_PAGE(TimePow, .title = "Power law of time", .formula = "y = a x^b",
            .parameters = {{"a", "response at x = 1", Trait::level}, {"b", "exponent", Trait::exponent}},
            .x = {positive}, .typical = {{2, 1.4}, 0.05, 6}, .scales = Scales::y_only,
            .same_as = "Allometric1(a = a, b = b)",
            .notes = "The same routine as Freundlich. Fails for x <= 0.")

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
    const Real W = safe_pow(x[1], 1 / P[2]);
    if (math_error()) return fail(at, 1, 2);
    dyda[1] = W;
    y[1] = P[1] * W;
    dyda[2] = -y[1] * log(x[1]) / P[2] / P[2];
    return math_error() ? fail_slots(at, 2) : success;
}

} // namespace

ANSATZ_MODEL(FreundlichMod1, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(FreundlichMod1, .title = "Power law by the inverse of its exponent", .formula = "y = a x^(1/b)",
            .parameters = {{"a", "response at x = 1", Trait::level},
                           {"b", "inverse of the exponent", Trait::exponent, not_zero}},
            .x = {positive}, .typical = {{3, 2.5}, 0.05, 10}, .scales = Scales::y_only,
            .same_as = "Allometric1(a = a, b = 1/b)", .known_as = "Freundlich isotherm",
            .source = "Freundlich, 1906", .notes = "Fails for x <= 0 and for b = 0.")

} // namespace ansatz::freundlich_mod1

// Fails also where a quotient of two positive numbers is so small that it is 0.
namespace ansatz::freundlich_evp {
namespace {

bool outside(const Point& at) {
    const Scalar* P = at.P;
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
    const Scalar R = of_parameters<log>(P[3] / P[1]);
    const Real r = log(x[1] / P[1]) / R;
    const Real s = P[2] * safe_pow(P[4] / P[2], r);
    const Real g = of_parameters<log>(P[4] / P[2]) * s / R;
    if (math_error()) return fail_all(at, 4);
    y[1] = s;
    dyda[3] = -g * r / P[3];
    dyda[1] = (r - 1) / P[1] * g;
    dyda[2] = (1 - r) * s / P[2];
    dyda[4] = r * s / P[4];
    return success;
}

} // namespace

ANSATZ_MODEL(FreundlichEVP, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(FreundlichEVP, .title = "Power law by the responses at two positions",
            .formula = "y = y1 (y2/y1)^(ln(x/x1)/ln(x2/x1))",
            .parameters = {{"x1", "x of the response y1", Trait::reference, positive},
                           {"y1", "response at x1", Trait::response, positive},
                           {"x2", "x of the response y2", Trait::reference, positive},
                           {"y2", "response at x2", Trait::response, positive}},
            .x = {positive}, .typical = {{1, 3, 8, 7}, 0.05, 10},
            .same_as = "Allometric1(a = y1 exp(-ln(x1) ln(y2/y1)/ln(x2/x1)), b = ln(y2/y1)/ln(x2/x1))",
            .notes = "Fails unless x and all four parameters are above 0, and for x1 = x2.")

} // namespace ansatz::freundlich_evp
