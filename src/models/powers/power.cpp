#include "protocol/handbook_law.h"

#include <cmath>

// Without x > 0 the derivatives mark dyda[1] alone, and y[1] stands; the value needs no more of x than that its
// power exists.
namespace ansatz::power {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    y[1] = safe_pow(x[1], P[1]);
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Real w = safe_pow(x[1], P[1]);
    if (math_error()) return fail(at, 1);
    y[1] = w;
    if (x[1] <= 0) return fail_slots(at, 1);
    dyda[1] = log(x[1]) * w; // cannot err: x is positive
    return success;
}

} // namespace

ANSATZ_MODEL(Power, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(Power, .title = "Power of x", .formula = "y = x^a",
            .parameters = {{"a", "exponent", Trait::exponent}}, .x = {positive}, .typical = {{0.5}, 0.05, 5},
            .scales = Scales::neither,
            .notes = "For x <= 0 there is a value where the power exists, but no derivative, and so no fit.")

} // namespace ansatz::power

// At the reference x = 1 every curve is 1 and the response there says nothing: it has to be 1. Both derivative
// slots are marked then, although the status is 0.
namespace ansatz::power_evp {
namespace {

bool parameters_fail(const Scalar* P, Real x) {
    return x <= 0 || P[1] <= 0 || P[2] <= 0 || (P[1] == 1 && P[2] != 1);
}

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (parameters_fail(P, x[1])) return fail(at);
    if (P[1] == 1) {
        y[1] = 1;
        return success;
    }
    y[1] = safe_pow(P[2], log(x[1]) / of_parameters<log>(P[1]));
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (parameters_fail(P, x[1])) return fail(at, 1, 2);
    if (P[1] == 1) {
        y[1] = 1;
        dyda[1] = dyda[2] = MISSING_VALUE;
        return success;
    }
    const Scalar log_reference = of_parameters<log>(P[1]);
    const Real r = log(x[1]) / log_reference;
    const Real w = safe_pow(P[2], r);
    const Scalar log_response = of_parameters<log>(P[2]);
    if (math_error()) return fail(at, 1, 2);
    dyda[1] = -w * r * log_response / P[1] / log_reference;
    dyda[2] = w * r / P[2];
    y[1] = w;
    return success;
}

} // namespace

ANSATZ_MODEL(PowerEVP, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(PowerEVP, .title = "Power of x by the response at one position", .formula = "y = y1^(ln(x)/ln(x1))",
            .parameters = {{"x1", "x of the response y1", Trait::reference, positive},
                           {"y1", "response at x1", Trait::response, positive}},
            .x = {positive}, .typical = {{4, 2}, 0.05, 5}, .scales = Scales::neither,
            .departures = {{1, "x1 = 1"}, {2, "x1 = 1"}}, .same_as = "Power(a = ln(y1)/ln(x1))",
            .notes = "Fails for x <= 0, x1 <= 0 and y1 <= 0. Choose x1 other than 1, where every curve is 1.")

} // namespace ansatz::power_evp

// At the centre the status is 0, and the derivatives by centre and exponent are marked. A call for value and
// derivatives ends there with the value and leaves dyda untouched; a call for derivatives alone writes 0 into
// y[1], not P1: hosts rely on both. The value also fails for nParams <= 0.
namespace ansatz::power0 {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (n < 1) return fail(at);
    if (x[1] == P[2]) {
        y[1] = P[1];
        return ends_call;
    }
    y[1] = P[3] * safe_pow(std::fabs(x[1] - P[2]), P[4]) + P[1];
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    dyda[1] = 1;
    if (x[1] == P[2]) {
        dyda[3] = 0;
        dyda[2] = dyda[4] = MISSING_VALUE;
        y[1] = 0;
        return success;
    }
    const Real r = std::fabs(x[1] - P[2]);
    const Real q = safe_pow(r, P[4]);
    if (math_error()) return fail(at, 2, 3, 4);
    dyda[2] = -P[4] * P[3] * q / (x[1] - P[2]);
    dyda[3] = q;
    dyda[4] = log(r) * P[3] * q;
    y[1] = P[3] * q + P[1];
    return success;
}

} // namespace

ANSATZ_MODEL(Power0, BothPaths<value, derivatives>)

ANSATZ_PAGE(Power0, .title = "Power of the distance from a centre, on an offset",
            .formula = "y = y0 + A abs(x - xc)^p",
            .parameters = {{"y0", "offset", Trait::offset},
                           {"xc", "centre", Trait::position},
                           {"A", "amplitude: height above the offset at distance 1", Trait::amplitude},
                           {"p", "exponent", Trait::exponent}},
            .typical = {{1, 3.1, 2, 0.6}, 0, 7}, .scales = Scales::y_only,
            .departures = {{2, "x = xc"}, {4, "x = xc"}},
            .notes = "At x = xc the value is y0. The model leaves the derivatives by xc and p open there; a "
                     "fit takes them by differences.")

} // namespace ansatz::power0

// At the centre the status is 0, and the derivatives by centre and exponent are marked. The derivatives do not
// look for an overflow: it shows as infinite numbers with status 0, and the error indicator stays set.
namespace ansatz::power1 {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (x[1] == P[1]) {
        y[1] = 0;
        return success;
    }
    y[1] = P[2] * safe_pow(std::fabs(x[1] - P[1]), P[3]);
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (P[3] <= 0) return fail(at, 1, 2, 3);
    if (x[1] == P[1]) {
        dyda[2] = 0;
        dyda[1] = dyda[3] = MISSING_VALUE;
        y[1] = 0;
        return success;
    }
    const Real r = std::fabs(x[1] - P[1]);
    const Real q = safe_pow(r, P[3]);
    dyda[1] = -q * P[3] * P[2] / (x[1] - P[1]);
    dyda[2] = q;
    dyda[3] = log(r) * q * P[2];
    y[1] = q * P[2];
    return success;
}

} // namespace

ANSATZ_MODEL(Power1, BothPaths<value, derivatives>)

ANSATZ_PAGE(Power1, .title = "Power of the distance from a centre", .formula = "y = A abs(x - xc)^p",
            .parameters = {{"xc", "centre", Trait::position},
                           {"A", "amplitude: value at distance 1", Trait::amplitude},
                           {"p", "exponent", Trait::exponent, positive}},
            .typical = {{3.1, 2, 1.5}, 0, 7}, .scales = Scales::y_only,
            .departures = {{1, "x = xc"}, {3, "x = xc"}},
            .notes = "At x = xc the value is 0. The model leaves the derivatives by xc and p open there; a fit "
                     "takes them by differences. For p <= 0 the derivatives fail, and a fit needs numerical "
                     "ones throughout.")

} // namespace ansatz::power1

// At the centre the status is 0, and the derivatives by centre and exponents are marked.
namespace ansatz::power2 {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (x[1] == P[1]) {
        y[1] = 0;
        return success;
    }
    y[1] = P[2] * safe_pow(std::fabs(x[1] - P[1]), x[1] < P[1] ? P[3] : P[4]);
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (P[3] <= 0 || P[4] <= 0) return fail(at, 1, 2, 3, 4);
    const Real d = x[1] - P[1];
    if (!(d < 0 || d > 0)) { // a distance that is not a number counts as the centre
        dyda[2] = 0;
        dyda[1] = dyda[3] = dyda[4] = MISSING_VALUE;
        y[1] = P[2] * 0.0;
        return success;
    }
    const int exponent = d < 0 ? 3 : 4, other = d < 0 ? 4 : 3;
    const Real r = d < 0 ? -d : d;
    const Real q = safe_pow(r, P[exponent]);
    if (math_error()) return fail(at, 1, 2, 3, 4);
    dyda[1] = -P[2] * P[exponent] * q / d;
    dyda[2] = q;
    dyda[exponent] = log(r) * P[2] * q;
    dyda[other] = 0;
    y[1] = P[2] * q;
    return success;
}

} // namespace

ANSATZ_MODEL(Power2, BothPaths<value, derivatives>)

ANSATZ_PAGE(Power2, .title = "Power of the distance from a centre, with an exponent for each side",
            .formula = "y = A abs(x - xc)^pl for x < xc, A abs(x - xc)^pu for x > xc, 0 otherwise",
            .parameters = {{"xc", "centre", Trait::position},
                           {"A", "amplitude: value at distance 1 on both sides", Trait::amplitude},
                           {"pl", "exponent below the centre", Trait::exponent, positive},
                           {"pu", "exponent above the centre", Trait::exponent, positive}},
            .typical = {{3.1, 2, 0.6, 1.8}, 0, 7}, .scales = Scales::y_only,
            .departures = {{1, "x = xc"}, {3, "x = xc"}, {4, "x = xc"}},
            .notes = "At x = xc the model leaves the derivatives by xc and the exponents open; a fit takes "
                     "them by differences. For an exponent <= 0 the derivatives fail, and a fit needs "
                     "numerical ones throughout.")

} // namespace ansatz::power2
