#include "protocol/handbook_law.h"

namespace ansatz::pow_2p1 {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (x[1] <= 0) return fail(at);
    y[1] = P[1] * (1 - safe_pow(x[1], -P[2]));
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (x[1] <= 0) return fail(at, 1, 2);
    const Real rise = 1 - safe_pow(x[1], -P[2]);
    if (math_error()) return fail(at, 1, 2);
    dyda[1] = rise;
    y[1] = P[1] * rise;
    dyda[2] = log(x[1]) * (P[1] - y[1]);
    return math_error() ? fail_slots(at, 2) : success;
}

} // namespace

ANSATZ_MODEL(Pow2P1, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(Pow2P1, .title = "Approach to an asymptote as a power of x, from 0 at x = 1",
            .formula = "y = a (1 - x^(-b))",
            .parameters = {{"a", "asymptote, for b > 0", Trait::level}, {"b", "exponent", Trait::exponent}},
            .x = {positive}, .typical = {{5, 0.8}, 1, 12}, .scales = Scales::y_only,
            .notes = "Fails for x <= 0. The curve is 0 at x = 1.")

} // namespace ansatz::pow_2p1

namespace ansatz::pow_2p2 {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Real s = x[1] + 1;
    if (s <= 0) return fail(at);
    y[1] = P[1] * safe_pow(s, P[2]);
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Real s = x[1] + 1;
    if (s <= 0) return fail(at, 1, 2);
    const Real W = safe_pow(s, P[2]);
    if (math_error()) return fail(at, 1, 2);
    dyda[1] = W;
    y[1] = P[1] * W;
    dyda[2] = y[1] * log(s);
    return math_error() ? fail_slots(at, 2) : success;
}

} // namespace

ANSATZ_MODEL(Pow2P2, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(Pow2P2, .title = "Power law whose origin lies at x = -1", .formula = "y = a (x + 1)^b",
            .parameters = {{"a", "response at x = 0", Trait::level}, {"b", "exponent", Trait::exponent}},
            .x = {above(-1)}, .typical = {{2, 0.6}, -0.98, 6}, .scales = Scales::y_only,
            .notes = "Fails for x <= -1.")

} // namespace ansatz::pow_2p2

namespace ansatz::pow_2p3 {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Real s = 1 + P[1] * x[1];
    if (s <= 0) return fail(at);
    y[1] = 1 - safe_pow(s, -P[2]);
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Real s = 1 + P[1] * x[1];
    if (s <= 0) return fail(at, 1, 2);
    const Real W = safe_pow(s, -P[2]);
    if (math_error()) return fail(at, 1, 2);
    dyda[1] = P[2] * W * x[1] / s;
    y[1] = 1 - W;
    dyda[2] = log(s) * W;
    return math_error() ? fail_slots(at, 2) : success;
}

} // namespace

ANSATZ_MODEL(Pow2P3, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(Pow2P3, .title = "Rise from 0 to 1 whose gap to 1 shrinks as a power",
            .formula = "y = 1 - (1 + a x)^(-b)",
            .parameters = {{"a", "rate", Trait::rate}, {"b", "exponent", Trait::exponent}},
            .typical = {{0.8, 1.5}, 0, 10}, .scales = Scales::x_only,
            .known_as = "Lomax distribution function, Pareto type II", .source = "Lomax, 1954",
            .notes = "Fails where 1 + a x <= 0. For small a x the curve depends on the product a b alone.")

} // namespace ansatz::pow_2p3
