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

#include "models/handbook/law.h"

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
} // namespace ansatz::hyperbola_evp

ANSATZ_MODEL(RectHyperbola,
             ansatz::HandbookLaw<ansatz::rect_hyperbola::value, ansatz::rect_hyperbola::derivatives>)
ANSATZ_MODEL(HyperbolaMod,
             ansatz::HandbookLaw<ansatz::hyperbola_mod::value, ansatz::hyperbola_mod::derivatives>)
ANSATZ_MODEL(HyperbolaEVP,
             ansatz::HandbookLaw<ansatz::hyperbola_evp::value, ansatz::hyperbola_evp::derivatives>)
