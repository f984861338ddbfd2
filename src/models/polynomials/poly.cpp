#include "polynomial.h"

namespace ansatz::poly4 {

ANSATZ_MODEL(Poly4, Polynomial<4>)

ANSATZ_PAGE(Poly4, .title = "Polynomial of the fourth order",
            .formula = "y = a0 + a1 x + a2 x^2 + a3 x^3 + a4 x^4",
            .parameters = {{"a0", "y at x = 0", Trait::level},
                           {"a1", "slope at x = 0", Trait::slope},
                           {"a2", "coefficient of x^2", Trait::coefficient, Dimension{.x = -2, .y = 1}},
                           {"a3", "coefficient of x^3", Trait::coefficient, Dimension{.x = -3, .y = 1}},
                           {"a4", "coefficient of x^4", Trait::coefficient, Dimension{.x = -4, .y = 1}}},
            .typical = {{1, 0.5, -2, -0.1, 0.4}, -2.5, 2.5}, .known_as = "quartic polynomial")

} // namespace ansatz::poly4

namespace ansatz::poly5 {

ANSATZ_MODEL(Poly5, Polynomial<5>)

ANSATZ_PAGE(Poly5, .title = "Polynomial of the fifth order",
            .formula = "y = a0 + a1 x + a2 x^2 + a3 x^3 + a4 x^4 + a5 x^5",
            .parameters = {{"a0", "y at x = 0", Trait::level},
                           {"a1", "slope at x = 0", Trait::slope},
                           {"a2", "coefficient of x^2", Trait::coefficient, Dimension{.x = -2, .y = 1}},
                           {"a3", "coefficient of x^3", Trait::coefficient, Dimension{.x = -3, .y = 1}},
                           {"a4", "coefficient of x^4", Trait::coefficient, Dimension{.x = -4, .y = 1}},
                           {"a5", "coefficient of x^5", Trait::coefficient, Dimension{.x = -5, .y = 1}}},
            .typical = {{1, 1.5, -0.2, -1.5, 0.1, 0.25}, -2.5, 2.5}, .known_as = "quintic polynomial",
            .notes = "With x far from 0 the coefficients become hard to tell apart: shift x, or fit PolyCtr5 "
                     "with its centre held in the middle of the data.")

} // namespace ansatz::poly5

// PolyN: the value fails for n < 1. It leaves out coefficients that are exactly 0, so that a power of x that
// has overflowed does not spoil the sum through 0 times infinity. The derivatives neither check n (below 2 they
// are those of the constant P1) nor leave anything out. No library function is called, so a pending error
// passes through unseen.
namespace ansatz::poly_n {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Real x1 = x[1];
    if (n < 1) return fail(at);
    Real sum = 0, power = 1;
    for (int k = 1; k <= n; ++k) {
        if (P[k] != 0) sum += P[k] * power;
        power *= x1;
    }
    y[1] = sum;
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Real x1 = x[1];
    Real sum = P[1], power = 1;
    dyda[1] = 1;
    for (int k = 2; k <= n; ++k) {
        power *= x1;
        dyda[k] = power;
        sum += power * P[k];
    }
    y[1] = sum;
    return success;
}

} // namespace

ANSATZ_MODEL(PolyN, BothPaths<value, derivatives>)

ANSATZ_PAGE(PolyN, .title = "Polynomial of any order", .formula = "y = sum a x^i",
            .block = {{"a", "coefficient of x^i", Trait::coefficient, Dimension{.y = 1}}}, .block_name = "term",
            .first_block = 0, .components = false, .layout = {.block = 1, .least = 1},
            .typical = {{1, -2, 0.3, 0.5}, -3, 3}, .scales = Scales::y_only,
            .notes = "As many terms as there are parameters, from i = 0 on. With high orders and x far from 0 "
                     "the coefficients become hard to tell apart: shift x, or use fewer.")

} // namespace ansatz::poly_n
