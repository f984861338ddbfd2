// Richards, SRichards1, SRichards2: sigmoidal growth whose point of inflection is a parameter.
//
//   Richards     y = P1 / (1 + e^(-(P3 x + P2)/P4))^P4
//     P1 ceiling, P2 location term, P3 rate (1 / unit of x), P4 shape
//   SRichards1   y = (P1^(1-P3) - s e^(-(x - P2) P4))^(1/(1-P3)),  s = 1 where P3 < 1, else -1
//   SRichards2   y = P1 (1 - (1 - P3) e^(-(x - P2) P4))^(1/(1-P3))
//     P1 ceiling, P2 centre, P3 shape, P4 rate. P3 = 2 is the logistic curve. SRichards2 approaches the
//     Gompertz curve for P3 near 1; P3 == 1 itself fails.
//
//   Fails on an overflow, and
//     Richards, derivatives: for P4 <= 0. The value accepts a negative shape and is P1 for a shape of 0, where
//       a call for both ends with it.
//     SRichards1: for P3 == 1, P1 <= 0, P4 <= 0. SRichards2: for these and P3 <= 0.
//     Both: where the base of the outer power is not positive. For P3 < 1 that is the time before growth sets
//     in.
//   In the derivatives every failure marks all slopes, but for two that mark y only: an overflow in SRichards1,
//   and in SRichards2 an overflow of the exponential or a base that is not positive.

#include "protocol/forms.h"

namespace ansatz::richards {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (P[4] == 0) {
        y[1] = P[1];
        return ends_call;
    }
    const double t = safe_exp(-(P[3] * x[1] + P[2]) / P[4]);
    if (math_error()) return fail(at);
    const double power = safe_pow(t + 1, P[4]);
    if (math_error()) return fail(at);
    y[1] = P[1] / power;
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (P[4] <= 0) return fail(at, 1, 2, 3, 4);
    const double time = x[1];
    const double u = (P[3] * time + P[2]) / P[4];
    const double t = safe_exp(-u);
    if (math_error()) return fail(at, 1, 2, 3, 4);
    const double s = t + 1;
    const double share = safe_pow(s, -P[4]);
    if (math_error()) return fail(at, 1, 2, 3, 4);
    const double level = P[1] * share;
    const double by_location = level * t / s;
    y[1] = level;
    dyda[1] = share;
    dyda[2] = by_location;
    dyda[3] = by_location * time;
    dyda[4] = (-log(s) - u * t / s) * level;
    if (math_error()) return fail_slots(at, 4);
    return success;
}

} // namespace
} // namespace ansatz::richards

namespace ansatz::srichards1 {
namespace {

bool outside_domain(const double* P) {
    return P[3] == 1 || P[1] <= 0 || P[4] <= 0;
}

/// The exponential with the sign it is subtracted with.
double signed_term(double e, double shape) {
    return shape < 1 ? e : -e;
}

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (outside_domain(P)) return fail(at);
    const double c = 1 - P[3];
    const double e = safe_exp(-(x[1] - P[2]) * P[4]);
    if (math_error()) return fail(at);
    const double a = of_parameters<safe_pow>(P[1], c);
    if (math_error()) return fail(at);
    const double b = a - signed_term(e, P[3]);
    if (b <= 0) return fail(at);
    const double level = safe_pow(b, 1 / c);
    if (math_error()) return fail(at);
    y[1] = level;
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (outside_domain(P)) return fail(at, 1, 2, 3, 4);
    const double ceiling = P[1], rate = P[4];
    const double c = 1 - P[3];
    const double d = x[1] - P[2];
    const double e = safe_exp(-d * rate);
    if (math_error()) return fail(at);
    const double a = of_parameters<safe_pow>(ceiling, c);
    if (math_error()) return fail(at);
    const double term = signed_term(e, P[3]);
    const double b = a - term;
    if (b <= 0) return fail(at, 1, 2, 3, 4);
    const double level = safe_pow(b, 1 / c);
    if (math_error()) return fail(at);
    const double q = level / b;
    y[1] = level;
    dyda[1] = a / ceiling * q;
    dyda[2] = -rate * q * term / c;
    dyda[4] = d * q * term / c;
    const double log_b = log(b);
    const double log_ceiling = of_parameters<log>(ceiling);
    if (math_error()) return fail_slots(at, 3);
    dyda[3] = level / c * (log_b / c - log_ceiling * a / b);
    return success;
}

} // namespace
} // namespace ansatz::srichards1

namespace ansatz::srichards2 {
namespace {

bool outside_domain(const double* P) {
    return P[3] == 1 || P[1] <= 0 || P[3] <= 0 || P[4] <= 0;
}

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (outside_domain(P)) return fail(at);
    const double e = safe_exp(-(x[1] - P[2]) * P[4]);
    if (math_error()) return fail(at);
    const double r = 1 / (1 - P[3]);
    const double b = 1 - e / r;
    if (b <= 0) return fail(at);
    const double power = safe_pow(b, r);
    if (math_error()) return fail(at);
    y[1] = P[1] * power;
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (outside_domain(P)) return fail(at, 1, 2, 3, 4);
    const double rate = P[4];
    const double d = x[1] - P[2];
    const double e = safe_exp(-d * rate);
    if (math_error()) return fail(at);
    const double r = 1 / (1 - P[3]);
    const double b = 1 - e / r;
    if (b <= 0) return fail(at);
    const double power = safe_pow(b, r);
    if (math_error()) return fail(at, 1, 2, 3, 4);
    const double level = power * P[1];
    const double w = level * e / b;
    y[1] = level;
    dyda[1] = power;
    dyda[2] = -rate * w;
    dyda[4] = w * d;
    const double log_power = log(b) * r;
    if (math_error()) { // and the indicator stays set
        dyda[3] = MISSING_VALUE;
        return failure;
    }
    dyda[3] = (log_power + e / b) * r * level;
    return success;
}

} // namespace

ANSATZ_MODEL(Richards, BothPaths<richards::value, richards::derivatives>)

ANSATZ_PAGE(Richards, .title = "", .formula = "y = a/(1 + exp(-(k x + b)/m))^m",
            .parameters = {{"a", "ceiling", Trait::ceiling},
                           {"b", "location: early in the growth y = a exp(k x + b)", Trait::constant},
                           {"k", "rate of the early, exponential growth, 1/(unit of x)", Trait::rate},
                           {"m", "shape, above 0; 1 makes it the logistic curve", Trait::shape}},
            .notes = "m < 0 has a value but no derivatives: bound m from below by a small positive number.")

ANSATZ_MODEL(SRichards1, BothPaths<srichards1::value, srichards1::derivatives>)

ANSATZ_PAGE(SRichards1, .title = "",
            .formula = "y = (a^(1 - d) - s exp(-(x - xc) k))^(1/(1 - d)),  s = 1 for d < 1, -1 for d > 1",
            .parameters = {{"a", "ceiling, above 0", Trait::ceiling},
                           {"xc", "location: the exponential is 1 there", Trait::constant},
                           {"d", "shape, other than 1; 2 makes it the logistic curve", Trait::shape},
                           {"k", "rate, above 0", Trait::rate}},
            .notes = "Fails for d = 1, a <= 0 and k <= 0, and for d < 1 where the base of the outer power is "
                     "not positive, before growth sets in: data that begin earlier need d > 1. A fit cannot "
                     "cross d = 1: start on the right side. xc is hard to guess, since it depends on a and d; "
                     "SRichards2 has the same curves for d > 1 with an xc one can see.")

ANSATZ_MODEL(SRichards2, BothPaths<value, derivatives>)

ANSATZ_PAGE(SRichards2, .title = "", .formula = "y = a (1 - (1 - d) exp(-(x - xc) k))^(1/(1 - d))",
            .parameters = {{"a", "ceiling, above 0", Trait::ceiling},
                           {"xc", "centre: x of the fastest growth, where y = a d^(1/(1 - d))",
                            Trait::position},
                           {"d", "shape, above 0, other than 1; 2 makes it the logistic curve", Trait::shape},
                           {"k", "rate, above 0", Trait::rate}},
            .notes = "Fails for d = 1, a <= 0, d <= 0 and k <= 0, and for d < 1 where the base of the outer "
                     "power is not positive, before growth sets in: data that begin earlier need d > 1. "
                     "Approaches SGompertz for d near 1, but a fit cannot cross it: start on the right side.")

} // namespace ansatz::srichards2
