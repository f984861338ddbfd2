// Reciprocal0, Reciprocal1 and their expected-value forms: one over a straight line with one free coefficient.
//
//   Reciprocal0      y = 1 / (1 + P1 x)                       P1 slope
//   Reciprocal0EVP   y = 1 / ((1/P2 - 1) x/P1 + 1)            P1 reference x, P2 response there
//   Reciprocal1      y = 1 / (P1 + x)                         P1 shift
//   Reciprocal1EVP   y = P2 / ((x - P1) P2 + 1)               P1 reference x, P2 response there
//
//   The expected-value forms read params[2] and write dyda[2]. All fail where the denominator is exactly 0,
//   Reciprocal0EVP also for P1 == 0 and P2 == 0. No library function is called, so a pending error passes
//   through unseen. Reciprocal0 returns -P1/y^2 as its derivative, which is not the derivative of y (that would
//   be -x y^2): a host that wants the true one takes it numerically.

#include "models/handbook/law.h"

namespace ansatz {
namespace {
namespace reciprocal0 {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const double D = 1 + P[1] * x[1];
    if (D == 0) return fail(at);
    y[1] = 1 / D;
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const double D = 1 + P[1] * x[1];
    if (D == 0) return fail(at, 1);
    const double r = 1 / D;
    dyda[1] = -P[1] / (r * r);
    y[1] = r;
    return success;
}

} // namespace reciprocal0

namespace reciprocal0_evp {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (P[1] == 0 || P[2] == 0) return fail(at);
    const double D = (1 / P[2] - 1) * x[1] / P[1] + 1;
    if (D == 0) return fail(at);
    y[1] = 1 / D;
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (P[1] == 0 || P[2] == 0) return fail(at, 1, 2);
    const double c = 1 / P[2] - 1;
    const double D = c * x[1] / P[1] + 1;
    if (D == 0) return fail(at, 1, 2);
    const double t = x[1] / P[1];
    const double r = 1 / D;
    dyda[1] = c * t * (r * r) / P[1];
    dyda[2] = t * (r * r) / (P[2] * P[2]);
    y[1] = r;
    return success;
}

} // namespace reciprocal0_evp

namespace reciprocal1 {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const double D = P[1] + x[1];
    if (D == 0) return fail(at);
    y[1] = 1 / D;
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const double D = P[1] + x[1];
    if (D == 0) return fail(at, 1);
    const double r = 1 / D;
    dyda[1] = -(r * r);
    y[1] = r;
    return success;
}

} // namespace reciprocal1

namespace reciprocal1_evp {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const double D = (x[1] - P[1]) * P[2] + 1;
    if (D == 0) return fail(at);
    y[1] = P[2] / D;
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const double D = (x[1] - P[1]) * P[2] + 1;
    if (D == 0) return fail(at, 1, 2);
    const double square = D * D;
    dyda[1] = P[2] * P[2] / square;
    dyda[2] = 1 / square;
    y[1] = P[2] / D;
    return success;
}

} // namespace reciprocal1_evp
} // namespace
} // namespace ansatz

ANSATZ_MODEL(Reciprocal0, ansatz::HandbookLaw<ansatz::reciprocal0::value, ansatz::reciprocal0::derivatives>)
ANSATZ_MODEL(Reciprocal0EVP,
             ansatz::HandbookLaw<ansatz::reciprocal0_evp::value, ansatz::reciprocal0_evp::derivatives>)
ANSATZ_MODEL(Reciprocal1, ansatz::HandbookLaw<ansatz::reciprocal1::value, ansatz::reciprocal1::derivatives>)
ANSATZ_MODEL(Reciprocal1EVP,
             ansatz::HandbookLaw<ansatz::reciprocal1_evp::value, ansatz::reciprocal1_evp::derivatives>)
