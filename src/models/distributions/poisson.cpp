// Poisson: the Poisson distribution, continued to a real number of events, on an offset.
//
//   y = P1 + P2^x / Gamma(x + 1) e^(-P2)
//
//   x number of events, not necessarily whole; P1 offset, P2 mean number of events. y[2] is the probability
//   alone, without the offset.
//
//   Fails on a range or domain error: x above 170, where the factorial overflows; a mean whose power does, as
//   200^150; x = -1, -2, ..., where Gamma has its poles; a negative mean with a broken x. Below x = -1 the
//   absolute value of Gamma is taken. Needs nParams >= 2: with fewer the call returns 1 and y = P1, without a
//   marker. No derivatives.

#include "models/distributions/answers.h"
#include "special/log_gamma.h"

namespace ansatz::poisson {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    y[1] = P[1];
    if (n - 1 <= 0) return failure;
    const double lg = log_gamma(x[1] + 1.0);
    const double q = safe_pow(P[2], x[1]) / safe_exp(lg);
    const double probability = q * of_parameters<safe_exp>(-P[2]);
    if (math_error()) return fail(at);
    y[2] = probability;
    y[1] += probability;
    return success;
}

} // namespace

ANSATZ_MODEL(Poisson, ValueOrRefusal<value, distribution::values>)

ANSATZ_PAGE(Poisson, .title = "", .formula = "y = y0 + k^x exp(-k)/abs(gamma(x + 1))",
            .parameters = {{"y0", "offset", Trait::offset}, {"k", "mean number of events", Trait::constant}},
            .notes = "The probability of x events; x need not be whole. Fails for x above 170 and x = -1, -2, "
                     "..., and for k < 0 unless x is whole.")

} // namespace ansatz::poisson
