#include "protocol/handbook_law.h"
#include "special/power_scale.h"

namespace ansatz::freundlich_3p {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (x[1] <= 0) return fail(at);
    y[1] = P[1] + P[2] * safe_pow(x[1], P[3]);
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (x[1] <= 0) return fail(at, 1, 2, 3);
    const Real W = safe_pow(x[1], P[3]), log_x = log(x[1]);
    const Real rise = P[2] * W;
    y[1] = P[1] + rise;
    dyda[1] = 1;
    dyda[2] = W;
    dyda[3] = rise * log_x;
    return math_error() ? fail(at, 1, 2, 3) : success;
}

} // namespace

ANSATZ_MODEL(Freundlich3P, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(Freundlich3P, .title = "Power law of adsorption, with an offset", .formula = "y = a + b x^c",
            .parameters = {{"a", "offset", Trait::offset},
                           {"b", "amplitude: y - a at x = 1", Trait::amplitude},
                           {"c", "exponent", Trait::exponent}},
            .x = {positive}, .typical = {{1, 2, 0.5}, 0.05, 10}, .scales = Scales::y_only,
            .same_as = "Allometric2(a = a, b = b, c = c)",
            .notes = "Fails for x <= 0. With c close to 0 the power term is hard to tell from the offset.")

} // namespace ansatz::freundlich_3p

// On the derivative path dyda[1] stays 1 after an error of the power. The logarithm in dyda[3] is not tested:
// where the power exists but ln x does not (x < 0, or x == 0), dyda[3] is not a number although the call
// succeeds, and the error indicator stays set.
namespace ansatz::freundlich_3p_mod {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (P[3] == 0) return fail(at);
    y[1] = P[1] + P[2] * safe_pow(x[1], 1 / P[3]);
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (P[3] == 0) return fail(at, 1, 2, 3);
    dyda[1] = 1;
    const Real w = safe_pow(x[1], 1 / P[3]);
    if (math_error()) return fail(at, 2, 3);
    dyda[2] = w;
    dyda[3] = -P[2] * w * log(x[1]) / (P[3] * P[3]);
    y[1] = P[1] + P[2] * w;
    return success;
}

} // namespace

ANSATZ_MODEL(Freundlich3PMod, BothPaths<value, derivatives>)

ANSATZ_PAGE(Freundlich3PMod, .title = "Power law with an offset, by the inverse of its exponent",
            .formula = "y = a + b x^(1/c)",
            .parameters = {{"a", "offset", Trait::offset},
                           {"b", "amplitude: y - a at x = 1", Trait::amplitude},
                           {"c", "inverse of the exponent", Trait::exponent, not_zero}},
            .x = {positive}, .typical = {{1, 2, 2}, 0.05, 10}, .scales = Scales::y_only,
            .departures = {{3, "x = 0"}}, .same_as = "Allometric2(a = a, b = b, c = 1/c)",
            .notes = "Fails for c = 0, and for x = 0 with c < 0. At x = 0 with c > 0 there is a value, but no "
                     "derivative by c, and so no fit; for x < 0 the same where 1/c is a whole number.")

} // namespace ansatz::freundlich_3p_mod

namespace ansatz::freundlich_3p_evp1 {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (x[1] <= 0 || P[1] <= 0) return fail(at);
    y[1] = P[3] + (P[2] - P[3]) * safe_pow(x[1] / P[1], P[4]);
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (x[1] <= 0 || P[1] <= 0) return fail(at, 1, 2, 3, 4);
    const Real ratio = x[1] / P[1];
    const Real W = safe_pow(ratio, P[4]);
    const Real rise = (P[2] - P[3]) * W;
    y[1] = P[3] + rise;
    dyda[1] = -rise * P[4] / P[1];
    dyda[2] = W;
    dyda[3] = 1 - W;
    dyda[4] = rise * log(ratio);
    return math_error() ? fail(at, 1, 2, 3, 4) : success;
}

} // namespace

ANSATZ_MODEL(Freundlich3PEVP1, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(Freundlich3PEVP1, .title = "Power law with an offset, by the response at one position",
            .formula = "y = a + (y1 - a) (x/x1)^c",
            .parameters = {{"x1", "x of the response y1", Trait::reference, positive},
                           {"y1", "response at x1", Trait::response},
                           {"a", "offset", Trait::offset},
                           {"c", "exponent", Trait::exponent}},
            .x = {positive}, .typical = {{4, 5, 1, 0.5}, 0.05, 10},
            .same_as = "Allometric2(a = a, b = (y1 - a) x1^(-c), c = c)",
            .notes = "Freundlich3P through the point (x1, y1). Fails for x <= 0 and x1 <= 0.")

} // namespace ansatz::freundlich_3p_evp1

namespace ansatz::freundlich_3p_evp2 {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (x[1] <= 0 || P[1] <= 0 || P[3] <= 0) return fail(at);
    const PowerScale scale(x[1], P[1], P[3], P[5]);
    if (math_error() || scale.span == 0) return fail(at);
    y[1] = P[2] + (P[4] - P[2]) * scale.place;
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (x[1] <= 0 || P[1] <= 0 || P[3] <= 0) return fail(at, 1, 2, 3, 4, 5);
    const PowerScale scale(x[1], P[1], P[3], P[5]);
    const auto [by_first, by_second, by_b] = scale.slopes(x[1], P[1], P[3], P[5]);
    if (math_error() || scale.span == 0) return fail(at, 1, 2, 3, 4, 5);
    const Scalar rise = P[4] - P[2];
    y[1] = P[2] + rise * scale.place;
    dyda[1] = rise * by_first;
    dyda[2] = scale.rest();
    dyda[3] = rise * by_second;
    dyda[4] = scale.place;
    dyda[5] = rise * by_b;
    return success;
}

} // namespace

ANSATZ_MODEL(Freundlich3PEVP2, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(
    Freundlich3PEVP2, .title = "Power law with an offset, by the responses at two positions",
    .formula = "y = y1 + (y2 - y1) (x^c - x1^c)/(x2^c - x1^c)",
    .parameters = {{"x1", "x of the response y1", Trait::reference, positive},
                   {"y1", "response at x1", Trait::response},
                   {"x2", "x of the response y2", Trait::reference, positive},
                   {"y2", "response at x2", Trait::response},
                   {"c", "exponent", Trait::exponent, not_zero}},
    .x = {positive}, .typical = {{1, 3, 8, 7, 0.4}, 0.05, 10},
    .same_as = "Allometric2(a = y1 - (y2 - y1) x1^c/(x2^c - x1^c), b = (y2 - y1)/(x2^c - x1^c), c = c)",
    .notes =
        "Freundlich3P through the points (x1, y1) and (x2, y2). Fails for x, x1 or x2 <= 0, for x1 = x2 and "
        "for c = 0, close to which it loses digits. A fit cannot cross c = 0: start with the right sign.")

} // namespace ansatz::freundlich_3p_evp2
