// Asymptotic1 .. Asymptotic7: one law, the exponential approach to a level, in seven parameterisations.
//
//   Asymptotic1   y = P1 - P2 P3^x                    asymptote, span below it at x = 0, base
//   Asymptotic2   y = P1 - P2 e^(-P3 x)               asymptote, span below it at x = 0, rate
//   Asymptotic3   y = P1 (1 - e^(-P3 (x - P2)))       asymptote, x where y is 0, rate
//   Asymptotic4   y = P1 + (P3 - P1) P2^x             start level, base, asymptote (but see below)
//   Asymptotic5   y = P1 + (P3 - P1) e^(-P2 x)        asymptote, rate, level at x = 0
//   Asymptotic6   y = P1 - e^(-(P2 + P3 x))           asymptote, minus the logarithm of the span, rate
//   Asymptotic7   y = P1 + P2 (1 - e^(-P3 x))         level at x = 0, span, rate
//
//   A rate is per unit of x, a base the factor left after one unit of x (base = e^-rate). Mind the
//   names in Asymptotic4: with a base below 1 it runs from P3 at x = 0 towards P1.
//
//   Fails for a rate <= 0, for a base outside the open interval (0, 1), and on a range error, which lies far to
//   the left (x < -709/rate or so). Such a failed parameter test leaves the error indicator as it was; an error
//   of the exponential or power resets it. A rate that is not a number is computed, a base that is not a number
//   fails.
//
//   Oddities: where no exponential is needed (Asymptotic2 with a span of 0; Asymptotic5 and 7 at x == 0;
//   Asymptotic5 between equal levels) the value, and for x == 0 also the derivatives, are written without one
//   and without a look at the indicator. Asymptotic5 has -1, not +1, as its derivative by P3 at x == 0.
//   Asymptotic4 marks dyda[2] alone when its power fails on the derivative path, and leaves the other outputs
//   as computed.

#include "protocol/handbook_law.h"

namespace ansatz {
namespace {

bool base_fails(double base) {
    return !(base > 0 && base < 1);
}

namespace asymptotic1 {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (base_fails(P[3])) return reject(at);
    y[1] = P[1] - safe_pow(P[3], x[1]) * P[2];
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (base_fails(P[3])) return reject(at, 1, 2, 3);
    const double w = -safe_pow(P[3], x[1]);
    if (math_error()) return fail(at, 1, 2, 3);
    const double span = P[2] * w;
    dyda[1] = 1;
    dyda[2] = w;
    dyda[3] = span * x[1] / P[3];
    y[1] = P[1] + span;
    return success;
}

} // namespace asymptotic1

namespace asymptotic2 {

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
    const double w = -safe_exp(-(x[1] * P[3]));
    if (math_error()) return fail(at, 1, 2, 3);
    const double span = P[2] * w;
    dyda[1] = 1;
    dyda[2] = w;
    dyda[3] = -(span * x[1]);
    y[1] = P[1] + span;
    return success;
}

} // namespace asymptotic2

namespace asymptotic3 {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (P[3] <= 0) return reject(at);
    y[1] = (1 - safe_exp(-((x[1] - P[2]) * P[3]))) * P[1];
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (P[3] <= 0) return reject(at, 1, 2, 3);
    const double d = x[1] - P[2];
    const double e = safe_exp(-(d * P[3]));
    if (math_error()) return fail(at, 1, 2, 3);
    const double span = -e * P[1];
    dyda[1] = -e + 1.0;
    dyda[2] = span * P[3];
    dyda[3] = -(d * span);
    y[1] = P[1] + span;
    return success;
}

} // namespace asymptotic3

namespace asymptotic4 {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (base_fails(P[2])) return reject(at);
    y[1] = (P[3] - P[1]) * safe_pow(P[2], x[1]) + P[1];
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (base_fails(P[2])) return reject(at, 1, 2, 3);
    const double p = safe_pow(P[2], x[1]);
    const double span = (P[3] - P[1]) * p;
    dyda[1] = 1 - p;
    dyda[2] = x[1] / P[2] * span;
    dyda[3] = p;
    y[1] = span + P[1];
    return math_error() ? fail_slots(at, 2) : success;
}

} // namespace asymptotic4

namespace asymptotic5 {

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
        dyda[3] = -1.0; // kept so, although the derivative proper is +1
        return success;
    }
    const double e = safe_exp(-(x[1] * P[2]));
    if (math_error()) return fail(at, 1, 2, 3);
    const double span = (P[3] - P[1]) * e;
    dyda[1] = 1 - e;
    dyda[2] = -(x[1] * span);
    dyda[3] = e;
    y[1] = span + P[1];
    return success;
}

} // namespace asymptotic5

namespace asymptotic6 {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (P[3] <= 0) return reject(at);
    y[1] = P[1] - safe_exp(-(x[1] * P[3] + P[2]));
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (P[3] <= 0) return reject(at, 1, 2, 3);
    const double e = safe_exp(-(x[1] * P[3] + P[2]));
    if (math_error()) return fail(at, 1, 2, 3);
    dyda[1] = 1;
    dyda[2] = e;
    dyda[3] = x[1] * e;
    y[1] = P[1] - e;
    return success;
}

} // namespace asymptotic6

namespace asymptotic7 {

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
    const double e = safe_exp(-(x[1] * P[3]));
    if (math_error()) return fail(at, 1, 2, 3);
    const double rise = 1 - e;
    dyda[1] = 1;
    dyda[2] = rise;
    dyda[3] = x[1] * P[2] * e;
    y[1] = rise * P[2] + P[1];
    return success;
}

} // namespace asymptotic7

} // namespace

ANSATZ_MODEL(Asymptotic1, HandbookLaw<asymptotic1::value, asymptotic1::derivatives>)

ANSATZ_PAGE(Asymptotic1, .title = "", .formula = "y = a - b r^x",
            .parameters = {{"a", "asymptote", Trait::level},
                           {"b", "span: a - y at x = 0", Trait::constant},
                           {"r", "base: the part left after one unit of x, above 0 and below 1", Trait::base}},
            .notes = "Fails for r <= 0 and r >= 1.")

ANSATZ_MODEL(Asymptotic2, HandbookLaw<asymptotic2::value, asymptotic2::derivatives>)

ANSATZ_PAGE(Asymptotic2, .title = "", .formula = "y = a - b exp(-k x)",
            .parameters = {{"a", "asymptote", Trait::level},
                           {"b", "span: a - y at x = 0", Trait::constant},
                           {"k", "rate, 1/(unit of x), above 0", Trait::rate}},
            .notes = "Fails for k <= 0.")

ANSATZ_MODEL(Asymptotic3, HandbookLaw<asymptotic3::value, asymptotic3::derivatives>)

ANSATZ_PAGE(Asymptotic3, .title = "", .formula = "y = a (1 - exp(-k (x - x0)))",
            .parameters = {{"a", "asymptote", Trait::level},
                           {"x0", "x at which y is 0", Trait::constant},
                           {"k", "rate, 1/(unit of x), above 0", Trait::rate}},
            .notes = "Fails for k <= 0.")

ANSATZ_MODEL(Asymptotic4, HandbookLaw<asymptotic4::value, asymptotic4::derivatives>)

ANSATZ_PAGE(Asymptotic4, .title = "", .formula = "y = a + (y0 - a) r^x",
            .parameters = {{"a", "asymptote", Trait::level},
                           {"r", "base: the part left after one unit of x, above 0 and below 1", Trait::base},
                           {"y0", "y at x = 0", Trait::constant}},
            .notes = "Fails for r <= 0 and r >= 1.")

ANSATZ_MODEL(Asymptotic5, HandbookLaw<asymptotic5::value, asymptotic5::derivatives>)

ANSATZ_PAGE(Asymptotic5, .title = "", .formula = "y = a + (y0 - a) exp(-k x)",
            .parameters = {{"a", "asymptote", Trait::level},
                           {"k", "rate, 1/(unit of x), above 0", Trait::rate},
                           {"y0", "y at x = 0", Trait::constant}},
            .true_derivatives = false,
            .notes = "Fails for k <= 0. The model's own derivative by y0 has the wrong sign at x = 0, so that "
                     "a fit takes derivatives by differences.")

ANSATZ_MODEL(Asymptotic6, HandbookLaw<asymptotic6::value, asymptotic6::derivatives>)

ANSATZ_PAGE(Asymptotic6, .title = "", .formula = "y = a - exp(-(b + k x))",
            .parameters = {{"a", "asymptote", Trait::level},
                           {"b", "minus the logarithm of a - y at x = 0", Trait::constant},
                           {"k", "rate, 1/(unit of x), above 0", Trait::rate}},
            .notes = "Fails for k <= 0. The curve can only rise.")

ANSATZ_MODEL(Asymptotic7, HandbookLaw<asymptotic7::value, asymptotic7::derivatives>)

ANSATZ_PAGE(Asymptotic7, .title = "", .formula = "y = y0 + b (1 - exp(-k x))",
            .parameters = {{"y0", "y at x = 0", Trait::constant},
                           {"b", "span: the asymptote is y0 + b", Trait::constant},
                           {"k", "rate, 1/(unit of x), above 0", Trait::rate}},
            .notes = "Fails for k <= 0.")

} // namespace ansatz
