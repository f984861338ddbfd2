// Harris and HarrisEVP. Their powers may overflow, which fails.

#include "protocol/handbook_law.h"
#include "special/power_scale.h"

namespace ansatz::harris {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (x[1] <= 0) return fail(at);
    const Real D = P[1] + P[2] * safe_pow(x[1], P[3]);
    if (math_error() || D == 0) return fail(at);
    y[1] = 1 / D;
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (x[1] <= 0) return fail(at, 1, 2, 3);
    const Real W = safe_pow(x[1], P[3]);
    const Real D = P[1] + P[2] * W;
    const Real log_x = log(x[1]);
    if (math_error() || D == 0) return fail(at, 1, 2, 3);
    y[1] = 1 / D;
    dyda[1] = -y[1] / D;
    dyda[2] = -W / D / D;
    dyda[3] = dyda[2] * P[2] * log_x;
    return success;
}

} // namespace

ANSATZ_MODEL(Harris, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(Harris, .title = "Reciprocal of a straight line in a power of x, as of yield against density",
            .formula = "y = 1/(a + b x^c)",
            .parameters = {{"a", "inverse of the response at x = 0, for c > 0", Trait::inverse_level},
                           {"b", "loss to crowding", Trait::coefficient, Dimension{.y = -1}},
                           {"c", "shape: 1 for a straight line of 1/y against x", Trait::exponent}},
            .x = {positive}, .typical = {{0.05, 0.02, 1.5}, 0.1, 12}, .scales = Scales::y_only,
            .same_as = "Hill(Vmax = 1/a, k = (a/b)^(1/c), n = -c)",
            .known_as = "Farazdaghi-Harris yield-density curve", .source = "Farazdaghi and Harris, 1968",
            .notes = "Fails for x <= 0, where the denominator is 0 and where the power overflows.")

} // namespace ansatz::harris

namespace ansatz::harris_evp {
namespace {

bool outside(const Scalar* P, Real x) {
    return x <= 0 || P[1] <= 0 || P[3] <= 0 || P[2] == 0 || P[4] == 0;
}

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (outside(P, x[1])) return fail(at);
    const PowerScale scale(x[1], P[1], P[3], P[5]);
    if (math_error() || scale.span == 0) return fail(at);
    const Real D = 1 / P[2] + (1 / P[4] - 1 / P[2]) * scale.place;
    if (D == 0) return fail(at);
    y[1] = 1 / D;
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (outside(P, x[1])) return fail(at, 1, 2, 3, 4, 5);
    const PowerScale scale(x[1], P[1], P[3], P[5]);
    const auto [by_first, by_second, by_b] = scale.slopes(x[1], P[1], P[3], P[5]);
    if (math_error() || scale.span == 0) return fail(at, 1, 2, 3, 4, 5);
    const Scalar step = 1 / P[4] - 1 / P[2];
    const Real D = 1 / P[2] + step * scale.place;
    if (D == 0) return fail(at, 1, 2, 3, 4, 5);
    y[1] = 1 / D;
    const Real by_place = -step / D / D;
    const Real to_first = y[1] / P[2], to_second = y[1] / P[4];
    dyda[1] = by_place * by_first;
    dyda[2] = to_first * to_first * scale.rest();
    dyda[3] = by_place * by_second;
    dyda[4] = to_second * to_second * scale.place;
    dyda[5] = by_place * by_b;
    return success;
}

} // namespace

ANSATZ_MODEL(HarrisEVP, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(
    HarrisEVP, .title = "Reciprocal of a straight line in a power of x, through two points",
    .formula = "y = 1/(1/y1 + (1/y2 - 1/y1) (x^c - x1^c)/(x2^c - x1^c))",
    .parameters = {{"x1", "x of the response y1", Trait::reference, positive},
                   {"y1", "response at x1", Trait::response, not_zero},
                   {"x2", "x of the response y2", Trait::reference, positive},
                   {"y2", "response at x2", Trait::response, not_zero},
                   {"c", "shape", Trait::exponent, not_zero}},
    .x = {positive}, .typical = {{1, 14, 10, 1.5, 1.5}, 0.1, 12},
    .same_as =
        "Hill(Vmax = (x2^c - x1^c)/(x2^c/y1 - x1^c/y2), k = ((x2^c/y1 - x1^c/y2)/(1/y2 - 1/y1))^(1/c), n = -c)",
    .notes =
        "Harris through the points (x1, y1) and (x2, y2). Fails for x, x1 or x2 <= 0, a response of 0, x1 = x2 "
        "and c = 0, and where the denominator is 0. A fit cannot cross c = 0: start with the right sign.")

} // namespace ansatz::harris_evp
