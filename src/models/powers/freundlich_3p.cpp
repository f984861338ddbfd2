// Freundlich3P: a power law above a constant, with two expected-value forms.
//
//   Freundlich3P       y = P1 + P2 x^P3
//     P1 offset, P2 the rise from x = 0 to x = 1 (both in the unit of y), P3 exponent.
//   Freundlich3PEVP1   y = P3 + (P2 - P3) (x/P1)^P4
//     P2 the response at the reference position P1, P3 offset, P4 exponent.
//   Freundlich3PEVP2   y = P2 + (P4 - P2) (x^P5 - P1^P5) / (P3^P5 - P1^P5)
//     P2 and P4 the responses at the reference positions P1 and P3, P5 exponent.
//
//   Fails for x <= 0, for a reference position <= 0 and where a power overflows; the last form also where its
//   divisor is 0: equal references, or P5 = 0. Close to such parameters it loses digits to cancellation.

#include "protocol/handbook_law.h"
#include "special/power_scale.h"

namespace ansatz::freundlich_3p {
namespace {

Status value(const Point& at) {
    const auto [n, P, xs, y, dyda] = at;
    const double x = xs[1];
    if (x <= 0) return fail(at);
    y[1] = P[1] + P[2] * safe_pow(x, P[3]);
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, xs, y, dyda] = at;
    const double x = xs[1];
    if (x <= 0) return fail(at, 1, 2, 3);
    const double W = safe_pow(x, P[3]);
    const double rise = P[2] * W;
    y[1] = P[1] + rise;
    dyda[1] = 1;
    dyda[2] = W;
    dyda[3] = rise * log(x);
    return math_error() ? fail(at, 1, 2, 3) : success;
}

} // namespace
} // namespace ansatz::freundlich_3p

namespace ansatz::freundlich_3p_evp1 {
namespace {

Status value(const Point& at) {
    const auto [n, P, xs, y, dyda] = at;
    const double x = xs[1];
    if (x <= 0 || P[1] <= 0) return fail(at);
    y[1] = P[3] + (P[2] - P[3]) * safe_pow(x / P[1], P[4]);
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, xs, y, dyda] = at;
    const double x = xs[1];
    if (x <= 0 || P[1] <= 0) return fail(at, 1, 2, 3, 4);
    const double ratio = x / P[1];
    const double W = safe_pow(ratio, P[4]);
    const double rise = (P[2] - P[3]) * W;
    y[1] = P[3] + rise;
    dyda[1] = -rise * P[4] / P[1];
    dyda[2] = W;
    dyda[3] = 1 - W;
    dyda[4] = rise * log(ratio);
    return math_error() ? fail(at, 1, 2, 3, 4) : success;
}

} // namespace
} // namespace ansatz::freundlich_3p_evp1

namespace ansatz::freundlich_3p_evp2 {
namespace {

Status value(const Point& at) {
    const auto [n, P, xs, y, dyda] = at;
    const double x = xs[1];
    if (x <= 0 || P[1] <= 0 || P[3] <= 0) return fail(at);
    const PowerScale scale(x, P[1], P[3], P[5]);
    if (math_error() || scale.span == 0) return fail(at);
    y[1] = P[2] + (P[4] - P[2]) * scale.place;
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, xs, y, dyda] = at;
    const double x = xs[1];
    if (x <= 0 || P[1] <= 0 || P[3] <= 0) return fail(at, 1, 2, 3, 4, 5);
    const PowerScale scale(x, P[1], P[3], P[5]);
    const auto [by_first, by_second, by_b] = scale.slopes(x, P[1], P[3], P[5]);
    if (math_error() || scale.span == 0) return fail(at, 1, 2, 3, 4, 5);
    const double rise = P[4] - P[2];
    y[1] = P[2] + rise * scale.place;
    dyda[1] = rise * by_first;
    dyda[2] = scale.rest();
    dyda[3] = rise * by_second;
    dyda[4] = scale.place;
    dyda[5] = rise * by_b;
    return success;
}

} // namespace

ANSATZ_MODEL(Freundlich3P, HandbookLaw<freundlich_3p::value, freundlich_3p::derivatives>)

ANSATZ_PAGE(Freundlich3P, .title = "", .formula = "y = a + b x^c",
            .parameters = {{"a", "offset", Trait::offset},
                           {"b", "scale: y is a + b at x = 1", Trait::constant},
                           {"c", "exponent", Trait::exponent}},
            .notes = "Fails for x <= 0.")

ANSATZ_MODEL(Freundlich3PEVP1, HandbookLaw<freundlich_3p_evp1::value, freundlich_3p_evp1::derivatives>)

ANSATZ_PAGE(Freundlich3PEVP1, .title = "", .formula = "y = a + (y1 - a) (x/x1)^c",
            .parameters = {{"x1", "x of the response y1", Trait::reference},
                           {"y1", "response at x1", Trait::response},
                           {"a", "offset", Trait::offset},
                           {"c", "exponent", Trait::exponent}},
            .notes = "Freundlich3P through the point (x1, y1). Fails for x <= 0 and x1 <= 0.")

ANSATZ_MODEL(Freundlich3PEVP2, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(
    Freundlich3PEVP2, .title = "", .formula = "y = y1 + (y2 - y1) (x^c - x1^c)/(x2^c - x1^c)",
    .parameters = {{"x1", "x of the response y1", Trait::reference},
                   {"y1", "response at x1", Trait::response},
                   {"x2", "x of the response y2", Trait::reference},
                   {"y2", "response at x2", Trait::response},
                   {"c", "exponent, not 0", Trait::exponent}},
    .notes =
        "Freundlich3P through the points (x1, y1) and (x2, y2). Fails for x, x1 or x2 <= 0, for x1 = x2 and "
        "for c = 0, close to which it loses digits. A fit cannot cross c = 0: start with the right sign.")

} // namespace ansatz::freundlich_3p_evp2
