// LangmuirEXT1 and LangmuirEXT2. An overflow of the power fails, although the first form would have the
// saturation amount as its limit there.

#include "protocol/handbook_law.h"

namespace ansatz::langmuir_ext1 {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (x[1] <= 0) return fail(at);
    const Real bound = P[2] * safe_pow(x[1], 1 - P[3]);
    if (math_error() || 1 + bound == 0) return fail(at);
    y[1] = P[1] * (bound / (1 + bound));
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (x[1] <= 0) return fail(at, 1, 2, 3);
    const Real W = safe_pow(x[1], 1 - P[3]);
    const Real bound = P[2] * W, free = 1 + bound;
    const Real log_x = log(x[1]);
    if (math_error() || free == 0) return fail(at, 1, 2, 3);
    const Real share = bound / free;
    y[1] = P[1] * share;
    dyda[1] = share;
    dyda[2] = P[1] * W / free / free;
    dyda[3] = -y[1] * log_x / free;
    return success;
}

} // namespace

ANSATZ_MODEL(LangmuirEXT1, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(LangmuirEXT1,
            .title = "Adsorption with heterogeneity, by the amount at saturation and the affinity",
            .formula = "y = a b x^(1 - c)/(1 + b x^(1 - c))",
            .parameters = {{"a", "amount at saturation", Trait::ceiling},
                           {"b", "affinity, (unit of x)^(c - 1)", Trait::coefficient, positive},
                           {"c", "heterogeneity: 0 for the plain Langmuir law, below 1 for a rising curve",
                            Trait::exponent}},
            .x = {positive}, .typical = {{8, 0.4, 0.3}, 0.05, 30}, .scales = Scales::y_only,
            .same_as = "Hill(Vmax = a, k = b^(1/(c - 1)), n = 1 - c)",
            .known_as = "Langmuir-Freundlich isotherm, Sips isotherm",
            .notes = "Fails for x <= 0, where the denominator is 0 and where the power overflows.")

} // namespace ansatz::langmuir_ext1

namespace ansatz::langmuir_ext2 {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (x[1] <= 0) return fail(at);
    const Real D = P[1] + P[2] * safe_pow(x[1], P[3] - 1);
    if (math_error() || D == 0) return fail(at);
    y[1] = 1 / D;
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (x[1] <= 0) return fail(at, 1, 2, 3);
    const Real W = safe_pow(x[1], P[3] - 1);
    const Real D = P[1] + P[2] * W;
    const Real log_x = log(x[1]);
    if (math_error() || D == 0) return fail(at, 1, 2, 3);
    y[1] = 1 / D;
    dyda[1] = -y[1] / D;
    dyda[2] = -W / D / D;
    dyda[3] = dyda[2] * P[2] * log_x;
    return success;
}

} // namespace

ANSATZ_MODEL(LangmuirEXT2, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(LangmuirEXT2,
            .title = "Adsorption with heterogeneity, by coefficients in which it is nearer to linear",
            .formula = "y = 1/(a + b x^(c - 1))",
            .parameters = {{"a", "inverse of the amount at saturation", Trait::inverse_level},
                           {"b", "a divided by the affinity", Trait::coefficient, Dimension{.y = -1}},
                           {"c", "heterogeneity: 0 for the plain Langmuir law, below 1 for a rising curve",
                            Trait::exponent}},
            .x = {positive}, .typical = {{0.125, 0.3, 0.3}, 0.05, 30}, .scales = Scales::y_only,
            .same_as = "Hill(Vmax = 1/a, k = (b/a)^(1/(1 - c)), n = 1 - c)",
            .known_as = "Langmuir-Freundlich isotherm, Sips isotherm",
            .notes = "Fails for x <= 0, where the denominator is 0 and where the power overflows.")

} // namespace ansatz::langmuir_ext2
