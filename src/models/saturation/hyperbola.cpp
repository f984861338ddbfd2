// HyperbolaMod and HyperbolaEVP. A failure of the derivatives of HyperbolaMod marks y[1] only. Those of
// HyperbolaEVP divide by P2, P4 and P3 - P1, which no test guards: where one is 0 they are infinite or no
// numbers, with status 0. No library function is called, so a pending error passes through unseen.

#include "protocol/handbook_law.h"

namespace ansatz::hyperbola_mod {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Real D = P[1] * x[1] + P[2];
    if (D == 0) return fail(at);
    y[1] = x[1] / D;
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Real D = P[1] * x[1] + P[2];
    if (D == 0) return fail(at);
    const Real h = x[1] / D;
    y[1] = h;
    dyda[1] = -(h * h);
    dyda[2] = -h / D;
    return success;
}

} // namespace

ANSATZ_MODEL(HyperbolaMod, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(HyperbolaMod,
            .title = "Saturation along a hyperbola through the origin, by the straight line of x/y against x",
            .formula = "y = x/(a x + b)",
            .parameters = {{"a", "inverse of the maximum: slope of the line x/y against x",
                            Trait::inverse_level},
                           {"b", "inverse of the slope at x = 0: intercept of that line", Trait::coefficient,
                            Dimension{.x = 1, .y = -1}, not_zero}},
            .typical = {{0.125, 0.25}, 0, 20}, .same_as = "MicMent(Vmax = 1/a, Km = b/a)",
            .notes = "Fails where a x + b = 0.")

} // namespace ansatz::hyperbola_mod

namespace ansatz::hyperbola_evp {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Real D = (x[1] - P[1]) * P[3] * P[2] + (P[3] - x[1]) * P[1] * P[4];
    if (D == 0) return fail(at);
    y[1] = (P[3] - P[1]) * x[1] * P[2] * P[4] / D;
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Real u = x[1] - P[1], v = P[3] - x[1];
    const Scalar d = P[3] - P[1];
    const Real D = u * P[3] * P[2] + v * P[1] * P[4];
    if (D == 0) return fail_all(at, 4);
    const Real h = d * x[1] * P[2] * P[4] / D;
    y[1] = h;
    dyda[1] = h * ((P[3] * P[2] - P[4] * v) / D - 1 / d);
    dyda[3] = h * (1 / d - (u * P[2] + P[4] * P[1]) / D);
    dyda[2] = h * (1 / P[2] - u * P[3] / D);
    dyda[4] = h * (1 / P[4] - v * P[1] / D);
    return success;
}

} // namespace

ANSATZ_MODEL(HyperbolaEVP, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(HyperbolaEVP, .title = "Saturation along the hyperbola through the origin and two points",
            .formula = "y = (x2 - x1) x y1 y2/((x - x1) x2 y1 + (x2 - x) x1 y2)",
            .parameters = {{"x1", "x of the response y1", Trait::reference, not_zero},
                           {"y1", "response at x1", Trait::response, not_zero},
                           {"x2", "x of the response y2", Trait::reference, not_zero},
                           {"y2", "response at x2", Trait::response, not_zero}},
            .typical = {{2, 4, 10, 6.5}, 0, 20},
            .same_as = "MicMent(Vmax = (x2 - x1)/(x2/y2 - x1/y1), Km = x1 x2 (1/y1 - 1/y2)/(x2/y2 - x1/y1))",
            .notes =
                "The saturation curve through the origin and the points (x1, y1) and (x2, y2). Fails where the "
                "denominator is 0. x1 = x2 and a response of 0 have no derivatives: do not start a fit there.")

} // namespace ansatz::hyperbola_evp
