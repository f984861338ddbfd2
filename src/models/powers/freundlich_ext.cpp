// FreundlichEXT: a power law whose exponent itself changes with x as a power.
//
//   FreundlichEXT      y = P1 x^(P2 x^(-P3))
//     P1 the response at x = 1 (unit of y), P2 the exponent there, P3 how fast the exponent falls with x:
//     0 gives the plain power law.
//   FreundlichEXTEVP   y = P2 x^(P3 x^(-P4)) / P1^(P3 P1^(-P4))
//     P2 the response at the reference position P1; P3 and P4 are P2 and P3 of the plain form.
//
//   Fails for x <= 0, for a reference position <= 0 and where a power overflows; the second form also where
//   the power of the reference position underflows to 0, since it is divided by.

#include "protocol/handbook_law.h"

namespace ansatz::freundlich_ext {
namespace {

Status value(const Point& at) {
    const auto [n, P, xs, y, dyda] = at;
    const double x = xs[1];
    if (x <= 0) return fail(at);
    y[1] = P[1] * safe_pow(x, P[2] * safe_pow(x, -P[3]));
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, xs, y, dyda] = at;
    const double x = xs[1];
    if (x <= 0) return fail(at, 1, 2, 3);
    const double fall = safe_pow(x, -P[3]);
    const double W = safe_pow(x, P[2] * fall);
    const double log_x = log(x);
    y[1] = P[1] * W;
    dyda[1] = W;
    dyda[2] = y[1] * log_x * fall;
    dyda[3] = -dyda[2] * P[2] * log_x;
    return math_error() ? fail(at, 1, 2, 3) : success;
}

} // namespace
} // namespace ansatz::freundlich_ext

namespace ansatz::freundlich_ext_evp {
namespace {

Status value(const Point& at) {
    const auto [n, P, xs, y, dyda] = at;
    const double x = xs[1];
    if (x <= 0 || P[1] <= 0) return fail(at);
    const double W = safe_pow(x, P[3] * safe_pow(x, -P[4]));
    const double fall_ref = of_parameters<safe_pow>(P[1], -P[4]);
    const double V = of_parameters<safe_pow>(P[1], P[3] * fall_ref);
    if (math_error() || V == 0) return fail(at);
    y[1] = P[2] * W / V;
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, xs, y, dyda] = at;
    const double x = xs[1];
    if (x <= 0 || P[1] <= 0) return fail(at, 1, 2, 3, 4);
    const double fall_x = safe_pow(x, -P[4]), fall_ref = of_parameters<safe_pow>(P[1], -P[4]);
    const double W = safe_pow(x, P[3] * fall_x);
    const double V = of_parameters<safe_pow>(P[1], P[3] * fall_ref);
    const double log_x = log(x), log_ref = of_parameters<log>(P[1]);
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

ANSATZ_MODEL(FreundlichEXT, HandbookLaw<freundlich_ext::value, freundlich_ext::derivatives>)

ANSATZ_PAGE(FreundlichEXT, .title = "", .formula = "y = a x^(b x^(-c))",
            .parameters = {{"a", "response at x = 1", Trait::level},
                           {"b", "exponent at x = 1", Trait::exponent},
                           {"c", "how fast the exponent falls with x: 0 for the plain power law",
                            Trait::constant}},
            .notes = "Fails for x <= 0.")

ANSATZ_MODEL(FreundlichEXTEVP, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(FreundlichEXTEVP, .title = "", .formula = "y = y1 x^(b x^(-c))/x1^(b x1^(-c))",
            .parameters = {{"x1", "x of the response y1", Trait::reference},
                           {"y1", "response at x1", Trait::response},
                           {"b", "exponent at x = 1", Trait::exponent},
                           {"c", "how fast the exponent falls with x: 0 for the plain power law",
                            Trait::constant}},
            .notes = "FreundlichEXT through the point (x1, y1). Fails for x <= 0 and x1 <= 0.")

} // namespace ansatz::freundlich_ext_evp
