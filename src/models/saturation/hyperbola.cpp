// Rectangular hyperbolas, laws of saturation: Hyperbl, and Dhyperbl with two sites and a linear part.
//
//   Hyperbl    y = P1 x / (P2 + x)
//   Dhyperbl   y = P1 x / (P2 + x) + P3 x / (P4 + x) + P5 x
//
//   P1, P3 capacity (unit of y), the level reached for large x; P2, P4 the x at which half of it is reached;
//   P5 slope of the unsaturable part (unit of y per unit of x).
//
//   Fails where a denominator is 0; the derivatives of Hyperbl then mark both slots, those of Dhyperbl leave
//   theirs untouched. The value also fails for nParams <= 0. No library function is called, so a pending
//   error passes through unseen.

#include "protocol/forms.h"

namespace ansatz::hyperbola {
namespace {

Status hyperbl_value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (n < 1) return fail(at);
    const double s = P[2] + x[1];
    if (s == 0) return fail(at);
    y[1] = P[1] * x[1] / s;
    return success;
}

Status hyperbl_derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const double s = P[2] + x[1];
    if (s == 0) return fail(at, 1, 2);
    const double share = x[1] / s;
    const double v = share * P[1];
    dyda[1] = share;
    dyda[2] = -v / s;
    y[1] = v;
    return success;
}

Status dhyperbl_value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (n < 1) return fail(at);
    const double s1 = P[2] + x[1], s2 = P[4] + x[1];
    if (s1 == 0 || s2 == 0) return fail(at);
    y[1] = P[1] * x[1] / s1 + (P[3] * x[1] / s2 + P[5] * x[1]);
    return success;
}

Status dhyperbl_derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const double s1 = P[2] + x[1], s2 = P[4] + x[1];
    if (s1 == 0 || s2 == 0) return fail(at);
    const double share1 = x[1] / s1, share2 = x[1] / s2;
    y[1] = P[3] * share2 + P[1] * share1 + P[5] * x[1];
    dyda[1] = share1;
    dyda[2] = -P[1] * share1 / s1;
    dyda[3] = share2;
    dyda[4] = -P[3] * share2 / s2;
    dyda[5] = x[1];
    return success;
}

} // namespace

ANSATZ_MODEL(Hyperbl, BothPaths<hyperbl_value, hyperbl_derivatives>)

ANSATZ_PAGE(Hyperbl, .title = "", .formula = "y = A x/(K + x)",
            .parameters = {{"A", "capacity, the level for large x", Trait::constant},
                           {"K", "x at which half of it is reached", Trait::constant}},
            .notes = "Fails at x = -K.")

ANSATZ_MODEL(Dhyperbl, BothPaths<dhyperbl_value, dhyperbl_derivatives>)

ANSATZ_PAGE(Dhyperbl, .title = "", .formula = "y = A1 x/(K1 + x) + A2 x/(K2 + x) + s x",
            .parameters = {{"A1", "capacity of the first site", Trait::constant},
                           {"K1", "x at which half of it is reached", Trait::constant},
                           {"A2", "capacity of the second site", Trait::constant},
                           {"K2", "x at which half of it is reached", Trait::constant},
                           {"s", "slope of the part that does not saturate", Trait::slope}},
            .notes = "Fails at x = -K1 and x = -K2. Start a fit with K1 and K2 that differ by a factor.")

} // namespace ansatz::hyperbola
