// LangmuirEXT1, LangmuirEXT2: the extended Langmuir isotherm, adsorbed amount against concentration x.
//
//   LangmuirEXT1   y = P1 P2 x^(1-P3) / (1 + P2 x^(1-P3))
//     P1 the amount at saturation (unit of y), P2 affinity (unit of x^(P3-1)), P3 heterogeneity: 0 gives the
//     plain Langmuir law, and for P3 > 1 the curve falls with x.
//   LangmuirEXT2   y = 1 / (P1 + P2 x^(P3-1))
//     the same curves, nearer to linear in their parameters: P1 = 1/saturation, P2 = P1/affinity.
//
//   Fails for x <= 0, where the denominator is 0 and where the power overflows, although the first form would
//   have the saturation amount as its limit there.

#include "protocol/handbook_law.h"

namespace ansatz::langmuir_ext1 {
namespace {

Status value(const Point& at) {
    const auto [n, P, xs, y, dyda] = at;
    const double x = xs[1];
    if (x <= 0) return fail(at);
    const double bound = P[2] * safe_pow(x, 1 - P[3]);
    if (math_error() || 1 + bound == 0) return fail(at);
    y[1] = P[1] * (bound / (1 + bound));
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, xs, y, dyda] = at;
    const double x = xs[1];
    if (x <= 0) return fail(at, 1, 2, 3);
    const double W = safe_pow(x, 1 - P[3]);
    const double bound = P[2] * W, free = 1 + bound;
    const double log_x = log(x);
    if (math_error() || free == 0) return fail(at, 1, 2, 3);
    const double share = bound / free;
    y[1] = P[1] * share;
    dyda[1] = share;
    dyda[2] = P[1] * W / free / free;
    dyda[3] = -y[1] * log_x / free;
    return success;
}

} // namespace
} // namespace ansatz::langmuir_ext1

namespace ansatz::langmuir_ext2 {
namespace {

Status value(const Point& at) {
    const auto [n, P, xs, y, dyda] = at;
    const double x = xs[1];
    if (x <= 0) return fail(at);
    const double D = P[1] + P[2] * safe_pow(x, P[3] - 1);
    if (math_error() || D == 0) return fail(at);
    y[1] = 1 / D;
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, xs, y, dyda] = at;
    const double x = xs[1];
    if (x <= 0) return fail(at, 1, 2, 3);
    const double W = safe_pow(x, P[3] - 1);
    const double D = P[1] + P[2] * W;
    const double log_x = log(x);
    if (math_error() || D == 0) return fail(at, 1, 2, 3);
    y[1] = 1 / D;
    dyda[1] = -y[1] / D;
    dyda[2] = -W / D / D;
    dyda[3] = dyda[2] * P[2] * log_x;
    return success;
}

} // namespace

ANSATZ_MODEL(LangmuirEXT1, HandbookLaw<langmuir_ext1::value, langmuir_ext1::derivatives>)

ANSATZ_PAGE(LangmuirEXT1, .title = "", .formula = "y = a b x^(1 - c)/(1 + b x^(1 - c))",
            .parameters = {{"a", "amount at saturation", Trait::constant},
                           {"b", "affinity, (unit of x)^(c - 1)", Trait::constant},
                           {"c", "heterogeneity: 0 for the plain Langmuir law, below 1 for a rising curve",
                            Trait::constant}},
            .notes = "Fails for x <= 0 and where the denominator is 0.")

ANSATZ_MODEL(LangmuirEXT2, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(LangmuirEXT2, .title = "", .formula = "y = 1/(a + b x^(c - 1))",
            .parameters = {{"a", "inverse of the amount at saturation", Trait::constant},
                           {"b", "a divided by the affinity", Trait::constant},
                           {"c", "heterogeneity: 0 for the plain Langmuir law, below 1 for a rising curve",
                            Trait::constant}},
            .notes = "LangmuirEXT1 by other constants. Fails for x <= 0 and where the denominator is 0.")

} // namespace ansatz::langmuir_ext2
