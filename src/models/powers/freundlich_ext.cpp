#include "protocol/handbook_law.h"

namespace ansatz::freundlich_ext {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (x[1] <= 0) return fail(at);
    y[1] = P[1] * safe_pow(x[1], P[2] * safe_pow(x[1], -P[3]));
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (x[1] <= 0) return fail(at, 1, 2, 3);
    const Real fall = safe_pow(x[1], -P[3]);
    const Real W = safe_pow(x[1], P[2] * fall);
    const Real log_x = log(x[1]);
    y[1] = P[1] * W;
    dyda[1] = W;
    dyda[2] = y[1] * log_x * fall;
    dyda[3] = -dyda[2] * P[2] * log_x;
    return math_error() ? fail(at, 1, 2, 3) : success;
}

} // namespace

ANSATZ_MODEL(FreundlichEXT, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(FreundlichEXT, .title = "Power law whose exponent itself changes as a power of x",
            .formula = "y = a x^(b x^(-c))",
            .parameters = {{"a", "response at x = 1", Trait::level},
                           {"b", "exponent at x = 1", Trait::exponent},
                           {"c", "how fast the exponent falls with x: 0 for the plain power law",
                            Trait::exponent}},
            .x = {positive}, .typical = {{3, 0.8, 0.3}, 0.05, 10}, .scales = Scales::y_only,
            .known_as = "extended Freundlich isotherm", .source = "Sibbesen, 1981",
            .notes = "Fails for x <= 0, and where a power overflows.")

} // namespace ansatz::freundlich_ext

// Fails also where the power of the reference position underflows to 0, since it is divided by.
namespace ansatz::freundlich_ext_evp {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (x[1] <= 0 || P[1] <= 0) return fail(at);
    const Real W = safe_pow(x[1], P[3] * safe_pow(x[1], -P[4]));
    const Scalar fall_ref = of_parameters<safe_pow>(P[1], -P[4]);
    const Scalar V = of_parameters<safe_pow>(P[1], P[3] * fall_ref);
    if (math_error() || V == 0) return fail(at);
    y[1] = P[2] * W / V;
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (x[1] <= 0 || P[1] <= 0) return fail(at, 1, 2, 3, 4);
    const Real fall_x = safe_pow(x[1], -P[4]);
    const Scalar fall_ref = of_parameters<safe_pow>(P[1], -P[4]);
    const Real W = safe_pow(x[1], P[3] * fall_x);
    const Scalar V = of_parameters<safe_pow>(P[1], P[3] * fall_ref);
    const Real log_x = log(x[1]);
    const Scalar log_ref = of_parameters<log>(P[1]);
    if (math_error() || V == 0) return fail(at, 1, 2, 3, 4);
    y[1] = P[2] * W / V;
    // ln y = ln P2 + P3 (x^(-P4) ln x - P1^(-P4) ln P1)
    dyda[1] = -y[1] * P[3] * fall_ref * (1 - P[4] * log_ref) / P[1];
    dyda[2] = W / V;
    dyda[3] = y[1] * (fall_x * log_x - fall_ref * log_ref);
    dyda[4] = -y[1] * P[3] * (fall_x * log_x * log_x - fall_ref * log_ref * log_ref);
    return success;
}

} // namespace

ANSATZ_MODEL(FreundlichEXTEVP, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(
    FreundlichEXTEVP, .title = "Power law with a changing exponent, by the response at one position",
    .formula = "y = y1 x^(b x^(-c))/x1^(b x1^(-c))",
    .parameters = {{"x1", "x of the response y1", Trait::reference, positive},
                   {"y1", "response at x1", Trait::response},
                   {"b", "exponent at x = 1", Trait::exponent},
                   {"c", "how fast the exponent falls with x: 0 for the plain power law", Trait::exponent}},
    .x = {positive}, .typical = {{4, 6, 0.8, 0.3}, 0.05, 10}, .scales = Scales::y_only,
    .same_as = "FreundlichEXT(a = y1 x1^(-b x1^(-c)), b = b, c = c)",
    .notes =
        "FreundlichEXT through the point (x1, y1). Fails for x <= 0 and x1 <= 0, and where a power overflows.")

} // namespace ansatz::freundlich_ext_evp
