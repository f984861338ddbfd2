// BoxLucas1, with a modified and an expected-value form, and BoxLucas2: the product of a first-order reaction
// over time, and the intermediate of two in a row.

#include "protocol/handbook_law.h"

namespace ansatz::box_lucas1 {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    y[1] = P[1] * (1 - safe_exp(-P[2] * x[1]));
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Real e = safe_exp(-P[2] * x[1]);
    if (math_error()) return fail(at, 1, 2);
    const Real rise = 1 - e;
    dyda[1] = rise;
    dyda[2] = x[1] * P[1] * e;
    y[1] = P[1] * rise;
    return success;
}

} // namespace

ANSATZ_MODEL(BoxLucas1, BothPaths<value, derivatives>)

ANSATZ_PAGE(BoxLucas1, .title = "Rise from 0 to a plateau, the product of a first-order reaction",
            .formula = "y = a (1 - exp(-b x))",
            .parameters = {{"a", "plateau", Trait::level}, {"b", "rate, 1/(unit of x)", Trait::rate}},
            .typical = {{5, 0.5}, 0, 10}, .known_as = "first-order kinetics, exponential rise to maximum",
            .notes = "Fails when the exponential overflows. A negative b is accepted: the curve then leaves 0 "
                     "ever faster.")

} // namespace ansatz::box_lucas1

namespace ansatz::box_lucas2 {
namespace {

/// A formation rate of 0 ends the call once both exponentials have passed: no derivatives, even when both were
/// requested.
Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Scalar d = P[1] - P[2];
    if (d == 0) return fail(at);
    const Real e1 = safe_exp(-P[1] * x[1]);
    const Real e2 = safe_exp(-P[2] * x[1]);
    if (math_error()) return fail(at);
    if (P[1] == 0) {
        y[1] = 0;
        return ends_call;
    }
    y[1] = P[1] * (e2 - e1) / d;
    return success;
}

/// Equal rates mark y[1] alone.
Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Scalar d = P[1] - P[2];
    if (d == 0) return fail(at);
    const Real e1 = safe_exp(-P[1] * x[1]);
    const Real e2 = safe_exp(-P[2] * x[1]);
    if (math_error()) return fail(at, 1, 2);
    const Real D = e2 - e1;
    const Real yield = D * P[1] / d;
    dyda[1] = (D - yield + e1 * P[1] * x[1]) / d;
    dyda[2] = (yield - e2 * P[1] * x[1]) / d;
    y[1] = P[1] == 0 ? 0 : yield;
    return success;
}

} // namespace

ANSATZ_MODEL(BoxLucas2, BothPaths<value, derivatives>)

ANSATZ_PAGE(BoxLucas2, .title = "Intermediate of two first-order reactions in a row, formed and used up",
            .formula = "y = a (exp(-b x) - exp(-a x))/(a - b)",
            .parameters = {{"a", "rate of formation, 1/(unit of x)", Trait::rate},
                           {"b", "rate of decay, 1/(unit of x)", Trait::rate}},
            .typical = {{1.5, 0.3}, 0, 12}, .scales = Scales::x_only, .known_as = "Bateman function",
            .source = "Box and Lucas, 1959",
            .notes = "y is the part of the starting amount that is there as the intermediate. Fails for a = b, "
                     "whose limit it does not take, and loses digits close to it. Start on the right side of "
                     "it: the larger rate is a where formation is the faster step.")

} // namespace ansatz::box_lucas2

namespace ansatz::box_lucas1_mod {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (P[2] <= 0) return fail(at);
    y[1] = P[1] * (1 - safe_pow(P[2], x[1]));
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (P[2] <= 0) return fail(at, 1, 2);
    const Real W = safe_pow(P[2], x[1]);
    if (math_error()) return fail(at, 1, 2);
    dyda[1] = 1 - W;
    y[1] = P[1] * (1 - W);
    dyda[2] = -(P[1] * x[1] / P[2]) * W;
    return success;
}

} // namespace

ANSATZ_MODEL(BoxLucas1Mod, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(BoxLucas1Mod, .title = "Rise from 0 to a plateau, by a base instead of a rate",
            .formula = "y = a (1 - b^x)",
            .parameters = {{"a", "plateau", Trait::level},
                           {"b", "base: what is left of the gap to the plateau after one unit of x",
                            Trait::base, positive}},
            .typical = {{5, 0.6}, 0, 10}, .scales = Scales::y_only, .same_as = "BoxLucas1(a = a, b = -ln(b))",
            .notes = "Fails for b <= 0. b > 1 is computed: a curve without a plateau.")

} // namespace ansatz::box_lucas1_mod

namespace ansatz::box_lucas1_evp {
namespace {

bool outside(const Scalar* P) {
    return P[3] <= 0 || P[1] == 0 || P[3] == 1;
}

// Where the power of the reference position overflows, status 0 is returned and the error indicator stays set:
// a host that goes on must clear it.

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (outside(P)) return fail(at);
    const Real W = safe_pow(P[3], x[1]);
    if (math_error()) return fail(at);
    const Scalar V = of_parameters<safe_pow>(P[3], P[1]);
    y[1] = range_error() ? 0 : P[2] * (1 - W) / (1 - V);
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (outside(P)) return fail(at, 1, 2, 3);
    const Real W = safe_pow(P[3], x[1]);
    if (math_error()) return fail(at, 1, 2, 3);
    const Scalar V = of_parameters<safe_pow>(P[3], P[1]);
    if (range_error()) {
        y[1] = dyda[1] = dyda[2] = dyda[3] = 0;
        return success;
    }
    dyda[2] = (1 - W) / (1 - V);
    y[1] = P[2] * dyda[2];
    dyda[1] = y[1] * V * of_parameters<log>(P[3]) / (1 - V);
    dyda[3] = (V * y[1] * P[1] - P[2] * x[1] * W) / P[3] / (1 - V);
    return success;
}

} // namespace

ANSATZ_MODEL(BoxLucas1EVP, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(BoxLucas1EVP, .title = "Rise from 0 to a plateau, by the response at a chosen x and a base",
            .formula = "y = y1 (1 - b^x)/(1 - b^x1)",
            .parameters = {{"x1", "x of the response y1", Trait::reference, not_zero},
                           {"y1", "response at x1", Trait::response},
                           {"b", "base: what is left of the gap to the plateau after one unit of x",
                            Trait::base, positive}},
            .typical = {{3, 4, 0.6}, 0, 10}, .scales = Scales::y_only,
            .same_as = "BoxLucas1(a = y1/(1 - b^x1), b = -ln(b))",
            .notes =
                "Fails for b <= 0, b = 1 and x1 = 0: a fit cannot cross b = 1, so start on the right side. "
                "Where b^x1 overflows, y is 0.")

} // namespace ansatz::box_lucas1_evp
