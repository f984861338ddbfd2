// Freundlich3PMod: a power law with an offset, the exponent given by its inverse.
//
//   y = P1 + P2 x^(1/P3)
//
//   P1 offset, P2 scale, P3 inverse of the exponent.
//
//   Fails for P3 == 0 and on an error of the power: x == 0 with P3 < 0, x < 0 with a broken exponent, overflow;
//   on the derivative path dyda[1] stays 1 after an error of the power. The logarithm in dyda[3] is not tested:
//   where the power exists but ln x does not (x < 0, or x == 0), dyda[3] is not a number although the call
//   succeeds, and the error indicator stays set. Keep x positive, or clear the indicator and ignore dyda[3]
//   there.

#include "protocol/forms.h"

namespace ansatz::freundlich3p_mod {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (P[3] == 0) return fail(at);
    y[1] = P[1] + P[2] * safe_pow(x[1], 1 / P[3]);
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (P[3] == 0) return fail(at, 1, 2, 3);
    dyda[1] = 1;
    const double w = safe_pow(x[1], 1 / P[3]);
    if (math_error()) return fail(at, 2, 3);
    dyda[2] = w;
    dyda[3] = -P[2] * w * log(x[1]) / (P[3] * P[3]);
    y[1] = P[1] + P[2] * w;
    return success;
}

} // namespace

ANSATZ_MODEL(Freundlich3PMod, BothPaths<value, derivatives>)

ANSATZ_PAGE(Freundlich3PMod, .title = "", .formula = "y = a + b x^(1/c)",
            .parameters = {{"a", "offset", Trait::offset},
                           {"b", "scale: y - a at x = 1", Trait::constant},
                           {"c", "inverse of the exponent, not 0", Trait::constant}},
            .notes = "Fails for c = 0, and for x = 0 with c < 0. For x < 0 there is a value only where 1/c is "
                     "a whole number, and no fit.")

} // namespace ansatz::freundlich3p_mod
