// PolyN: a polynomial with as many coefficients as the host supplies.
//
//   y = P1 + P2 x + P3 x^2 + ... + Pn x^(n-1),  n = nParams
//
//   The value fails for n < 1. It leaves out coefficients that are exactly 0, so that a power of x that has
//   overflowed does not spoil the sum through 0 times infinity. The derivatives neither check n (below 2 they
//   are those of the constant P1) nor leave anything out. No library function is called, so a pending error
//   passes through unseen.

#include "protocol/forms.h"

namespace ansatz::poly {
namespace {

Status value(const Point& at) {
    const auto [n, P, xs, y, dyda] = at;
    const double x = xs[1];
    if (n < 1) return fail(at);
    double sum = 0, power = 1;
    for (int k = 1; k <= n; ++k) {
        if (P[k] != 0) sum += P[k] * power;
        power *= x;
    }
    y[1] = sum;
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, xs, y, dyda] = at;
    const double x = xs[1];
    double sum = P[1], power = 1;
    dyda[1] = 1;
    for (int k = 2; k <= n; ++k) {
        power *= x;
        dyda[k] = power;
        sum += power * P[k];
    }
    y[1] = sum;
    return success;
}

} // namespace

ANSATZ_MODEL(PolyN, BothPaths<value, derivatives>)

ANSATZ_PAGE(PolyN, .title = "", .formula = "y = sum a x^i",
            .block = {{"a", "coefficient of x^i", Trait::constant}}, .block_name = "term", .first_block = 0,
            .components = false, .layout = {.block = 1, .least = 1},
            .notes = "As many terms as there are parameters, from i = 0 on. With high orders and x far from 0 "
                     "the coefficients become hard to tell apart: shift x, or use fewer.")

} // namespace ansatz::poly
