// The exponential law of two parameters: Exp2P, two modified forms and an expected-value form.
//
// The derivatives of Exp2P and Exp2PMod2 mark only y[1] on any failure, and so do those of Exp2PEVP on a
// parameter outside its domain.

#include "protocol/handbook_law.h"

namespace ansatz::exp_2p {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (P[2] <= 0) return fail(at);
    y[1] = P[1] * safe_pow(P[2], x[1]);
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (P[2] <= 0) return fail(at);
    const Real W = safe_pow(P[2], x[1]);
    if (math_error()) return fail(at);
    dyda[1] = W;
    y[1] = P[1] * W;
    dyda[2] = y[1] * x[1] / P[2];
    return success;
}

} // namespace

ANSATZ_MODEL(Exp2P, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(Exp2P, .title = "Exponential growth or decay by a factor per unit of x", .formula = "y = a b^x",
            .parameters = {{"a", "response at x = 0", Trait::level},
                           {"b", "base: factor per unit of x", Trait::base, positive}},
            .typical = {{5, 0.7}, 0, 10}, .scales = Scales::y_only, .same_as = "Exp2PMod1(a = a, b = ln(b))",
            .notes = "Fails for b <= 0 and where the power overflows.")

} // namespace ansatz::exp_2p

namespace ansatz::exp_2p_mod1 {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    y[1] = P[1] * safe_exp(P[2] * x[1]);
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Real E = safe_exp(P[2] * x[1]);
    if (math_error()) return fail(at, 1, 2);
    dyda[1] = E;
    y[1] = P[1] * E;
    dyda[2] = y[1] * x[1];
    return success;
}

} // namespace

ANSATZ_MODEL(Exp2PMod1, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(Exp2PMod1, .title = "Exponential growth or decay by a rate", .formula = "y = a exp(b x)",
            .parameters = {{"a", "response at x = 0", Trait::level},
                           {"b", "rate, 1/(unit of x); negative for decay", Trait::rate}},
            .typical = {{5, -0.4}, 0, 10}, .known_as = "exponential growth, exponential decay",
            .notes = "Fails where the exponential overflows.")

} // namespace ansatz::exp_2p_mod1

namespace ansatz::exp_2p_mod2 {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    y[1] = safe_exp(P[1] + P[2] * x[1]);
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Real E = safe_exp(P[1] + P[2] * x[1]);
    if (math_error()) return fail(at);
    y[1] = E;
    dyda[1] = E;
    dyda[2] = E * x[1];
    return success;
}

} // namespace

ANSATZ_MODEL(Exp2PMod2, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(
    Exp2PMod2, .title = "Exponential of a straight line", .formula = "y = exp(a + b x)",
    .parameters = {{"a", "logarithm of the response at x = 0", Trait::log_level},
                   {"b", "rate, 1/(unit of x); negative for decay", Trait::rate}},
    .typical = {{1.6, -0.4}, 0, 10}, .scales = Scales::x_only, .same_as = "Exp2PMod1(a = exp(a), b = b)",
    .known_as = "log-linear model",
    .notes = "Positive responses only: use Exp2PMod1 for others. Fails where the exponential overflows.")

} // namespace ansatz::exp_2p_mod2

namespace ansatz::exp_2p_evp {
namespace {

bool outside(const Scalar* P) {
    return P[2] <= 0 || P[4] <= 0 || P[1] - P[3] == 0;
}

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (outside(P)) return fail(at);
    const Scalar d = P[1] - P[3];
    y[1] = safe_pow(P[2], (x[1] - P[3]) / d) * safe_pow(P[4], (P[1] - x[1]) / d);
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (outside(P)) return fail(at);
    const Scalar d = P[1] - P[3];
    const Real u = x[1] - P[3], v = P[1] - x[1];
    const Real g = safe_pow(P[2], u / d) * safe_pow(P[4], v / d);
    if (math_error()) return fail_all(at, 4);
    y[1] = g;
    dyda[2] = u * g / d / P[2];
    dyda[4] = g * v / d / P[4];
    if (u == 0) {
        dyda[1] = dyda[3] = 0; // true for the first reference; the second is left out at this one point
        return success;
    }
    const Real slope = of_parameters<log>(P[4] / P[2]) * g * u / (d * d);
    if (math_error()) return fail_all(at, 4); // P4/P2 is 0 for responses that far apart
    dyda[1] = slope;
    dyda[3] = slope * v / u;
    return success;
}

} // namespace

ANSATZ_MODEL(Exp2PEVP, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(Exp2PEVP, .title = "Exponential growth or decay, by the responses at two chosen x",
            .formula = "y = y1^((x - x2)/(x1 - x2)) y2^((x1 - x)/(x1 - x2))",
            .parameters = {{"x1", "x of the response y1", Trait::reference},
                           {"y1", "response at x1", Trait::response, positive},
                           {"x2", "x of the response y2", Trait::reference},
                           {"y2", "response at x2", Trait::response, positive}},
            .typical = {{1, 4, 8, 0.5}, 0, 10}, .departures = {{3, "x = x2"}},
            .same_as = "Exp2PMod1(a = exp((x1 ln(y2) - x2 ln(y1))/(x1 - x2)), b = ln(y1/y2)/(x1 - x2))",
            .notes = "The exponential through the points (x1, y1) and (x2, y2). Fails for y1 <= 0, y2 <= 0 and "
                     "x1 = x2. The derivative by x2 is taken for 0 at a point with x exactly equal to x2: do "
                     "not estimate x2 (--free) from a start at an x of the data.")

} // namespace ansatz::exp_2p_evp
