// Rational, and Rational0 to Rational4: which one of the four constants is fixed at 1 decides which hyperbolas
// a form can reach. The value of Rational also fails for nParams < 1, although four parameters are read
// whatever their number. No library function is called, so a pending error passes through unseen.

#include "protocol/handbook_law.h"

namespace ansatz::rational {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (n < 1) return fail(at);
    const Real d = P[4] * x[1] + P[3];
    if (d == 0) return fail(at);
    y[1] = (P[2] * x[1] + P[1]) / d;
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Real d = P[4] * x[1] + P[3];
    if (d == 0) return fail(at, 1, 2, 3, 4);
    dyda[1] = 1 / d;
    dyda[2] = x[1] / d;
    y[1] = (P[2] * x[1] + P[1]) / d;
    dyda[3] = -y[1] / d;
    dyda[4] = dyda[3] * x[1];
    return success;
}

} // namespace

ANSATZ_MODEL(Rational, BothPaths<value, derivatives>)

ANSATZ_PAGE(Rational, .title = "Quotient of two straight lines, one constant too many",
            .formula = "y = (a + b x)/(c + d x)",
            .parameters = {{"a", "constant of the numerator", Trait::coefficient, Dimension{.y = 1}},
                           {"b", "slope of the numerator", Trait::coefficient, Dimension{.x = -1, .y = 1}},
                           {"c", "constant of the denominator", Trait::coefficient},
                           {"d", "slope of the denominator", Trait::coefficient, Dimension{.x = -1}}},
            .typical = {{1, 4, 1, 0.5}, 0, 15}, .same_as = "Rational0(a = d/c, b = a/c, c = b/c)",
            .notes = "Only the ratios of the parameters matter: hold one of them fixed in a fit, c=1 for "
                     "instance. Fails only where the denominator is exactly 0.")

} // namespace ansatz::rational

namespace ansatz::rational_3p {
namespace {

constexpr int one = 0; ///< stands for a constant that is fixed at 1

/// (a + b x) / (c + d x), each constant given by the slot it comes from.
template <int a, int b, int c, int d> struct Quotient {
    static Scalar constant(const Scalar* P, int slot) { return slot == one ? 1 : P[slot]; }

    static Status value(const Point& at) {
        const auto [n, P, x, y, dyda] = at;
        const Real D = constant(P, c) + constant(P, d) * x[1];
        if (D == 0) return fail(at);
        y[1] = (constant(P, a) + constant(P, b) * x[1]) / D;
        return success;
    }

    static Status derivatives(const Point& at) {
        const auto [n, P, x, y, dyda] = at;
        const Real D = constant(P, c) + constant(P, d) * x[1];
        if (D == 0) return fail(at, 1, 2, 3);
        y[1] = (constant(P, a) + constant(P, b) * x[1]) / D;
        if constexpr (a != one) dyda[a] = 1 / D;
        if constexpr (b != one) dyda[b] = x[1] / D;
        if constexpr (c != one) dyda[c] = -y[1] / D;
        if constexpr (d != one) dyda[d] = -y[1] * x[1] / D;
        return success;
    }
};

template <int a, int b, int c, int d> using Model =
    HandbookLaw<Quotient<a, b, c, d>::value, Quotient<a, b, c, d>::derivatives>;

} // namespace

ANSATZ_MODEL(Rational0, Model<2, 3, one, 1>)

ANSATZ_PAGE(Rational0, .title = "Hyperbola, as a quotient of straight lines: by its response at x = 0",
            .formula = "y = (b + c x)/(1 + a x)",
            .parameters = {{"a", "1/(unit of x): pole at x = -1/a", Trait::rate},
                           {"b", "response at x = 0", Trait::level},
                           {"c", "the limit for large x is c/a", Trait::coefficient,
                            Dimension{.x = -1, .y = 1}}},
            .typical = {{0.5, 1, 4}, 0, 15},
            .notes = "Fails where the denominator is 0. A pole at x = 0 is out of its reach: Rational1 and "
                     "Rational2 have it.")

ANSATZ_MODEL(Rational1, Model<one, 3, 1, 2>)

ANSATZ_PAGE(Rational1,
            .title = "Hyperbola, as a quotient of straight lines: with 1 as the constant of the numerator",
            .formula = "y = (1 + c x)/(a + b x)",
            .parameters = {{"a", "inverse of the response at x = 0", Trait::inverse_level},
                           {"b", "pole at x = -a/b", Trait::coefficient, Dimension{.x = -1, .y = -1}},
                           {"c", "1/(unit of x): the limit for large x is c/b", Trait::rate}},
            .typical = {{1, 0.5, 4}, 0, 15}, .same_as = "Rational0(a = b/a, b = 1/a, c = c/a)",
            .notes = "Fails where the denominator is 0. Not for curves that are 0 at x = 0.")

ANSATZ_MODEL(Rational2, Model<2, 3, 1, one>)

ANSATZ_PAGE(Rational2, .title = "Hyperbola, as a quotient of straight lines: by its pole and its limit",
            .formula = "y = (b + c x)/(a + x)",
            .parameters = {{"a", "pole at x = -a", Trait::constant, Dimension{.x = 1}},
                           {"b", "y is b/a at x = 0", Trait::coefficient, Dimension{.x = 1, .y = 1}},
                           {"c", "limit for large x", Trait::level}},
            .typical = {{2, 2, 8}, 0, 15}, .same_as = "Rational0(a = 1/a, b = b/a, c = c/a)",
            .notes = "Fails at x = -a. Not for a straight line, which has no pole.")

ANSATZ_MODEL(Rational3, Model<2, one, 1, 3>)

ANSATZ_PAGE(Rational3, .title = "Hyperbola, as a quotient of straight lines: by its zero",
            .formula = "y = (b + x)/(a + c x)",
            .parameters = {{"a", "y is b/a at x = 0", Trait::coefficient, Dimension{.x = 1, .y = -1}},
                           {"b", "the curve crosses 0 at x = -b", Trait::constant, Dimension{.x = 1}},
                           {"c", "inverse of the limit for large x", Trait::inverse_level}},
            .typical = {{0.25, 0.25, 0.125}, 0, 15}, .same_as = "Rational0(a = c/a, b = b/a, c = 1/a)",
            .notes = "Fails where the denominator is 0. Not for curves without a zero.")

} // namespace ansatz::rational_3p

namespace ansatz::rational4 {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Real D = x[1] + P[1];
    if (D == 0) return fail(at);
    y[1] = P[3] + P[2] / D;
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Real D = x[1] + P[1];
    if (D == 0) return fail(at, 1, 2, 3);
    const Real quotient = P[2] / D;
    y[1] = P[3] + quotient;
    dyda[1] = -quotient / D;
    dyda[2] = 1 / D;
    dyda[3] = 1;
    return success;
}

} // namespace

ANSATZ_MODEL(Rational4, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(Rational4, .title = "Hyperbola, by its pole, the strength of the pole and its limit",
            .formula = "y = c + b/(x + a)",
            .parameters = {{"a", "pole at x = -a", Trait::constant, Dimension{.x = 1}},
                           {"b", "strength of the pole, unit of y times unit of x", Trait::coefficient,
                            Dimension{.x = 1, .y = 1}},
                           {"c", "limit for large x", Trait::level}},
            .typical = {{2, -14, 8}, 0, 15}, .same_as = "Rational0(a = 1/a, b = c + b/a, c = c/a)",
            .notes = "Fails at x = -a. Not for a straight line, which has no pole.")

} // namespace ansatz::rational4
