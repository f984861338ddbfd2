// Reciprocal, Reciprocal0, Reciprocal1, and their other forms. No library function is called, so a pending
// error passes through unseen. A failure of the derivatives of Reciprocal and ReciprocalMod marks y[1] only.
//
// The derivatives of ReciprocalEVP divide by D whatever it is: at a pole the host gets infinities or NaN with
// status 0. Those of Reciprocal0 are not the true ones, and hosts rely on that.

#include "protocol/handbook_law.h"

namespace ansatz::reciprocal {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Real s = P[1] + P[2] * x[1];
    if (s == 0) return fail(at);
    y[1] = 1 / s;
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Real s = P[1] + P[2] * x[1];
    if (s == 0) return fail(at);
    const Real h = 1 / s;
    y[1] = h;
    dyda[1] = -(h * h);
    dyda[2] = -(h * h) * x[1];
    return success;
}

} // namespace

ANSATZ_MODEL(Reciprocal, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(Reciprocal, .title = "Reciprocal of a straight line", .formula = "y = 1/(a + b x)",
            .parameters = {{"a", "intercept of the line 1/y against x", Trait::inverse_level},
                           {"b", "its slope", Trait::coefficient, Dimension{.x = -1, .y = -1}}},
            .typical = {{0.1, 0.05}, 0, 15}, .notes = "Fails where a + b x = 0.")

} // namespace ansatz::reciprocal

namespace ansatz::reciprocal_mod {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Real s = 1 + P[2] * x[1];
    if (s == 0) return fail(at);
    y[1] = P[1] / s;
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Real s = 1 + P[2] * x[1];
    if (s == 0) return fail(at);
    dyda[1] = 1 / s;
    y[1] = P[1] / s;
    dyda[2] = -P[1] * x[1] / (s * s);
    return success;
}

} // namespace

ANSATZ_MODEL(ReciprocalMod, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(ReciprocalMod, .title = "Reciprocal of a straight line, by its response at x = 0",
            .formula = "y = a/(1 + b x)",
            .parameters = {{"a", "response at x = 0", Trait::level},
                           {"b", "1/(unit of x): y is a/2 at x = 1/b", Trait::rate}},
            .typical = {{10, 0.5}, 0, 15}, .same_as = "Reciprocal(a = 1/a, b = b/a)",
            .known_as = "hyperbolic decay", .notes = "Fails where b x = -1.")

} // namespace ansatz::reciprocal_mod

namespace ansatz::reciprocal_evp {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Real D = P[2] * (x[1] - P[1]) + P[4] * (P[3] - x[1]);
    if (D == 0) return fail(at);
    y[1] = (P[3] - P[1]) * P[2] * P[4] / D;
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Real u = x[1] - P[1], v = P[3] - x[1];
    const Scalar d = P[3] - P[1];
    const Real D = P[2] * u + P[4] * v; // may be 0, see above
    const Real h = d * P[2] * P[4] / D;
    y[1] = h;
    dyda[1] = (h - P[4]) * P[2] / D;
    dyda[3] = (P[2] - h) * P[4] / D;
    dyda[2] = (d * P[4] - u * h) / D;
    dyda[4] = (d * P[2] - v * h) / D;
    return success;
}

} // namespace

ANSATZ_MODEL(ReciprocalEVP, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(ReciprocalEVP, .title = "Reciprocal of a straight line, through two points",
            .formula = "y = (x2 - x1) y1 y2/(y1 (x - x1) + y2 (x2 - x))",
            .parameters = {{"x1", "x of the response y1", Trait::reference},
                           {"y1", "response at x1", Trait::response, not_zero},
                           {"x2", "x of the response y2", Trait::reference},
                           {"y2", "response at x2", Trait::response, not_zero}},
            .typical = {{1, 6.5, 10, 1.7}, 0, 15},
            .same_as = "Reciprocal(a = (x2/y1 - x1/y2)/(x2 - x1), b = (1/y2 - 1/y1)/(x2 - x1))",
            .notes = "Reciprocal through the points (x1, y1) and (x2, y2). Fails where the denominator is 0; "
                     "the derivatives do not, and are no numbers there.")

} // namespace ansatz::reciprocal_evp

namespace ansatz::reciprocal0 {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Real D = 1 + P[1] * x[1];
    if (D == 0) return fail(at);
    y[1] = 1 / D;
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Real D = 1 + P[1] * x[1];
    if (D == 0) return fail(at, 1);
    const Real r = 1 / D;
    dyda[1] = -P[1] / (r * r); // the true one is -x r^2
    y[1] = r;
    return success;
}

} // namespace

ANSATZ_MODEL(Reciprocal0, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(
    Reciprocal0, .title = "Reciprocal of a straight line that is 1 at x = 0", .formula = "y = 1/(1 + a x)",
    .parameters = {{"a", "slope of 1/y", Trait::rate}}, .typical = {{0.5}, 0, 15}, .scales = Scales::x_only,
    .departures = {{1}}, .true_derivatives = false,
    .notes = "Fails only where 1 + a x is exactly 0. The model's own derivative, -a/y^2, is not that of y, so "
             "that a fit takes derivatives by differences.")

} // namespace ansatz::reciprocal0

namespace ansatz::reciprocal0_evp {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (P[1] == 0 || P[2] == 0) return fail(at);
    const Real D = (1 / P[2] - 1) * x[1] / P[1] + 1;
    if (D == 0) return fail(at);
    y[1] = 1 / D;
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (P[1] == 0 || P[2] == 0) return fail(at, 1, 2);
    const Scalar c = 1 / P[2] - 1;
    const Real D = c * x[1] / P[1] + 1;
    if (D == 0) return fail(at, 1, 2);
    const Real t = x[1] / P[1];
    const Real r = 1 / D;
    dyda[1] = c * t * (r * r) / P[1];
    dyda[2] = t * (r * r) / (P[2] * P[2]);
    y[1] = r;
    return success;
}

} // namespace

ANSATZ_MODEL(Reciprocal0EVP, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(Reciprocal0EVP, .title = "Reciprocal of a straight line that is 1 at x = 0, through a point",
            .formula = "y = 1/(1 + (1/y1 - 1) x/x1)",
            .parameters = {{"x1", "reference x, your choice", Trait::reference, not_zero},
                           {"y1", "y expected at x1", Trait::response, not_zero}},
            .typical = {{4, 0.4}, 0, 15}, .scales = Scales::x_only, .same_as = "Reciprocal0(a = (1/y1 - 1)/x1)",
            .notes = "Fails for x1 = 0, y1 = 0 and where the denominator is exactly 0.")

} // namespace ansatz::reciprocal0_evp

namespace ansatz::reciprocal1 {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Real D = P[1] + x[1];
    if (D == 0) return fail(at);
    y[1] = 1 / D;
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Real D = P[1] + x[1];
    if (D == 0) return fail(at, 1);
    const Real r = 1 / D;
    dyda[1] = -(r * r);
    y[1] = r;
    return success;
}

} // namespace

ANSATZ_MODEL(Reciprocal1, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(Reciprocal1, .title = "Reciprocal of a shifted x", .formula = "y = 1/(a + x)",
            .parameters = {{"a", "shift: 1/y at x = 0", Trait::constant, Dimension{.x = 1}}},
            .typical = {{2}, 0, 15}, .scales = Scales::neither, .notes = "Fails only for x = -a.")

} // namespace ansatz::reciprocal1

namespace ansatz::reciprocal1_evp {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Real D = (x[1] - P[1]) * P[2] + 1;
    if (D == 0) return fail(at);
    y[1] = P[2] / D;
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Real D = (x[1] - P[1]) * P[2] + 1;
    if (D == 0) return fail(at, 1, 2);
    const Real square = D * D;
    dyda[1] = P[2] * P[2] / square;
    dyda[2] = 1 / square;
    y[1] = P[2] / D;
    return success;
}

} // namespace

ANSATZ_MODEL(Reciprocal1EVP, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(Reciprocal1EVP, .title = "Reciprocal of a shifted x, through a point",
            .formula = "y = y1/(1 + (x - x1) y1)",
            .parameters = {{"x1", "reference x, your choice", Trait::reference},
                           {"y1", "y expected at x1", Trait::response}},
            .typical = {{3, 0.2}, 0, 15}, .scales = Scales::neither, .same_as = "Reciprocal1(a = 1/y1 - x1)",
            .notes = "Fails only where the denominator is exactly 0.")

} // namespace ansatz::reciprocal1_evp
