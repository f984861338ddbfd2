// Reich claims derivatives and has none: the query is answered with 1, yet a derivative request writes nothing
// and succeeds. A host must take numerical derivatives here, whatever the answer.

#include "protocol/forms.h"

namespace ansatz::reich {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    y[1] = P[1] * safe_exp(-P[2] * x[1]) + P[3] * safe_exp(-P[4] * x[1]);
    return math_error() ? fail(at) : success;
}

Status no_derivatives(const Point&) {
    return success;
}

} // namespace

ANSATZ_MODEL(Reich, OnePath<value, no_derivatives>)

ANSATZ_PAGE(Reich, .title = "Sum of two exponential decays to 0, by their rates",
            .formula = "y = A1 exp(-k1 x) + A2 exp(-k2 x)",
            .parameters = {{"A1", "first amplitude, at x = 0", Trait::amplitude},
                           {"k1", "first rate, 1/(unit of x); negative for growth", Trait::rate},
                           {"A2", "second amplitude, at x = 0", Trait::amplitude},
                           {"k2", "second rate, 1/(unit of x)", Trait::rate}},
            .typical = {{4, 1.2, 3, 0.2}, 0, 15}, .departures = {{1}, {2}, {3}, {4}}, .true_derivatives = false,
            .same_as = "ExpDec2(y0 = 0, A1 = A1, t1 = 1/k1, A2 = A2, t2 = 1/k2)",
            .known_as = "biexponential decay",
            .notes = "No offset. Fails where a term overflows. Start with rates that differ: at k1 = k2 the "
                     "amplitudes cannot be told apart. The model announces derivatives and computes none.")

} // namespace ansatz::reich
