// MWChang: the quotient of two straight lines, with a power that only guards the domain.
//
//   y = P1 (b - 1) / b,  a = 1 + P2 x,  b = 1 + P3 x
//
//   P1 asymptote, P2 first rate, P3 second rate, P4 scale, P5 exponent.
//
//   Fails where a == 0 or b == 0, and where (a P4/b)^P5 is outside the domain of the power. That power is taken
//   for its domain error alone and then dropped, overflow and all: P2, P4 and P5 decide whether there is a
//   value and do not change it, so a fit cannot determine them. P1 == 0 gives 0 without the power. A success
//   clears the error indicator. Values only: a derivative request is ignored.

#include "protocol/forms.h"

namespace ansatz::mw_chang {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const double a = 1 + P[2] * x[1], b = 1 + P[3] * x[1];
    if (a == 0 || b == 0) return fail(at);
    if (P[1] == 0) {
        y[1] = 0;
        return success;
    }
    safe_pow(a * P[4] / b, P[5]);
    if (domain_error()) return fail(at);
    clear_error();
    y[1] = P[1] * (b - 1) / b;
    return success;
}

} // namespace
} // namespace ansatz::mw_chang

ANSATZ_MODEL(MWChang, ansatz::FormW<ansatz::mw_chang::value>)
