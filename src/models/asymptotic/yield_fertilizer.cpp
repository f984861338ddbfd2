// YldFert, YldFert1: the yield of a crop over the amount of fertilizer, an exponential approach to a level.
//
//   YldFert    y = P1 + P2 P3^x           P1 yield approached, P2 amplitude, P3 base (factor per unit of x)
//   YldFert1   y = P1 + P2 e^(-P3 x)      P1 yield approached, P2 amplitude, P3 rate (per unit of x)
//
//   The amplitude is negative where fertilizer helps. Both fail on a range error, YldFert also for P3 <= 0 and
//   P3 > 1; a base of exactly 1, a horizontal line, is accepted. YldFert1 tests its rate on the derivative path
//   alone: the value is computed for any rate, the derivatives fail for P3 <= 0. There dyda[1] stays 1.

#include "protocol/forms.h"

namespace ansatz {
namespace {
namespace yld_fert {

bool base_fails(double base) {
    return base > 1 || base <= 0;
}

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (base_fails(P[3])) return fail(at);
    y[1] = P[1] + P[2] * safe_pow(P[3], x[1]);
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (base_fails(P[3])) return fail(at, 1, 2, 3);
    const double w = safe_pow(P[3], x[1]);
    if (math_error()) return fail(at, 1, 2, 3);
    dyda[1] = 1;
    dyda[2] = w;
    dyda[3] = P[2] * x[1] * w / P[3];
    y[1] = P[1] + P[2] * w;
    return success;
}

} // namespace yld_fert

namespace yld_fert1 {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    y[1] = P[1] + P[2] * safe_exp(-P[3] * x[1]);
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    dyda[1] = 1;
    if (P[3] <= 0) return fail(at, 2, 3);
    const double e = safe_exp(-P[3] * x[1]);
    if (math_error()) return fail(at, 2, 3);
    dyda[2] = e;
    dyda[3] = -P[2] * e * x[1];
    y[1] = P[1] + P[2] * e;
    return success;
}

} // namespace yld_fert1
} // namespace

ANSATZ_MODEL(YldFert, BothPaths<yld_fert::value, yld_fert::derivatives>)

ANSATZ_PAGE(YldFert, .title = "", .formula = "y = a + b r^x",
            .parameters = {{"a", "yield approached at large x", Trait::constant},
                           {"b", "amplitude: y - a at x = 0, negative for a rising yield", Trait::amplitude},
                           {"r", "base: the part left after one unit of x, above 0 and up to 1", Trait::base}},
            .notes = "Fails for r <= 0 and r > 1. At r = 1 a and b cannot be told apart: do not start there.")

ANSATZ_MODEL(YldFert1, BothPaths<yld_fert1::value, yld_fert1::derivatives>)

ANSATZ_PAGE(YldFert1, .title = "", .formula = "y = a + b exp(-k x)",
            .parameters = {{"a", "yield approached at large x", Trait::constant},
                           {"b", "amplitude: y - a at x = 0, negative for a rising yield", Trait::amplitude},
                           {"k", "rate, 1/(unit of x), above 0", Trait::rate}},
            .notes = "There is a value for any k; the derivatives, and so a fit, fail for k <= 0.")

} // namespace ansatz
