// Log3P1: a logarithm with offset, scale and shift.
//
//   y = P1 - P2 ln(x + P3)
//
//   P1 offset, P2 scale (both in the unit of y; a positive P2 falls with x), P3 shift (unit of x).
//
//   Fails for x + P3 <= 0.

#include "protocol/handbook_law.h"

namespace ansatz::log_3p1 {
namespace {

Status value(const Point& at) {
    const auto [n, P, xs, y, dyda] = at;
    const double shifted = xs[1] + P[3];
    if (shifted <= 0) return fail(at);
    y[1] = P[1] - P[2] * log(shifted);
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, xs, y, dyda] = at;
    const double shifted = xs[1] + P[3];
    if (shifted <= 0) return fail(at, 1, 2, 3);
    const double L = log(shifted);
    y[1] = P[1] - P[2] * L;
    dyda[1] = 1;
    dyda[2] = -L;
    dyda[3] = -P[2] / shifted;
    return math_error() ? fail(at, 1, 2, 3) : success;
}

} // namespace

ANSATZ_MODEL(Log3P1, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(Log3P1, .title = "", .formula = "y = a - b ln(x + c)",
            .parameters = {{"a", "offset", Trait::offset},
                           {"b", "scale; positive for a falling curve", Trait::constant},
                           {"c", "shift, in the unit of x", Trait::constant}},
            .notes = "Fails for x <= -c.")

} // namespace ansatz::log_3p1
