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

#include "protocol/handbook_law.h"

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

ANSATZ_MODEL(Reciprocal0, HandbookLaw<reciprocal0::value, reciprocal0::derivatives>)

ANSATZ_PAGE(Reciprocal0, .title = "", .formula = "y = 1/(1 + a x)",
            .parameters = {{"a", "slope of 1/y", Trait::slope}}, .true_derivatives = false,
            .notes = "Fails only where 1 + a x is exactly 0. The model's own derivative is not that of y, so "
                     "that a fit takes derivatives by differences.")

ANSATZ_MODEL(Reciprocal0EVP, HandbookLaw<reciprocal0_evp::value, reciprocal0_evp::derivatives>)

ANSATZ_PAGE(Reciprocal0EVP, .title = "", .formula = "y = 1/(1 + (1/y1 - 1) x/x1)",
            .parameters = {{"x1", "reference x, your choice", Trait::reference},
                           {"y1", "y expected at x1", Trait::constant}},
            .notes = "Fails for x1 = 0, y1 = 0 and where the denominator is exactly 0.")

ANSATZ_MODEL(Reciprocal1, HandbookLaw<reciprocal1::value, reciprocal1::derivatives>)

ANSATZ_PAGE(Reciprocal1, .title = "", .formula = "y = 1/(a + x)",
            .parameters = {{"a", "shift: 1/y at x = 0", Trait::constant}}, .notes = "Fails only for x = -a.")

ANSATZ_MODEL(Reciprocal1EVP, HandbookLaw<reciprocal1_evp::value, reciprocal1_evp::derivatives>)

ANSATZ_PAGE(Reciprocal1EVP, .title = "", .formula = "y = y1/(1 + (x - x1) y1)",
            .parameters = {{"x1", "reference x, your choice", Trait::reference},
                           {"y1", "y expected at x1", Trait::constant}},
            .notes = "Fails only where the denominator is exactly 0.")

} // namespace ansatz
