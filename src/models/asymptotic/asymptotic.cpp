// Asymptotic1 .. Asymptotic7: one law, the exponential approach to a level, in seven parameterisations.
//
// A failed test of a base or a rate leaves the error indicator as it was; an error of the exponential or the
// power, which lies far to the left (x < -709/k or so), resets it. A rate that is not a number is computed, a
// base that is not a number fails.
//
// Where no exponential is needed (Asymptotic2 with a span of 0; Asymptotic5 and 7 at x = 0; Asymptotic5 between
// equal levels) the value, and for x = 0 also the derivatives, are written without one and without a look at
// the indicator.

#include "protocol/handbook_law.h"

namespace ansatz::asymptotic {
namespace {

bool base_fails(Scalar base) {
    return !(base > 0 && base < 1);
}

} // namespace
} // namespace ansatz::asymptotic

namespace ansatz::asymptotic1 {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (asymptotic::base_fails(P[3])) return reject(at);
    y[1] = P[1] - safe_pow(P[3], x[1]) * P[2];
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (asymptotic::base_fails(P[3])) return reject(at, 1, 2, 3);
    const Real w = -safe_pow(P[3], x[1]);
    if (math_error()) return fail(at, 1, 2, 3);
    const Real span = P[2] * w;
    dyda[1] = 1;
    dyda[2] = w;
    dyda[3] = span * x[1] / P[3];
    y[1] = P[1] + span;
    return success;
}

} // namespace

ANSATZ_MODEL(Asymptotic1, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(Asymptotic1, .title = "Exponential approach to a level, by the span below it and a base",
            .formula = "y = a - b r^x",
            .parameters = {{"a", "asymptote", Trait::level},
                           {"b", "span: a - y at x = 0", Trait::amplitude},
                           {"r", "base: the part left after one unit of x", Trait::base, between(0, 1)}},
            .typical = {{5, 4, 0.6}, 0, 10}, .scales = Scales::y_only,
            .same_as = "ExpDec1(y0 = a, A1 = -b, t1 = -1/ln(r))", .known_as = "asymptotic regression",
            .source = "Stevens, 1951", .notes = "Fails for r <= 0 and r >= 1.")

} // namespace ansatz::asymptotic1

namespace ansatz::asymptotic2 {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (P[3] <= 0) return reject(at);
    if (P[2] == 0) {
        y[1] = P[1];
        return success;
    }
    y[1] = P[1] - safe_exp(-(x[1] * P[3])) * P[2];
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (P[3] <= 0) return reject(at, 1, 2, 3);
    const Real w = -safe_exp(-(x[1] * P[3]));
    if (math_error()) return fail(at, 1, 2, 3);
    const Real span = P[2] * w;
    dyda[1] = 1;
    dyda[2] = w;
    dyda[3] = -(span * x[1]);
    y[1] = P[1] + span;
    return success;
}

} // namespace

ANSATZ_MODEL(Asymptotic2, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(Asymptotic2, .title = "Exponential approach to a level, by the span below it and a rate",
            .formula = "y = a - b exp(-k x)",
            .parameters = {{"a", "asymptote", Trait::level},
                           {"b", "span: a - y at x = 0", Trait::amplitude},
                           {"k", "rate, 1/(unit of x)", Trait::rate, positive}},
            .typical = {{5, 4, 0.5}, 0, 10}, .same_as = "ExpDec1(y0 = a, A1 = -b, t1 = 1/k)",
            .known_as = "asymptotic regression", .notes = "Fails for k <= 0.")

} // namespace ansatz::asymptotic2

namespace ansatz::asymptotic3 {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (P[3] <= 0) return reject(at);
    y[1] = (1 - safe_exp(-((x[1] - P[2]) * P[3]))) * P[1];
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (P[3] <= 0) return reject(at, 1, 2, 3);
    const Real d = x[1] - P[2];
    const Real e = safe_exp(-(d * P[3]));
    if (math_error()) return fail(at, 1, 2, 3);
    const Real span = -e * P[1];
    dyda[1] = -e + 1.0;
    dyda[2] = span * P[3];
    dyda[3] = -(d * span);
    y[1] = P[1] + span;
    return success;
}

} // namespace

ANSATZ_MODEL(Asymptotic3, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(Asymptotic3, .title = "Exponential approach to a level, by the x where the curve is 0 and a rate",
            .formula = "y = a (1 - exp(-k (x - x0)))",
            .parameters = {{"a", "asymptote", Trait::level},
                           {"x0", "x at which y is 0", Trait::threshold},
                           {"k", "rate, 1/(unit of x)", Trait::rate, positive}},
            .typical = {{5, -0.5, 0.5}, -0.5, 10}, .same_as = "ExpDec1(y0 = a, A1 = -a exp(k x0), t1 = 1/k)",
            .known_as = "von Bertalanffy growth in length, monomolecular growth", .notes = "Fails for k <= 0.")

} // namespace ansatz::asymptotic3

namespace ansatz::asymptotic4 {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (asymptotic::base_fails(P[2])) return reject(at);
    y[1] = (P[3] - P[1]) * safe_pow(P[2], x[1]) + P[1];
    return math_error() ? fail(at) : success;
}

/// An error of the power marks dyda[2] alone and leaves the other outputs as computed.
Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (asymptotic::base_fails(P[2])) return reject(at, 1, 2, 3);
    const Real p = safe_pow(P[2], x[1]);
    const Real span = (P[3] - P[1]) * p;
    dyda[1] = 1 - p;
    dyda[2] = x[1] / P[2] * span;
    dyda[3] = p;
    y[1] = span + P[1];
    return math_error() ? fail_slots(at, 2) : success;
}

} // namespace

ANSATZ_MODEL(Asymptotic4, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(Asymptotic4, .title = "Exponential approach to a level, by the start level and a base",
            .formula = "y = a + (y0 - a) r^x",
            .parameters = {{"a", "asymptote", Trait::level},
                           {"r", "base: the part left after one unit of x", Trait::base, between(0, 1)},
                           {"y0", "y at x = 0", Trait::level}},
            .typical = {{5, 0.6, 1}, 0, 10}, .scales = Scales::y_only,
            .same_as = "ExpDec1(y0 = a, A1 = y0 - a, t1 = -1/ln(r))", .known_as = "asymptotic regression",
            .notes = "Fails for r <= 0 and r >= 1. The asymptote comes first, the level at x = 0 last.")

} // namespace ansatz::asymptotic4

namespace ansatz::asymptotic5 {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (P[2] <= 0) return reject(at);
    if (x[1] == 0) {
        y[1] = P[3];
        return success;
    }
    if (P[1] == P[3]) {
        y[1] = P[1];
        return success;
    }
    y[1] = (P[3] - P[1]) * safe_exp(-(x[1] * P[2])) + P[1];
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (P[2] <= 0) return reject(at, 1, 2, 3);
    if (x[1] == 0) {
        y[1] = P[3];
        dyda[1] = 0;
        dyda[2] = 0;
        dyda[3] = -1.0; // hosts rely on it, although the derivative proper is +1
        return success;
    }
    const Real e = safe_exp(-(x[1] * P[2]));
    if (math_error()) return fail(at, 1, 2, 3);
    const Real span = (P[3] - P[1]) * e;
    dyda[1] = 1 - e;
    dyda[2] = -(x[1] * span);
    dyda[3] = e;
    y[1] = span + P[1];
    return success;
}

} // namespace

ANSATZ_MODEL(Asymptotic5, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(Asymptotic5, .title = "Exponential approach to a level, by the start level and a rate",
            .formula = "y = a + (y0 - a) exp(-k x)",
            .parameters = {{"a", "asymptote", Trait::level},
                           {"k", "rate, 1/(unit of x)", Trait::rate, positive},
                           {"y0", "y at x = 0", Trait::level}},
            .typical = {{5, 0.5, 1}, 0, 10}, .departures = {{3, "x = 0"}}, .true_derivatives = false,
            .same_as = "ExpDec1(y0 = a, A1 = y0 - a, t1 = 1/k)", .known_as = "asymptotic regression",
            .notes = "Fails for k <= 0. The model's own derivative by y0 has the wrong sign at x = 0, so that "
                     "a fit takes derivatives by differences.")

} // namespace ansatz::asymptotic5

namespace ansatz::asymptotic6 {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (P[3] <= 0) return reject(at);
    y[1] = P[1] - safe_exp(-(x[1] * P[3] + P[2]));
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (P[3] <= 0) return reject(at, 1, 2, 3);
    const Real e = safe_exp(-(x[1] * P[3] + P[2]));
    if (math_error()) return fail(at, 1, 2, 3);
    dyda[1] = 1;
    dyda[2] = e;
    dyda[3] = x[1] * e;
    y[1] = P[1] - e;
    return success;
}

} // namespace

ANSATZ_MODEL(Asymptotic6, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(Asymptotic6,
            .title = "Exponential rise to a level, by the logarithm of the span below it and a rate",
            .formula = "y = a - exp(-(b + k x))",
            .parameters = {{"a", "asymptote", Trait::level},
                           {"b", "minus the logarithm of the span, a - y at x = 0", Trait::log_level},
                           {"k", "rate, 1/(unit of x)", Trait::rate, positive}},
            .typical = {{5, -1.4, 0.5}, 0, 10}, .scales = Scales::x_only,
            .same_as = "ExpDec1(y0 = a, A1 = -exp(-b), t1 = 1/k)",
            .notes = "Fails for k <= 0. The curve can only rise.")

} // namespace ansatz::asymptotic6

namespace ansatz::asymptotic7 {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (P[3] <= 0) return reject(at);
    if (x[1] == 0) {
        y[1] = P[1];
        return success;
    }
    y[1] = (1 - safe_exp(-(x[1] * P[3]))) * P[2] + P[1];
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (P[3] <= 0) return reject(at, 1, 2, 3);
    if (x[1] == 0) {
        y[1] = P[1];
        dyda[1] = 1;
        dyda[2] = 0;
        dyda[3] = P[2] * x[1];
        return success;
    }
    const Real e = safe_exp(-(x[1] * P[3]));
    if (math_error()) return fail(at, 1, 2, 3);
    const Real rise = 1 - e;
    dyda[1] = 1;
    dyda[2] = rise;
    dyda[3] = x[1] * P[2] * e;
    y[1] = rise * P[2] + P[1];
    return success;
}

} // namespace

ANSATZ_MODEL(Asymptotic7, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(Asymptotic7, .title = "Exponential approach to a level, by the start level, the span and a rate",
            .formula = "y = y0 + b (1 - exp(-k x))",
            .parameters = {{"y0", "y at x = 0", Trait::level},
                           {"b", "span: the asymptote is y0 + b", Trait::amplitude},
                           {"k", "rate, 1/(unit of x)", Trait::rate, positive}},
            .typical = {{1, 4, 0.5}, 0, 10}, .same_as = "ExpDec1(y0 = y0 + b, A1 = -b, t1 = 1/k)",
            .known_as = "one-phase association", .notes = "Fails for k <= 0.")

} // namespace ansatz::asymptotic7
