// BlNeld, BlNeldSmp, BlNeldEVP. BlNeldSmp accepts any x that leaves its base positive, negative densities
// included.

#include "protocol/handbook_law.h"

namespace ansatz::bl_neld {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (x[1] <= 0 || P[3] == 0) return fail(at);
    const Real base = P[1] + P[2] * safe_pow(x[1], P[4]);
    if (math_error() || base <= 0) return fail(at);
    y[1] = safe_pow(base, -1 / P[3]);
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (x[1] <= 0 || P[3] == 0) return fail(at, 1, 2, 3, 4);
    const Real W = safe_pow(x[1], P[4]);
    const Real base = P[1] + P[2] * W;
    if (math_error() || base <= 0) return fail(at, 1, 2, 3, 4);
    y[1] = safe_pow(base, -1 / P[3]);
    dyda[1] = -y[1] / P[3] / base;
    dyda[2] = dyda[1] * W;
    dyda[3] = y[1] * log(base) / P[3] / P[3];
    dyda[4] = dyda[2] * P[2] * log(x[1]);
    return math_error() ? fail(at, 1, 2, 3, 4) : success;
}

} // namespace

ANSATZ_MODEL(BlNeld, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(BlNeld, .title = "Yield of a single plant against a power of the density of planting",
            .formula = "y = (a + b x^d)^(-1/c)",
            .parameters = {{"a", "a^(-1/c) is the yield of a plant that stands alone, for d > 0",
                            Trait::coefficient, positive},
                           {"b", "loss to crowding", Trait::coefficient, positive},
                           {"c", "shape", Trait::exponent, not_zero},
                           {"d", "exponent of the density: 1 for the simple law, BlNeldSmp", Trait::exponent}},
            .x = {positive}, .typical = {{0.05, 0.04, 0.8, 1.5}, 0.1, 12}, .scales = Scales::neither,
            .known_as = "Bleasdale-Nelder yield-density curve", .source = "Bleasdale and Nelder, 1960",
            .notes = "Fails for x <= 0, where the base a + b x^d <= 0, for c = 0 and where a power overflows. "
                     "c and d are hard to tell "
                     "apart: hold one (--fix) when the fit does not determine both.")

} // namespace ansatz::bl_neld

namespace ansatz::bl_neld_smp {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Real base = P[1] + P[2] * x[1];
    if (P[3] == 0 || base <= 0) return fail(at);
    y[1] = safe_pow(base, -1 / P[3]);
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Real base = P[1] + P[2] * x[1];
    if (P[3] == 0 || base <= 0) return fail(at, 1, 2, 3);
    y[1] = safe_pow(base, -1 / P[3]);
    dyda[1] = -y[1] / P[3] / base;
    dyda[2] = dyda[1] * x[1];
    dyda[3] = y[1] * log(base) / P[3] / P[3];
    return math_error() ? fail(at, 1, 2, 3) : success;
}

} // namespace

ANSATZ_MODEL(BlNeldSmp, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(BlNeldSmp, .title = "Yield of a single plant against the density of planting",
            .formula = "y = (a + b x)^(-1/c)",
            .parameters = {{"a", "a^(-1/c) is the yield of a plant that stands alone", Trait::coefficient,
                            positive},
                           {"b", "loss to crowding", Trait::coefficient, Dimension{.x = -1}},
                           {"c", "shape", Trait::exponent, not_zero}},
            .typical = {{0.05, 0.04, 0.8}, 0, 12}, .scales = Scales::x_only,
            .known_as = "Bleasdale-Nelder yield-density curve", .source = "Bleasdale and Nelder, 1960",
            .notes = "x is the density of planting, y the yield per plant. Fails where a + b x <= 0, for c = 0 "
                     "and where the power overflows.")

} // namespace ansatz::bl_neld_smp

namespace ansatz::bl_neld_evp {
namespace {

bool outside(const Scalar* P) {
    return P[2] <= 0 || P[4] <= 0 || P[5] == 0 || P[3] == P[1];
}

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (outside(P)) return fail(at);
    const Scalar A = of_parameters<safe_pow>(P[2], -P[5]), C = of_parameters<safe_pow>(P[4], -P[5]);
    const Real base = (A * (P[3] - x[1]) + C * (x[1] - P[1])) / (P[3] - P[1]);
    if (math_error() || base <= 0) return fail(at);
    y[1] = safe_pow(base, -1 / P[5]);
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (outside(P)) return fail(at, 1, 2, 3, 4, 5);
    const Scalar A = of_parameters<safe_pow>(P[2], -P[5]), C = of_parameters<safe_pow>(P[4], -P[5]);
    const Scalar span = P[3] - P[1];
    const Real before = P[3] - x[1], after = x[1] - P[1];
    const Real base = (A * before + C * after) / span;
    if (math_error() || base <= 0) return fail(at, 1, 2, 3, 4, 5);
    y[1] = safe_pow(base, -1 / P[5]);
    // The shares of the two responses in the base: together 1.
    const Real first = A * before / span / base, second = C * after / span / base;
    const Real by_base = -y[1] / P[5] / base;
    const Real by_reference = by_base * (A - C) / span / span;
    dyda[1] = by_reference * before;
    dyda[2] = y[1] * first / P[2];
    dyda[3] = by_reference * after;
    dyda[4] = y[1] * second / P[4];
    const Real minus_log_y = log(base) / P[5];
    const Scalar log_first = of_parameters<log>(P[2]), log_second = of_parameters<log>(P[4]);
    dyda[5] = y[1] / P[5] * (first * (log_first + minus_log_y) + second * (log_second + minus_log_y));
    return math_error() ? fail(at, 1, 2, 3, 4, 5) : success;
}

} // namespace

ANSATZ_MODEL(BlNeldEVP, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(
    BlNeldEVP, .title = "Yield of a single plant against the density of planting, through two points",
    .formula = "y = ((y1^(-c) (x2 - x) + y2^(-c) (x - x1))/(x2 - x1))^(-1/c)",
    .parameters = {{"x1", "x of the response y1", Trait::reference},
                   {"y1", "response at x1", Trait::response, positive},
                   {"x2", "x of the response y2", Trait::reference},
                   {"y2", "response at x2", Trait::response, positive},
                   {"c", "shape", Trait::exponent, not_zero}},
    .typical = {{1, 20, 10, 2.7, 0.8}, 0, 12},
    .same_as = "BlNeldSmp(a = (x2 y1^(-c) - x1 y2^(-c))/(x2 - x1), b = (y2^(-c) - y1^(-c))/(x2 - x1), c = c)",
    .notes = "BlNeldSmp through the points (x1, y1) and (x2, y2). Fails for y1 <= 0, y2 <= 0, c = 0 "
             "and x1 = x2, and where the base of the outer power is not positive.")

} // namespace ansatz::bl_neld_evp
