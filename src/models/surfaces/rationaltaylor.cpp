// RationalTaylor: a ratio of polynomials of second order, any number of blocks added up.
//
//   z = sum over the blocks of  N/D,
//   N = a + b x1 + c x2 + d x2^2 + e x1 x2, D = 1 + f x1 + g x1^2 + h x2 + j x2^2 + k x1 x2
//
//   Ten parameters per block, a .. k in this order; no common offset. The number of blocks is nParams / 10.
//   y[i+1] is block i alone. x1^2 stands below only.
//
//   Fails where a denominator is 0, with MISSING_VALUE in x[2]; y[1] and the components keep what was summed.
//   The query says that there are no derivatives, but FF_DERIV computes them all the same; at x1 == 0 they fail
//   after the first seven of the block were written. The y of a derivative request pairs e with x2^2 instead of
//   x1 x2, so it is the value only where e = 0 or x1 = x2: take y from a call with FF_VALUE alone.

#include "protocol/forms.h"

namespace ansatz::rationaltaylor {
namespace {

double numerator(const double* p, const double* x) {
    return p[1] + p[2] * x[1] + p[3] * x[2] + p[4] * safe_pow(x[2], 2.0) + p[5] * x[1] * x[2];
}

double denominator(const double* p, const double* x) {
    return 1 + p[6] * x[1] + p[7] * (x[1] * x[1]) + p[8] * x[2] + p[9] * (x[2] * x[2]) + p[10] * x[1] * x[2];
}

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    y[1] = 0;
    const int blocks = n / 10;
    for (int k = 1; k <= blocks; ++k) {
        const double* p = P + 10 * (k - 1);
        const double D = denominator(p, x);
        if (D == 0) return fail_surface(at);
        const double block = numerator(p, x) / D;
        y[k + 1] = block;
        y[1] += block;
    }
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const double x1 = x[1], x2 = x[2];
    y[1] = 0;
    const int blocks = n / 10;
    for (int k = 1; k <= blocks; ++k) {
        const double* p = P + 10 * (k - 1);
        double* d = dyda + 10 * (k - 1);
        const double D = denominator(p, x);
        if (D == 0) return fail_surface(at);
        const double r = 1 / D;
        const double g = -(safe_pow(r, 2.0) * x1 * numerator(p, x));
        d[1] = r;
        d[2] = x1 * r;
        d[3] = x2 * r;
        d[4] = x2 * x2 * r;
        d[5] = x1 * x2 * r;
        d[6] = g;
        d[7] = g * x1;
        if (x1 == 0) return fail_surface(at);
        const double h = g * x2 / x1;
        d[8] = h;
        d[9] = x2 * h;
        d[10] = g * x2;
        const double block = p[1] * d[1] + p[2] * d[2] + p[3] * d[3] + p[4] * d[4] + p[5] * d[4];
        y[k + 1] = block;
        y[1] += block;
    }
    return success;
}

} // namespace

ANSATZ_MODEL(RationalTaylor, BothPaths<value, derivatives, Answers{.query = 0}>)

ANSATZ_PAGE(
    RationalTaylor, .title = "",
    .formula = "y = sum (a + b x1 + c x2 + d x2^2 + f x1 x2)/(1 + g x1 + h x1^2 + k x2 + m x2^2 + n x1 x2)",
    .block = {{"a", "constant above", Trait::constant},
              {"b", "of x1 above", Trait::constant},
              {"c", "of x2 above", Trait::constant},
              {"d", "of x2^2 above", Trait::constant},
              {"f", "of x1 x2 above", Trait::constant},
              {"g", "of x1 below", Trait::constant},
              {"h", "of x1^2 below", Trait::constant},
              {"k", "of x2 below", Trait::constant},
              {"m", "of x2^2 below", Trait::constant},
              {"n", "of x1 x2 below", Trait::constant}},
    .block_name = "term",
    .notes = "Fails where a denominator is 0; near there it has a pole. Start from g, h, k, m, n = 0.")

} // namespace ansatz::rationaltaylor
