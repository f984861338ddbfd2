// Powers of the distance from a centre: Power0, Power1, Power2.
//
//   Power0   y = P1 + P3 |x - P2|^P4     P1 offset, P2 centre, P3 amplitude, P4 exponent
//   Power1   y = P2 |x - P1|^P3          P1 centre, P2 amplitude, P3 exponent
//   Power2   y = P2 |x - P1|^E           P1 centre, P2 amplitude, E = P3 left of the centre and P4 right of it
//
//   The amplitude is the height above the offset at distance 1 (unit of x) from the centre.
//
//   Fails on an overflow. Exponents <= 0 fail for the derivatives of Power1 and Power2 only. The value of
//   Power0 also fails for nParams <= 0. The derivatives of Power1 do not look for an overflow: it shows as
//   infinite numbers with status 0, and the error indicator stays set.
//
//   At the centre itself the status is 0: the value is that of the offset, and the derivatives by centre and
//   exponent, which do not exist, are missing. Two things to know about Power0 there: a call for value and
//   derivatives ends with the value and leaves dyda untouched, and a call for derivatives alone writes
//   y[1] = 0, not P1.

#include "protocol/forms.h"

#include <cmath>

namespace ansatz::power {
namespace {

double distance(double x, double centre) {
    return std::fabs(x - centre);
}

Status power0_value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (n < 1) return fail(at);
    if (x[1] == P[2]) {
        y[1] = P[1];
        return ends_call;
    }
    y[1] = P[3] * safe_pow(distance(x[1], P[2]), P[4]) + P[1];
    return math_error() ? fail(at) : success;
}

Status power0_derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    dyda[1] = 1;
    if (x[1] == P[2]) {
        dyda[3] = 0;
        dyda[2] = dyda[4] = MISSING_VALUE;
        y[1] = 0;
        return success;
    }
    const double r = distance(x[1], P[2]);
    const double q = safe_pow(r, P[4]);
    if (math_error()) return fail(at, 2, 3, 4);
    dyda[2] = -P[4] * P[3] * q / (x[1] - P[2]);
    dyda[3] = q;
    dyda[4] = log(r) * P[3] * q;
    y[1] = P[3] * q + P[1];
    return success;
}

Status power1_value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (x[1] == P[1]) {
        y[1] = 0;
        return success;
    }
    y[1] = P[2] * safe_pow(distance(x[1], P[1]), P[3]);
    return math_error() ? fail(at) : success;
}

Status power1_derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (P[3] <= 0) return fail(at, 1, 2, 3);
    if (x[1] == P[1]) {
        dyda[2] = 0;
        dyda[1] = dyda[3] = MISSING_VALUE;
        y[1] = 0;
        return success;
    }
    const double r = distance(x[1], P[1]);
    const double q = safe_pow(r, P[3]);
    dyda[1] = -q * P[3] * P[2] / (x[1] - P[1]);
    dyda[2] = q;
    dyda[3] = log(r) * q * P[2];
    y[1] = q * P[2];
    return success;
}

Status power2_value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (x[1] == P[1]) {
        y[1] = 0;
        return success;
    }
    y[1] = P[2] * safe_pow(distance(x[1], P[1]), x[1] < P[1] ? P[3] : P[4]);
    return math_error() ? fail(at) : success;
}

Status power2_derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (P[3] <= 0 || P[4] <= 0) return fail(at, 1, 2, 3, 4);
    const double d = x[1] - P[1];
    if (!(d < 0 || d > 0)) { // a distance that is not a number counts as the centre
        dyda[2] = 0;
        dyda[1] = dyda[3] = dyda[4] = MISSING_VALUE;
        y[1] = P[2] * 0.0;
        return success;
    }
    const int exponent = d < 0 ? 3 : 4, other = d < 0 ? 4 : 3;
    const double r = d < 0 ? -d : d;
    const double q = safe_pow(r, P[exponent]);
    if (math_error()) return fail(at, 1, 2, 3, 4);
    dyda[1] = -P[2] * P[exponent] * q / d;
    dyda[2] = q;
    dyda[exponent] = log(r) * P[2] * q;
    dyda[other] = 0;
    y[1] = P[2] * q;
    return success;
}

} // namespace

ANSATZ_MODEL(Power0, BothPaths<power0_value, power0_derivatives>)

ANSATZ_PAGE(Power0, .title = "", .formula = "y = y0 + A abs(x - xc)^p",
            .parameters = {{"y0", "offset", Trait::offset},
                           {"xc", "centre", Trait::position},
                           {"A", "amplitude, height above the offset at distance 1", Trait::amplitude},
                           {"p", "exponent", Trait::exponent}},
            .notes = "At x = xc the value is y0. The model leaves the derivatives by xc and p open there; a "
                     "fit takes them by differences.")

ANSATZ_MODEL(Power1, BothPaths<power1_value, power1_derivatives>)

ANSATZ_PAGE(Power1, .title = "", .formula = "y = A abs(x - xc)^p",
            .parameters = {{"xc", "centre", Trait::position},
                           {"A", "amplitude, value at distance 1", Trait::amplitude},
                           {"p", "exponent", Trait::exponent}},
            .notes = "At x = xc the value is 0. The model leaves the derivatives by xc and p open there; a fit "
                     "takes them by differences. A fit with p <= 0 needs numerical derivatives throughout.")

ANSATZ_MODEL(Power2, BothPaths<power2_value, power2_derivatives>)

ANSATZ_PAGE(Power2, .title = "",
            .formula = "y = A abs(x - xc)^pl for x < xc, A abs(x - xc)^pu for x > xc, 0 otherwise",
            .parameters = {{"xc", "centre", Trait::position},
                           {"A", "amplitude, value at distance 1 on both sides", Trait::amplitude},
                           {"pl", "exponent below the centre", Trait::exponent},
                           {"pu", "exponent above the centre", Trait::exponent}},
            .notes = "At x = xc the model leaves the derivatives by xc and the exponents open; a fit takes "
                     "them by differences. A fit with an exponent <= 0 needs numerical derivatives throughout.")

} // namespace ansatz::power
