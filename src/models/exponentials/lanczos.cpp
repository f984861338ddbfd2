// Lanczos3. nParams is not read. An overflow marks all six slots on the derivative path. A domain error pending
// on entry is not looked at.

#include "protocol/forms.h"

namespace ansatz::lanczos3 {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Real sum =
        P[1] * safe_exp(-P[2] * x[1]) + P[3] * safe_exp(-P[4] * x[1]) + P[5] * safe_exp(-P[6] * x[1]);
    if (range_error()) return fail(at);
    y[1] = sum;
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    Real sum = 0;
    for (int k = 1; k <= 5; k += 2) {
        const Real e = safe_exp(-P[k + 1] * x[1]);
        const Real term = P[k] * e;
        dyda[k] = e;
        dyda[k + 1] = -x[1] * term;
        sum += term;
    }
    if (range_error()) return fail_all(at, 6);
    y[1] = sum;
    return success;
}

} // namespace

ANSATZ_MODEL(Lanczos3, BothPaths<value, derivatives, Answers{.probe = true}>)

ANSATZ_PAGE(Lanczos3, .title = "Sum of three exponential decays to 0, by their rates",
            .formula = "y = A1 exp(-k1 x) + A2 exp(-k2 x) + A3 exp(-k3 x)",
            .parameters = {{"A1", "first amplitude, at x = 0", Trait::amplitude},
                           {"k1", "first rate, 1/(unit of x); negative for growth", Trait::rate},
                           {"A2", "second amplitude, at x = 0", Trait::amplitude},
                           {"k2", "second rate, 1/(unit of x)", Trait::rate},
                           {"A3", "third amplitude, at x = 0", Trait::amplitude},
                           {"k3", "third rate, 1/(unit of x)", Trait::rate}},
            .typical = {{0.1, 1, 0.9, 3, 1.6, 5}, 0, 1.5},
            .same_as = "ExpDec3(y0 = 0, A1 = A1, t1 = 1/k1, A2 = A2, t2 = 1/k2, A3 = A3, t3 = 1/k3)",
            .source = "Lanczos, 1956",
            .notes = "No offset. Fails where a term overflows. The terms may trade places. Three decays are "
                     "told apart only by very good data with rates a factor of two or more apart; equal starts "
                     "for two of the rates end in a fit of two terms.")

} // namespace ansatz::lanczos3
