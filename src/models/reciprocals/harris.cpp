// Harris, HarrisEVP: a reciprocal that is linear in a power of x, used for yield against density.
//
//   Harris      y = 1 / (P1 + P2 x^P3)
//     1/P1 is the response at x = 0 (for P3 > 0), P2 the loss to crowding, P3 shape.
//   HarrisEVP   y = 1 / (1/P2 + (1/P4 - 1/P2) (x^P5 - P1^P5) / (P3^P5 - P1^P5))
//     the same curve by its responses P2 and P4 at the reference positions P1 and P3; P5 is P3 above.
//
//   Fails for x <= 0, for a reference position <= 0, a response of 0, where a divisor is 0 (equal references
//   and P5 = 0 among them) and where a power overflows. Responses may be negative.

#include "protocol/handbook_law.h"
#include "special/power_scale.h"

namespace ansatz::harris {
namespace {

Status value(const Point& at) {
    const auto [n, P, xs, y, dyda] = at;
    const double x = xs[1];
    if (x <= 0) return fail(at);
    const double D = P[1] + P[2] * safe_pow(x, P[3]);
    if (math_error() || D == 0) return fail(at);
    y[1] = 1 / D;
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, xs, y, dyda] = at;
    const double x = xs[1];
    if (x <= 0) return fail(at, 1, 2, 3);
    const double W = safe_pow(x, P[3]);
    const double D = P[1] + P[2] * W;
    const double log_x = log(x);
    if (math_error() || D == 0) return fail(at, 1, 2, 3);
    y[1] = 1 / D;
    dyda[1] = -y[1] / D;
    dyda[2] = -W / D / D;
    dyda[3] = dyda[2] * P[2] * log_x;
    return success;
}

} // namespace
} // namespace ansatz::harris

namespace ansatz::harris_evp {
namespace {

bool outside(const double* P, double x) {
    return x <= 0 || P[1] <= 0 || P[3] <= 0 || P[2] == 0 || P[4] == 0;
}

Status value(const Point& at) {
    const auto [n, P, xs, y, dyda] = at;
    const double x = xs[1];
    if (outside(P, x)) return fail(at);
    const PowerScale scale(x, P[1], P[3], P[5]);
    if (math_error() || scale.span == 0) return fail(at);
    const double D = 1 / P[2] + (1 / P[4] - 1 / P[2]) * scale.place;
    if (D == 0) return fail(at);
    y[1] = 1 / D;
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, xs, y, dyda] = at;
    const double x = xs[1];
    if (outside(P, x)) return fail(at, 1, 2, 3, 4, 5);
    const PowerScale scale(x, P[1], P[3], P[5]);
    const auto [by_first, by_second, by_b] = scale.slopes(x, P[1], P[3], P[5]);
    if (math_error() || scale.span == 0) return fail(at, 1, 2, 3, 4, 5);
    const double step = 1 / P[4] - 1 / P[2];
    const double D = 1 / P[2] + step * scale.place;
    if (D == 0) return fail(at, 1, 2, 3, 4, 5);
    y[1] = 1 / D;
    const double by_place = -step / D / D;
    const double to_first = y[1] / P[2], to_second = y[1] / P[4];
    dyda[1] = by_place * by_first;
    dyda[2] = to_first * to_first * scale.rest();
    dyda[3] = by_place * by_second;
    dyda[4] = to_second * to_second * scale.place;
    dyda[5] = by_place * by_b;
    return success;
}

} // namespace

ANSATZ_MODEL(Harris, HandbookLaw<harris::value, harris::derivatives>)

ANSATZ_PAGE(Harris, .title = "", .formula = "y = 1/(a + b x^c)",
            .parameters = {{"a", "inverse of the response at x = 0, for c > 0", Trait::constant},
                           {"b", "loss to crowding", Trait::constant},
                           {"c", "shape: 1 for a straight line of 1/y against x", Trait::shape}},
            .notes = "Fails for x <= 0 and where the denominator is 0.")

ANSATZ_MODEL(HarrisEVP, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(
    HarrisEVP, .title = "", .formula = "y = 1/(1/y1 + (1/y2 - 1/y1) (x^c - x1^c)/(x2^c - x1^c))",
    .parameters = {{"x1", "x of the response y1", Trait::reference},
                   {"y1", "response at x1", Trait::response},
                   {"x2", "x of the response y2", Trait::reference},
                   {"y2", "response at x2", Trait::response},
                   {"c", "shape, not 0", Trait::shape}},
    .notes =
        "Harris through the points (x1, y1) and (x2, y2). Fails for x, x1 or x2 <= 0, a response of 0, x1 = x2 "
        "and c = 0, and where the denominator is 0. A fit cannot cross c = 0: start with the right sign.")

} // namespace ansatz::harris_evp
