// MWChang. The power (a P4/b)^P5 is taken for its domain error alone and then dropped, overflow and all. P1 ==
// 0 gives 0 without it. A success clears the error indicator. Values only: a derivative request is ignored.

#include "protocol/forms.h"

namespace ansatz::mw_chang {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Real a = 1 + P[2] * x[1], b = 1 + P[3] * x[1];
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

ANSATZ_PAGE(MWChang, .title = "Saturation along a hyperbola, with three parameters that only guard its domain",
            .formula = "y = a c x/(1 + c x)",
            .parameters = {{"a", "value approached at large x", Trait::ceiling},
                           {"b", "without effect on y", Trait::rate},
                           {"c", "rate, 1/(unit of x)", Trait::rate, positive},
                           {"d", "without effect on y", Trait::coefficient, positive},
                           {"e", "without effect on y", Trait::exponent}},
            .typical = {{8, 0, 0.5, 1, 1}, 0, 20}, .same_as = "MicMent(Vmax = a, Km = 1/c)",
            .notes = "Hold b, d and e fixed in a fit, at b=0, d=1, e=1 for instance: no data determine them. "
                     "They matter only in that the "
                     "model fails where 1 + b x or 1 + c x is 0 or ((1 + b x) d/(1 + c x))^e does not exist.")

} // namespace ansatz::mw_chang
