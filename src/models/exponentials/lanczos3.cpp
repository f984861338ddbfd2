// Lanczos3: the sum of three exponential decays.
//
//   y = P1 e^(-P2 x) + P3 e^(-P4 x) + P5 e^(-P6 x)
//
//   P1, P3, P5 amplitudes; P2, P4, P6 rates, per unit of x (negative: growth). nParams is not read.
//
//   Fails on an overflow, with y[1] and, for the derivatives, all six slots marked. A domain error pending on
//   entry is not looked at. Rates that are nearly equal leave the fit badly determined.

#include "protocol/forms.h"

namespace ansatz::lanczos3 {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const double sum =
        P[1] * safe_exp(-P[2] * x[1]) + P[3] * safe_exp(-P[4] * x[1]) + P[5] * safe_exp(-P[6] * x[1]);
    if (range_error()) return fail(at);
    y[1] = sum;
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    double sum = 0;
    for (int k = 1; k <= 5; k += 2) {
        const double e = safe_exp(-P[k + 1] * x[1]);
        const double term = P[k] * e;
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

ANSATZ_PAGE(Lanczos3, .title = "", .formula = "y = A1 exp(-k1 x) + A2 exp(-k2 x) + A3 exp(-k3 x)",
            .parameters = {{"A1", "first amplitude", Trait::constant},
                           {"k1", "first rate, 1/(unit of x); negative: growth", Trait::constant},
                           {"A2", "second amplitude", Trait::constant},
                           {"k2", "second rate", Trait::constant},
                           {"A3", "third amplitude", Trait::constant},
                           {"k3", "third rate", Trait::constant}},
            .notes = "No offset. Fails where a term overflows. The terms may trade places. Three decays are "
                     "told apart only by very good data with rates a factor of two or more apart; equal starts "
                     "for two of the rates end in a fit of two terms.")

} // namespace ansatz::lanczos3
