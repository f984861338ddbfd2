// ExponentEVP, Exponent2EVP, Exponent3EVP: the exponentials of one parameter by the response expected at a
// reference x. Both are parameters: they read params[2] and write dyda[2].

#include "protocol/handbook_law.h"

namespace ansatz::exponent_evp {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    y[1] = P[2] * safe_exp(x[1] - P[1]);
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Real e = safe_exp(x[1] - P[1]);
    if (math_error()) return fail(at, 1, 2);
    const Real w = P[2] * e;
    dyda[1] = -w;
    dyda[2] = e;
    y[1] = w;
    return success;
}

} // namespace

ANSATZ_MODEL(ExponentEVP, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(ExponentEVP, .title = "Exponential growth at a rate of 1, by the response at a chosen x",
            .formula = "y = y1 exp(x - x1)",
            .parameters = {{"x1", "x of the response y1", Trait::reference},
                           {"y1", "response at x1", Trait::response}},
            .typical = {{2, 3}, -2, 3}, .scales = Scales::y_only, .same_as = "Exp1P1(a = x1 - ln(y1))",
            .notes = "Fails when the exponential overflows. Exp1P1 is the same curve for y1 > 0 alone.")

} // namespace ansatz::exponent_evp

namespace ansatz::exponent2_evp {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (P[2] <= 0 || P[1] == 0) return fail(at);
    y[1] = safe_pow(P[2], x[1] / P[1]);
    return math_error() ? fail(at) : success;
}

/// An error of the power marks y[1] alone.
Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (P[2] <= 0 || P[1] == 0) return fail(at, 1, 2);
    const Real t = x[1] / P[1];
    const Real w = safe_pow(P[2], t);
    if (math_error()) return fail(at);
    y[1] = w;
    dyda[2] = t * w / P[2];
    dyda[1] = -(t * w / P[1]) * of_parameters<log>(P[2]);
    return math_error() ? fail_slots(at, 1) : success;
}

} // namespace

ANSATZ_MODEL(Exponent2EVP, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(Exponent2EVP, .title = "Exponential decay from 1 to 0, by the response at a chosen x",
            .formula = "y = y1^(x/x1)",
            .parameters = {{"x1", "x of the response y1", Trait::reference, not_zero},
                           {"y1", "response at x1", Trait::response, positive}},
            .typical = {{3, 0.3}, 0, 10}, .scales = Scales::x_only, .same_as = "Exp1P2(k = -ln(y1)/x1)",
            .notes = "Fails for x1 = 0, for y1 <= 0 and when the power overflows.")

} // namespace ansatz::exponent2_evp

namespace ansatz::exponent3_evp {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (P[2] >= 1) return fail(at);
    if (P[1] == 0) {
        y[1] = 0;
        return success;
    }
    y[1] = 1 - safe_pow(1 - P[2], x[1] / P[1]);
    return math_error() ? fail(at) : success;
}

/// A reference x of 0 fails, but the value is that of the value path.
Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (P[2] >= 1) return fail(at, 1, 2);
    if (P[1] == 0) {
        y[1] = 0;
        return fail_slots(at, 1, 2);
    }
    const Scalar a = 1 - P[2];
    const Real w = safe_pow(a, x[1] / P[1]);
    if (math_error()) return fail(at, 1, 2);
    y[1] = 1 - w;
    dyda[2] = x[1] * w / P[1] / a;
    dyda[1] = of_parameters<log>(a) * x[1] * w / (P[1] * P[1]);
    return math_error() ? fail_slots(at, 1) : success;
}

} // namespace

ANSATZ_MODEL(Exponent3EVP, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(Exponent3EVP, .title = "Exponential rise from 0 to 1, by the response at a chosen x",
            .formula = "y = 1 - (1 - y1)^(x/x1)",
            .parameters = {{"x1", "x of the response y1", Trait::reference, not_zero},
                           {"y1", "response at x1", Trait::response, below(1)}},
            .typical = {{3, 0.7}, 0, 10}, .scales = Scales::x_only, .same_as = "Exp1P4(k = -ln(1 - y1)/x1)",
            .notes = "Fails for y1 >= 1 and when the power overflows. At x1 = 0 there is a value, 0, and no "
                     "fit.")

} // namespace ansatz::exponent3_evp
