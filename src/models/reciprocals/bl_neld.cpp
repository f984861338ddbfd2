// BlNeld, BlNeldSmp, BlNeldEVP: yield of a single plant against the density x of planting.
//
//   BlNeld      y = (P1 + P2 x^P4)^(-1/P3)
//     P1^(-1/P3) is the yield of a plant that stands alone, P2 the loss to crowding, P3 and P4 shape.
//   BlNeldSmp   y = (P1 + P2 x)^(-1/P3)
//     the simple law, in which the density enters as it is (P4 = 1).
//   BlNeldEVP   y = ((P2^(-P5) (P3 - x) + P4^(-P5) (x - P1)) / (P3 - P1))^(-1/P5)
//     the simple law by its responses P2 and P4 at the reference positions P1 and P3; P5 is P3 above.
//
//   Fails for an exponent P3 (EVP: P5) of 0, where the base is <= 0 and where a power overflows; "BlNeld" for
//   x <= 0; "BlNeldEVP" for P1 == P3 and for a response <= 0. The simple form accepts any x that leaves
//   its base positive, negative densities included.

#include "protocol/handbook_law.h"

namespace ansatz::bl_neld {
namespace {

Status value(const Point& at) {
    const auto [n, P, xs, y, dyda] = at;
    const double x = xs[1];
    if (x <= 0 || P[3] == 0) return fail(at);
    const double base = P[1] + P[2] * safe_pow(x, P[4]);
    if (math_error() || base <= 0) return fail(at);
    y[1] = safe_pow(base, -1 / P[3]);
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, xs, y, dyda] = at;
    const double x = xs[1];
    if (x <= 0 || P[3] == 0) return fail(at, 1, 2, 3, 4);
    const double W = safe_pow(x, P[4]);
    const double base = P[1] + P[2] * W;
    if (math_error() || base <= 0) return fail(at, 1, 2, 3, 4);
    y[1] = safe_pow(base, -1 / P[3]);
    dyda[1] = -y[1] / P[3] / base;
    dyda[2] = dyda[1] * W;
    dyda[3] = y[1] * log(base) / P[3] / P[3];
    dyda[4] = dyda[2] * P[2] * log(x);
    return math_error() ? fail(at, 1, 2, 3, 4) : success;
}

} // namespace
} // namespace ansatz::bl_neld

namespace ansatz::bl_neld_smp {
namespace {

Status value(const Point& at) {
    const auto [n, P, xs, y, dyda] = at;
    const double x = xs[1];
    const double base = P[1] + P[2] * x;
    if (P[3] == 0 || base <= 0) return fail(at);
    y[1] = safe_pow(base, -1 / P[3]);
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, xs, y, dyda] = at;
    const double x = xs[1];
    const double base = P[1] + P[2] * x;
    if (P[3] == 0 || base <= 0) return fail(at, 1, 2, 3);
    y[1] = safe_pow(base, -1 / P[3]);
    dyda[1] = -y[1] / P[3] / base;
    dyda[2] = dyda[1] * x;
    dyda[3] = y[1] * log(base) / P[3] / P[3];
    return math_error() ? fail(at, 1, 2, 3) : success;
}

} // namespace
} // namespace ansatz::bl_neld_smp

namespace ansatz::bl_neld_evp {
namespace {

bool outside(const double* P) {
    return P[2] <= 0 || P[4] <= 0 || P[5] == 0 || P[3] == P[1];
}

Status value(const Point& at) {
    const auto [n, P, xs, y, dyda] = at;
    const double x = xs[1];
    if (outside(P)) return fail(at);
    const double A = of_parameters<safe_pow>(P[2], -P[5]), C = of_parameters<safe_pow>(P[4], -P[5]);
    const double base = (A * (P[3] - x) + C * (x - P[1])) / (P[3] - P[1]);
    if (math_error() || base <= 0) return fail(at);
    y[1] = safe_pow(base, -1 / P[5]);
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, xs, y, dyda] = at;
    const double x = xs[1];
    if (outside(P)) return fail(at, 1, 2, 3, 4, 5);
    const double A = of_parameters<safe_pow>(P[2], -P[5]), C = of_parameters<safe_pow>(P[4], -P[5]);
    const double span = P[3] - P[1], before = P[3] - x, behind = x - P[1];
    const double base = (A * before + C * behind) / span;
    if (math_error() || base <= 0) return fail(at, 1, 2, 3, 4, 5);
    y[1] = safe_pow(base, -1 / P[5]);
    // The shares of the two responses in the base: together 1.
    const double first = A * before / span / base, second = C * behind / span / base;
    const double by_base = -y[1] / P[5] / base;
    const double by_reference = by_base * (A - C) / span / span;
    dyda[1] = by_reference * before;
    dyda[2] = y[1] * first / P[2];
    dyda[3] = by_reference * behind;
    dyda[4] = y[1] * second / P[4];
    const double minus_log_y = log(base) / P[5];
    const double log_first = of_parameters<log>(P[2]), log_second = of_parameters<log>(P[4]);
    dyda[5] = y[1] / P[5] * (first * (log_first + minus_log_y) + second * (log_second + minus_log_y));
    return math_error() ? fail(at, 1, 2, 3, 4, 5) : success;
}

} // namespace

ANSATZ_MODEL(BlNeld, HandbookLaw<bl_neld::value, bl_neld::derivatives>)

ANSATZ_PAGE(BlNeld, .title = "", .formula = "y = (a + b x^d)^(-1/c)",
            .parameters = {{"a", "a^(-1/c) is the yield of a plant that stands alone, for d > 0",
                            Trait::constant},
                           {"b", "loss to crowding", Trait::constant},
                           {"c", "shape, not 0", Trait::shape},
                           {"d", "exponent of the density: 1 for the simple law, BlNeldSmp", Trait::exponent}},
            .notes = "Fails for x <= 0, where the base a + b x^d <= 0 and for c = 0. c and d are hard to tell "
                     "apart: hold one (--fix) when the fit does not determine both.")

ANSATZ_MODEL(BlNeldSmp, HandbookLaw<bl_neld_smp::value, bl_neld_smp::derivatives>)

ANSATZ_PAGE(
    BlNeldSmp, .title = "", .formula = "y = (a + b x)^(-1/c)",
    .parameters = {{"a", "a^(-1/c) is the yield of a plant that stands alone", Trait::constant},
                   {"b", "loss to crowding", Trait::constant},
                   {"c", "shape, not 0", Trait::shape}},
    .notes = "x is the density of planting, y the yield per plant. Fails where a + b x <= 0 and for c = 0.")

ANSATZ_MODEL(BlNeldEVP, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(BlNeldEVP, .title = "", .formula = "y = ((y1^(-c) (x2 - x) + y2^(-c) (x - x1))/(x2 - x1))^(-1/c)",
            .parameters = {{"x1", "x of the response y1", Trait::reference},
                           {"y1", "response at x1", Trait::response},
                           {"x2", "x of the response y2", Trait::reference},
                           {"y2", "response at x2", Trait::response},
                           {"c", "shape, not 0", Trait::shape}},
            .notes = "BlNeldSmp through the points (x1, y1) and (x2, y2). Fails for y1 <= 0, y2 <= 0, c = 0 "
                     "and x1 = x2, and where the base of the outer power is not positive.")

} // namespace ansatz::bl_neld_evp
