// Holliday1: yield of a single plant against the density x of planting.
//
//   y = P1 / (1 + P2 x + P3 x^2)
//
//   P1 the yield of a plant that stands alone (unit of y), P2 (1/x) and P3 (1/x^2) the losses to crowding.
//
//   Fails where the denominator is 0. No library function is called, so a pending error passes through unseen.

#include "protocol/handbook_law.h"

namespace ansatz::holliday1 {
namespace {

Status value(const Point& at) {
    const auto [n, P, xs, y, dyda] = at;
    const double x = xs[1];
    const double D = 1 + P[2] * x + P[3] * (x * x);
    if (D == 0) return fail(at);
    y[1] = P[1] / D;
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, xs, y, dyda] = at;
    const double x = xs[1];
    const double D = 1 + P[2] * x + P[3] * (x * x);
    if (D == 0) return fail(at, 1, 2, 3);
    y[1] = P[1] / D;
    dyda[1] = 1 / D;
    dyda[2] = -y[1] * x / D;
    dyda[3] = dyda[2] * x;
    return success;
}

} // namespace

ANSATZ_MODEL(Holliday1, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(Holliday1, .title = "", .formula = "y = a/(1 + b x + c x^2)",
            .parameters = {{"a", "yield of a plant that stands alone, the response at x = 0", Trait::constant},
                           {"b", "loss to crowding, 1/(unit of x)", Trait::constant},
                           {"c", "further loss, 1/(unit of x)^2", Trait::constant}},
            .notes = "x is the density of planting, y the yield per plant. Fails where the denominator is 0.")

} // namespace ansatz::holliday1
