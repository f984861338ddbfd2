// Holliday and Holliday1. No library function is called, so a pending error passes through unseen.

#include "protocol/handbook_law.h"

namespace ansatz::holliday {
namespace {

Real denominator(const Scalar* P, Real x) {
    return P[1] + P[2] * x + P[3] * (x * x);
}

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Real D = denominator(P, x[1]);
    if (D == 0) return fail(at);
    y[1] = 1 / D;
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Real D = denominator(P, x[1]);
    if (D == 0) return fail(at, 1, 2, 3);
    const Real r = 1 / D;
    const Real slope = -r / D;
    dyda[1] = slope;
    dyda[2] = slope * x[1];
    dyda[3] = slope * x[1] * x[1];
    y[1] = r;
    return success;
}

} // namespace

ANSATZ_MODEL(Holliday, BothPaths<value, derivatives>)

ANSATZ_PAGE(Holliday, .title = "Reciprocal of a parabola, as of the yield of a single plant against density",
            .formula = "y = 1/(a + b x + c x^2)",
            .parameters = {{"a", "1/y at x = 0", Trait::inverse_level},
                           {"b", "linear coefficient", Trait::coefficient, Dimension{.x = -1, .y = -1}},
                           {"c", "quadratic coefficient", Trait::coefficient, Dimension{.x = -2, .y = -1}}},
            .typical = {{0.05, 0.02, 0.01}, 0, 12}, .known_as = "inverse quadratic", .source = "Holliday, 1960",
            .notes = "Fails only where the denominator is exactly 0: a sign change of it between two points of "
                     "the data is a pole that a fit does not see.")

} // namespace ansatz::holliday

namespace ansatz::holliday1 {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Real D = 1 + P[2] * x[1] + P[3] * (x[1] * x[1]);
    if (D == 0) return fail(at);
    y[1] = P[1] / D;
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Real D = 1 + P[2] * x[1] + P[3] * (x[1] * x[1]);
    if (D == 0) return fail(at, 1, 2, 3);
    y[1] = P[1] / D;
    dyda[1] = 1 / D;
    dyda[2] = -y[1] * x[1] / D;
    dyda[3] = dyda[2] * x[1];
    return success;
}

} // namespace

ANSATZ_MODEL(Holliday1, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(Holliday1,
            .title = "Yield of a single plant against the density of planting, by the yield without crowding",
            .formula = "y = a/(1 + b x + c x^2)",
            .parameters = {{"a", "yield of a plant that stands alone, the response at x = 0", Trait::level},
                           {"b", "loss to crowding, 1/(unit of x)", Trait::rate},
                           {"c", "further loss, 1/(unit of x)^2", Trait::coefficient, Dimension{.x = -2}}},
            .typical = {{20, 0.4, 0.2}, 0, 12}, .same_as = "Holliday(a = 1/a, b = b/a, c = c/a)",
            .source = "Holliday, 1960",
            .notes = "x is the density of planting, y the yield per plant. Fails where the denominator is 0.")

} // namespace ansatz::holliday1
