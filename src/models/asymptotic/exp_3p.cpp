// Exponentials with three parameters: of a shifted reciprocal, Exp3P1 and Exp3P1Md, and of a parabola, Exp3P2.

#include "protocol/handbook_law.h"

namespace ansatz::exp_3p1 {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Real shifted = x[1] + P[3];
    if (shifted == 0) return fail(at);
    y[1] = P[1] * safe_exp(P[2] / shifted);
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Real shifted = x[1] + P[3];
    if (shifted == 0) return fail(at, 1, 2, 3);
    const Real exponent = P[2] / shifted;
    const Real E = safe_exp(exponent);
    y[1] = P[1] * E;
    dyda[1] = E;
    dyda[2] = y[1] / shifted;
    dyda[3] = -dyda[2] * exponent;
    return math_error() ? fail(at, 1, 2, 3) : success;
}

} // namespace

ANSATZ_MODEL(Exp3P1, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(
    Exp3P1, .title = "Exponential of a shifted reciprocal, as viscosities follow it with the temperature",
    .formula = "y = a exp(b/(x + c))",
    .parameters = {{"a", "limit for large x", Trait::level},
                   {"b", "strength of the exponent, unit of x", Trait::coefficient, Dimension{.x = 1}},
                   {"c", "shift, unit of x: the pole is at x = -c", Trait::constant, Dimension{.x = 1}}},
    .typical = {{1, 4, 2}, 0, 20}, .known_as = "Vogel-Fulcher-Tammann equation", .source = "Vogel, 1921",
    .notes = "Fails at x = -c and where the exponential overflows. The three parameters are strongly "
             "correlated: a fit from afar may need hundreds of iterations.")

} // namespace ansatz::exp_3p1

namespace ansatz::exp_3p1_md {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Real shifted = x[1] + P[3];
    if (shifted == 0) return fail(at);
    y[1] = safe_exp(P[1] + P[2] / shifted);
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Real shifted = x[1] + P[3];
    if (shifted == 0) return fail(at, 1, 2, 3);
    const Real reciprocal = P[2] / shifted;
    y[1] = safe_exp(P[1] + reciprocal);
    dyda[1] = y[1];
    dyda[2] = y[1] / shifted;
    dyda[3] = -dyda[2] * reciprocal;
    return math_error() ? fail(at, 1, 2, 3) : success;
}

} // namespace

ANSATZ_MODEL(Exp3P1Md, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(Exp3P1Md,
            .title = "Exponential of a shifted reciprocal, as vapour pressures follow it with the temperature",
            .formula = "y = exp(a + b/(x + c))",
            .parameters = {{"a", "logarithm of the limit for large x", Trait::log_level},
                           {"b", "strength of the exponent, unit of x; negative for a rise", Trait::coefficient,
                            Dimension{.x = 1}},
                           {"c", "shift, unit of x: the pole is at x = -c", Trait::constant,
                            Dimension{.x = 1}}},
            .typical = {{2, -8, 3}, 0, 20}, .scales = Scales::x_only,
            .same_as = "Exp3P1(a = exp(a), b = b, c = c)", .known_as = "Antoine equation",
            .source = "Antoine, 1888",
            .notes = "Positive responses only. Fails at x = -c and where the exponential overflows. The three "
                     "parameters are strongly correlated: a fit from afar may need hundreds of iterations.")

} // namespace ansatz::exp_3p1_md

namespace ansatz::exp_3p2 {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    y[1] = safe_exp(P[1] + P[2] * x[1] + P[3] * (x[1] * x[1]));
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    y[1] = safe_exp(P[1] + P[2] * x[1] + P[3] * (x[1] * x[1]));
    dyda[1] = y[1];
    dyda[2] = y[1] * x[1];
    dyda[3] = dyda[2] * x[1];
    return math_error() ? fail(at, 1, 2, 3) : success;
}

} // namespace

ANSATZ_MODEL(Exp3P2, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(
    Exp3P2, .title = "Exponential of a parabola, a bell where it opens downwards",
    .formula = "y = exp(a + b x + c x^2)",
    .parameters = {{"a", "logarithm of the response at x = 0", Trait::log_level},
                   {"b", "of x, 1/(unit of x)", Trait::coefficient, Dimension{.x = -1}},
                   {"c", "of x^2, 1/(unit of x)^2; negative for a bell with its maximum at x = -b/(2 c)",
                    Trait::coefficient, Dimension{.x = -2}}},
    .typical = {{-3, 1.8, -0.2}, 0, 10}, .scales = Scales::x_only,
    .same_as = "Gauss(y0 = 0, xc = -b/(2 c), w = sqrt(-2/c), A = sqrt(-pi/c) exp(a - b^2/(4 c)))",
    .notes = "Positive responses only. Fails where the exponential overflows. It is a Gaussian for c < 0 "
             "alone; for c > 0 it has a minimum in place of the maximum.")

} // namespace ansatz::exp_3p2
