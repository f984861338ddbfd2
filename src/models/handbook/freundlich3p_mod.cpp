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
} // namespace ansatz::freundlich3p_mod

ANSATZ_MODEL(Freundlich3PMod,
             ansatz::FormD<ansatz::freundlich3p_mod::value, ansatz::freundlich3p_mod::derivatives>)
