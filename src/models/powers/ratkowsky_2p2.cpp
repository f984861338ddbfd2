// Pow2P1 (routine Ratkowsky2P2): an asymptote that is approached as a power of x, from 0 at x = 1.
//
//   Pow2P1            y = P1 (1 - x^(-P2))
//                     P1 asymptote (unit of y); P2 exponent
//                     fails: x <= 0, overflow
//   Ratkowsky2P2EVP   y = P2 (1 - x^(-P3)) (1 - P1^(-P3))
//                     P1 reference position; P2 level (unit of y); P3 exponent
//                     fails: x <= 0, P1 <= 0, overflow of a power
//
//   Ratkowsky2P2EVP multiplies by its reference term. So P2 is not the response at x = P1, as it would be with
//   a division: the curve takes the value P2 (1 - P1^(-P3))^2 there, and its asymptote is P2 (1 - P1^(-P3)).

#include "protocol/handbook_law.h"

namespace ansatz::ratkowsky_2p2 {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (x[1] <= 0) return fail(at);
    y[1] = P[1] * (1 - safe_pow(x[1], -P[2]));
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (x[1] <= 0) return fail(at, 1, 2);
    const double rise = 1 - safe_pow(x[1], -P[2]);
    if (math_error()) return fail(at, 1, 2);
    dyda[1] = rise;
    y[1] = P[1] * rise;
    dyda[2] = log(x[1]) * (P[1] - y[1]);
    return math_error() ? fail_slots(at, 2) : success;
}

} // namespace
} // namespace ansatz::ratkowsky_2p2

namespace ansatz::ratkowsky_2p2_evp {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (x[1] <= 0 || P[1] <= 0) return fail(at);
    y[1] = P[2] * (1 - safe_pow(x[1], -P[3])) * (1 - of_parameters<safe_pow>(P[1], -P[3]));
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (x[1] <= 0 || P[1] <= 0) return fail(at, 1, 2, 3);
    const double W = safe_pow(x[1], -P[3]), V = of_parameters<safe_pow>(P[1], -P[3]);
    if (math_error()) return fail(at, 1, 2, 3);
    dyda[2] = (1 - V) * (1 - W);
    y[1] = P[2] * dyda[2];
    dyda[3] = (of_parameters<log>(P[1]) * V * (1 - W) + log(x[1]) * (1 - V) * W) * P[2];
    dyda[1] = V * (1 - W) * P[2] * P[3] / P[1];
    return success;
}

} // namespace

ANSATZ_MODEL(Pow2P1, HandbookLaw<ratkowsky_2p2::value, ratkowsky_2p2::derivatives>)

ANSATZ_PAGE(Pow2P1, .title = "", .formula = "y = a (1 - x^(-b))",
            .parameters = {{"a", "asymptote, for b > 0", Trait::level}, {"b", "exponent", Trait::exponent}},
            .notes = "Fails for x <= 0. The curve is 0 at x = 1.")

ANSATZ_MODEL(Ratkowsky2P2EVP, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(Ratkowsky2P2EVP, .title = "", .formula = "y = b (1 - x^(-c)) (1 - x1^(-c))",
            .parameters = {{"x1", "scales the level", Trait::reference},
                           {"b", "level", Trait::level},
                           {"c", "exponent", Trait::exponent}},
            .notes = "Pow2P1 with the asymptote b (1 - x1^(-c)). Despite its name the response at x1 is not a "
                     "parameter: y is b (1 - x1^(-c))^2 there. Fails for x <= 0 and x1 <= 0.")

} // namespace ansatz::ratkowsky_2p2_evp
