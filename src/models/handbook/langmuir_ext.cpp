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

#include "models/handbook/law.h"

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
} // namespace ansatz::langmuir_ext2

ANSATZ_MODEL(LangmuirEXT1,
             ansatz::HandbookLaw<ansatz::langmuir_ext1::value, ansatz::langmuir_ext1::derivatives>)
ANSATZ_MODEL(LangmuirEXT2,
             ansatz::HandbookLaw<ansatz::langmuir_ext2::value, ansatz::langmuir_ext2::derivatives>)
