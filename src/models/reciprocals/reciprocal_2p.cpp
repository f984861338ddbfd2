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

#include "protocol/handbook_law.h"

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

ANSATZ_MODEL(Reciprocal, HandbookLaw<reciprocal::value, reciprocal::derivatives>)

ANSATZ_PAGE(Reciprocal, .title = "", .formula = "y = 1/(a + b x)",
            .parameters = {{"a", "intercept of the line 1/y against x", Trait::constant},
                           {"b", "its slope", Trait::constant}},
            .notes = "Fails where a + b x = 0.")

ANSATZ_MODEL(ReciprocalMod, HandbookLaw<reciprocal_mod::value, reciprocal_mod::derivatives>)

ANSATZ_PAGE(ReciprocalMod, .title = "", .formula = "y = a/(1 + b x)",
            .parameters = {{"a", "response at x = 0", Trait::level},
                           {"b", "1/(unit of x): y is a/2 at x = 1/b", Trait::constant}},
            .notes = "Fails where b x = -1.")

ANSATZ_MODEL(ReciprocalEVP, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(ReciprocalEVP, .title = "", .formula = "y = (x2 - x1) y1 y2/(y1 (x - x1) + y2 (x2 - x))",
            .parameters = {{"x1", "x of the response y1", Trait::reference},
                           {"y1", "response at x1", Trait::response},
                           {"x2", "x of the response y2", Trait::reference},
                           {"y2", "response at x2", Trait::response}},
            .notes = "Reciprocal through the points (x1, y1) and (x2, y2). Fails where the denominator is 0.")

} // namespace ansatz::reciprocal_evp
