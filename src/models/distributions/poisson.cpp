// Poisson. y[2] is the probability alone, without the offset. Fails on a range or domain error; below x = -1
// the absolute value of the gamma function is taken. Needs nParams >= 2: with fewer the call returns 1 and y =
// P1, without a marker.

#include "models/distributions/answers.h"
#include "special/log_gamma.h"

namespace ansatz::poisson {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    y[1] = P[1];
    if (n - 1 <= 0) return failure;
    const Real lg = log_gamma(x[1] + 1.0);
    const Real q = safe_pow(P[2], x[1]) / safe_exp(lg);
    const Real probability = q * of_parameters<safe_exp>(-P[2]);
    if (math_error()) return fail(at);
    y[2] = probability;
    y[1] += probability;
    return success;
}

} // namespace

ANSATZ_MODEL(Poisson, ValueOrRefusal<value, distribution::values>)

ANSATZ_PAGE(Poisson, .title = "The probability of a number of rare events on an offset",
            .formula = "y = y0 + k^x exp(-k)/abs(gamma(x + 1))",
            .parameters = {{"y0", "offset", Trait::offset},
                           {"k", "mean number of events", Trait::position, positive}},
            .typical = {{0.05, 4}, 0, 14}, .scales = Scales::neither, .known_as = "Poisson distribution",
            .source = "Poisson, 1837",
            .notes = "x is the number of events and need not be whole. Fails for x above 170, where the "
                     "factorial overflows, and for a k whose power does, as 200^150; for x = -1, -2, ...; and "
                     "for k < 0 unless x is whole.")

} // namespace ansatz::poisson
