// Rational0 to Rational4: the quotient of two straight lines with three free constants, in five forms.
//
//   Rational0   y = (P2 + P3 x) / (1 + P1 x)
//   Rational1   y = (1 + P3 x) / (P1 + P2 x)
//   Rational2   y = (P2 + P3 x) / (P1 + x)
//   Rational3   y = (P2 + x) / (P1 + P3 x)
//   Rational4   y = P3 + P2 / (x + P1)
//
//   All are hyperbolas. The forms differ in which one of the four constants is fixed at 1, and so in which
//   curves they can reach: "Rational0" needs a finite response at x = 0, "Rational1" one other than 0;
//   "Rational2" and "Rational4" a pole (at x = -P1), "Rational3" a zero (at x = -P2).
//
//   Fails where the denominator is 0. No library function is called, so a pending error passes through unseen.

#include "protocol/handbook_law.h"

namespace ansatz::rational_3p {
namespace {

constexpr int one = 0; ///< stands for a constant that is fixed at 1

/// (a + b x) / (c + d x), each constant given by the slot it comes from.
template <int a, int b, int c, int d> struct Quotient {
    static double constant(const double* P, int slot) { return slot == one ? 1 : P[slot]; }

    static Status value(const Point& at) {
        const auto [n, P, xs, y, dyda] = at;
        const double x = xs[1];
        const double D = constant(P, c) + constant(P, d) * x;
        if (D == 0) return fail(at);
        y[1] = (constant(P, a) + constant(P, b) * x) / D;
        return success;
    }

    static Status derivatives(const Point& at) {
        const auto [n, P, xs, y, dyda] = at;
        const double x = xs[1];
        const double D = constant(P, c) + constant(P, d) * x;
        if (D == 0) return fail(at, 1, 2, 3);
        y[1] = (constant(P, a) + constant(P, b) * x) / D;
        if constexpr (a != one) dyda[a] = 1 / D;
        if constexpr (b != one) dyda[b] = x / D;
        if constexpr (c != one) dyda[c] = -y[1] / D;
        if constexpr (d != one) dyda[d] = -y[1] * x / D;
        return success;
    }
};

template <int a, int b, int c, int d> using Model =
    HandbookLaw<Quotient<a, b, c, d>::value, Quotient<a, b, c, d>::derivatives>;

} // namespace
} // namespace ansatz::rational_3p

namespace ansatz::rational4 {
namespace {

Status value(const Point& at) {
    const auto [n, P, xs, y, dyda] = at;
    const double D = xs[1] + P[1];
    if (D == 0) return fail(at);
    y[1] = P[3] + P[2] / D;
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, xs, y, dyda] = at;
    const double D = xs[1] + P[1];
    if (D == 0) return fail(at, 1, 2, 3);
    const double quotient = P[2] / D;
    y[1] = P[3] + quotient;
    dyda[1] = -quotient / D;
    dyda[2] = 1 / D;
    dyda[3] = 1;
    return success;
}

} // namespace

ANSATZ_MODEL(Rational0, rational_3p::Model<2, 3, rational_3p::one, 1>)

ANSATZ_PAGE(Rational0, .title = "", .formula = "y = (b + c x)/(1 + a x)",
            .parameters = {{"a", "1/(unit of x): pole at x = -1/a", Trait::constant},
                           {"b", "response at x = 0", Trait::level},
                           {"c", "the limit for large x is c/a", Trait::constant}},
            .notes = "Fails where the denominator is 0.")

ANSATZ_MODEL(Rational1, rational_3p::Model<rational_3p::one, 3, 1, 2>)

ANSATZ_PAGE(Rational1, .title = "", .formula = "y = (1 + c x)/(a + b x)",
            .parameters = {{"a", "inverse of the response at x = 0", Trait::constant},
                           {"b", "pole at x = -a/b", Trait::constant},
                           {"c", "1/(unit of x): the limit for large x is c/b", Trait::constant}},
            .notes = "Fails where the denominator is 0.")

ANSATZ_MODEL(Rational2, rational_3p::Model<2, 3, 1, rational_3p::one>)

ANSATZ_PAGE(Rational2, .title = "", .formula = "y = (b + c x)/(a + x)",
            .parameters = {{"a", "pole at x = -a", Trait::constant},
                           {"b", "y is b/a at x = 0", Trait::constant},
                           {"c", "limit for large x", Trait::level}},
            .notes = "Fails at x = -a.")

ANSATZ_MODEL(Rational3, rational_3p::Model<2, rational_3p::one, 1, 3>)

ANSATZ_PAGE(Rational3, .title = "", .formula = "y = (b + x)/(a + c x)",
            .parameters = {{"a", "y is b/a at x = 0", Trait::constant},
                           {"b", "the curve crosses 0 at x = -b", Trait::constant},
                           {"c", "inverse of the limit for large x", Trait::constant}},
            .notes = "Fails where the denominator is 0.")

ANSATZ_MODEL(Rational4, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(Rational4, .title = "", .formula = "y = c + b/(x + a)",
            .parameters = {{"a", "pole at x = -a", Trait::constant},
                           {"b", "strength of the pole, unit of y times unit of x", Trait::constant},
                           {"c", "limit for large x", Trait::level}},
            .notes = "Fails at x = -a.")

} // namespace ansatz::rational4
