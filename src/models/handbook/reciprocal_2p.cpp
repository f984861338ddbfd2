// Reciprocal: one over a straight line.
//
//   Reciprocal      y = 1 / (P1 + P2 x)      P1 intercept, P2 slope of the line 1/y against x
//                                            fails: P1 + P2 x == 0
//   ReciprocalMod   y = P1 / (1 + P2 x)      P1 scale, the response at x = 0; P2 slope (1/unit of x)
//                                            fails: 1 + P2 x == 0
//   ReciprocalEVP   y = (P3 - P1) P2 P4 / D,  D = P2 (x - P1) + P4 (P3 - x)
//                                            P1, P3 reference positions; P2, P4 responses expected there
//                                            value fails: D == 0; the derivatives never fail
//
//   No library function is called, so a pending error passes through unseen. For the first two, a failure of
//   the derivatives marks y[1] only. The derivatives of ReciprocalEVP divide by D whatever it is: at a pole the
//   host gets infinities or NaN with status 0, so look at the numbers there, not at the status.

#include "models/handbook/law.h"

namespace ansatz::reciprocal {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const double s = P[1] + P[2] * x[1];
    if (s == 0) return fail(at);
    y[1] = 1 / s;
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const double s = P[1] + P[2] * x[1];
    if (s == 0) return fail(at);
    const double h = 1 / s;
    y[1] = h;
    dyda[1] = -(h * h);
    dyda[2] = -(h * h) * x[1];
    return success;
}

} // namespace
} // namespace ansatz::reciprocal

namespace ansatz::reciprocal_mod {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const double s = 1 + P[2] * x[1];
    if (s == 0) return fail(at);
    y[1] = P[1] / s;
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const double s = 1 + P[2] * x[1];
    if (s == 0) return fail(at);
    dyda[1] = 1 / s;
    y[1] = P[1] / s;
    dyda[2] = -P[1] * x[1] / (s * s);
    return success;
}

} // namespace
} // namespace ansatz::reciprocal_mod

namespace ansatz::reciprocal_evp {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const double D = P[2] * (x[1] - P[1]) + P[4] * (P[3] - x[1]);
    if (D == 0) return fail(at);
    y[1] = (P[3] - P[1]) * P[2] * P[4] / D;
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const double u = x[1] - P[1], v = P[3] - x[1], d = P[3] - P[1];
    const double D = P[2] * u + P[4] * v; // may be 0, see above
    const double h = d * P[2] * P[4] / D;
    y[1] = h;
    dyda[1] = (h - P[4]) * P[2] / D;
    dyda[3] = (P[2] - h) * P[4] / D;
    dyda[2] = (d * P[4] - u * h) / D;
    dyda[4] = (d * P[2] - v * h) / D;
    return success;
}

} // namespace
} // namespace ansatz::reciprocal_evp

ANSATZ_MODEL(Reciprocal, ansatz::HandbookLaw<ansatz::reciprocal::value, ansatz::reciprocal::derivatives>)
ANSATZ_MODEL(ReciprocalMod,
             ansatz::HandbookLaw<ansatz::reciprocal_mod::value, ansatz::reciprocal_mod::derivatives>)
ANSATZ_MODEL(ReciprocalEVP,
             ansatz::HandbookLaw<ansatz::reciprocal_evp::value, ansatz::reciprocal_evp::derivatives>)
