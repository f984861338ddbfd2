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

ANSATZ_MODEL(MWChang, ValueOrNothing<value>)

ANSATZ_PAGE(MWChang, .title = "", .formula = "y = a c x/(1 + c x)",
            .parameters = {{"a", "value approached at large x", Trait::constant},
                           {"b", "without effect on y", Trait::constant},
                           {"c", "rate, 1/(unit of x)", Trait::rate},
                           {"d", "without effect on y", Trait::constant},
                           {"e", "without effect on y", Trait::constant}},
            .notes =
                "Hold b, d and e fixed in a fit, at b=0, d=1, e=1 for instance. They matter only in that the "
                "model fails where 1 + b x or 1 + c x is 0 or ((1 + b x) d/(1 + c x))^e does not exist.")

} // namespace ansatz::mw_chang
