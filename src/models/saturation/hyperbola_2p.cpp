// The hyperbola through the origin that levels off: saturation, as of binding sites.
//
//   RectHyperbola   y = P1 P2 x / (1 + P2 x)
//                   P1 maximum (unit of y); P2 affinity (1/unit of x), the inverse of the x of half the maximum
//                   fails: P2 x == -1
//   HyperbolaMod    y = x / (P1 x + P2)
//                   P1 slope, the inverse of the maximum; P2 intercept, both of the straight line x/y against x
//                   fails: P1 x + P2 == 0
//   HyperbolaEVP    y = (P3 - P1) x P2 P4 / D,  D = (x - P1) P3 P2 + (P3 - x) P1 P4
//                   P1, P3 reference positions; P2, P4 responses expected there
//                   fails: D == 0
//
//   No library function is called, so a pending error passes through unseen. For the first two, a failure of
//   the derivatives marks y[1] only. The derivatives divide by some parameters that no test guards: P2 of
//   RectHyperbola; P2, P4 and P3 - P1 of HyperbolaEVP. Where one is 0 they are infinite or not a number, with
//   status 0.

#include "protocol/handbook_law.h"

namespace ansatz::rect_hyperbola {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const double u = P[2] * x[1];
    if (u == -1) return fail(at);
    y[1] = P[1] * P[2] * x[1] / (1 + u);
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const double u = P[2] * x[1];
    if (u == -1) return fail(at);
    const double h = u / (u + 1);
    dyda[1] = h;
    y[1] = P[1] * h;
    dyda[2] = y[1] * (1 - h) / P[2];
    return success;
}

} // namespace
} // namespace ansatz::rect_hyperbola

namespace ansatz::hyperbola_mod {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const double D = P[1] * x[1] + P[2];
    if (D == 0) return fail(at);
    y[1] = x[1] / D;
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const double D = P[1] * x[1] + P[2];
    if (D == 0) return fail(at);
    const double h = x[1] / D;
    y[1] = h;
    dyda[1] = -(h * h);
    dyda[2] = -h / D;
    return success;
}

} // namespace
} // namespace ansatz::hyperbola_mod

namespace ansatz::hyperbola_evp {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const double D = (x[1] - P[1]) * P[3] * P[2] + (P[3] - x[1]) * P[1] * P[4];
    if (D == 0) return fail(at);
    y[1] = (P[3] - P[1]) * x[1] * P[2] * P[4] / D;
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const double u = x[1] - P[1], v = P[3] - x[1], d = P[3] - P[1];
    const double D = u * P[3] * P[2] + v * P[1] * P[4];
    if (D == 0) return fail_all(at, 4);
    const double h = d * x[1] * P[2] * P[4] / D;
    y[1] = h;
    dyda[1] = h * ((P[3] * P[2] - P[4] * v) / D - 1 / d);
    dyda[3] = h * (1 / d - (u * P[2] + P[4] * P[1]) / D);
    dyda[2] = h * (1 / P[2] - u * P[3] / D);
    dyda[4] = h * (1 / P[4] - v * P[1] / D);
    return success;
}

} // namespace

ANSATZ_MODEL(RectHyperbola, HandbookLaw<rect_hyperbola::value, rect_hyperbola::derivatives>)

ANSATZ_PAGE(RectHyperbola, .title = "", .formula = "y = a b x/(1 + b x)",
            .parameters = {{"a", "maximum, the limit for large x", Trait::ceiling},
                           {"b", "affinity, 1/(unit of x): y is a/2 at x = 1/b", Trait::constant}},
            .notes = "Fails where b x = -1. b = 0 has a value but no derivatives: do not start a fit there.")

ANSATZ_MODEL(HyperbolaMod, HandbookLaw<hyperbola_mod::value, hyperbola_mod::derivatives>)

ANSATZ_PAGE(HyperbolaMod, .title = "", .formula = "y = x/(a x + b)",
            .parameters = {{"a", "inverse of the maximum: slope of the line x/y against x", Trait::constant},
                           {"b", "inverse of the slope at x = 0: intercept of that line", Trait::constant}},
            .notes = "Fails where a x + b = 0.")

ANSATZ_MODEL(HyperbolaEVP, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(HyperbolaEVP, .title = "", .formula = "y = (x2 - x1) x y1 y2/((x - x1) x2 y1 + (x2 - x) x1 y2)",
            .parameters = {{"x1", "x of the response y1", Trait::reference},
                           {"y1", "response at x1", Trait::response},
                           {"x2", "x of the response y2", Trait::reference},
                           {"y2", "response at x2", Trait::response}},
            .notes =
                "The saturation curve through the origin and the points (x1, y1) and (x2, y2). Fails where the "
                "denominator is 0. x1 = x2 and a response of 0 have no derivatives: do not start a fit there.")

} // namespace ansatz::hyperbola_evp
