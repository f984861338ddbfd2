// YldFert and YldFert1: the yield of a crop over the amount of fertilizer, by a base and by a rate.

#include "protocol/forms.h"

namespace ansatz::yld_fert {
namespace {

bool base_fails(Scalar base) {
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
    const Real w = safe_pow(P[3], x[1]);
    if (math_error()) return fail(at, 1, 2, 3);
    dyda[1] = 1;
    dyda[2] = w;
    dyda[3] = P[2] * x[1] * w / P[3];
    y[1] = P[1] + P[2] * w;
    return success;
}

} // namespace

ANSATZ_MODEL(YldFert, BothPaths<value, derivatives>)

ANSATZ_PAGE(YldFert, .title = "Yield over fertilizer, an exponential approach to a level by a base",
            .formula = "y = a + b r^x",
            .parameters = {{"a", "yield approached at large x", Trait::level},
                           {"b", "amplitude: y - a at x = 0, negative for a rising yield", Trait::amplitude},
                           {"r", "base: the part left after one unit of x", Trait::base,
                            Limits{.lower = 0, .upper = 1, .lower_open = true}}},
            .typical = {{5, -4, 0.6}, 0, 10}, .scales = Scales::y_only,
            .same_as = "ExpDec1(y0 = a, A1 = b, t1 = -1/ln(r))",
            .known_as = "Mitscherlich law, asymptotic regression", .source = "Mitscherlich, 1909",
            .notes = "Fails for r <= 0 and r > 1. At r = 1 a and b cannot be told apart: do not start there.")

} // namespace ansatz::yld_fert

namespace ansatz::yld_fert1 {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    y[1] = P[1] + P[2] * safe_exp(-P[3] * x[1]);
    return math_error() ? fail(at) : success;
}

/// Alone in testing the rate. A failure keeps the 1 in dyda[1].
Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    dyda[1] = 1;
    if (P[3] <= 0) return fail(at, 2, 3);
    const Real e = safe_exp(-P[3] * x[1]);
    if (math_error()) return fail(at, 2, 3);
    dyda[2] = e;
    dyda[3] = -P[2] * e * x[1];
    y[1] = P[1] + P[2] * e;
    return success;
}

} // namespace

ANSATZ_MODEL(YldFert1, BothPaths<value, derivatives>)

ANSATZ_PAGE(YldFert1, .title = "Yield over fertilizer, an exponential approach to a level by a rate",
            .formula = "y = a + b exp(-k x)",
            .parameters = {{"a", "yield approached at large x", Trait::level},
                           {"b", "amplitude: y - a at x = 0, negative for a rising yield", Trait::amplitude},
                           {"k", "rate, 1/(unit of x)", Trait::rate, positive}},
            .typical = {{5, -4, 0.5}, 0, 10}, .same_as = "ExpDec1(y0 = a, A1 = b, t1 = 1/k)",
            .known_as = "Mitscherlich law, asymptotic regression", .source = "Mitscherlich, 1909",
            .notes = "There is a value for any k; the derivatives, and so a fit, fail for k <= 0.")

} // namespace ansatz::yld_fert1
