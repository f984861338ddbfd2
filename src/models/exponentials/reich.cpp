// Reich: the sum of two exponential decays.
//
//   y = P1 e^(-P2 x) + P3 e^(-P4 x)
//
//   P1, P3 amplitudes; P2, P4 rates (per unit of x; negative: growth).
//
//   Fails on a range error alone. The model claims derivatives and has none: the query is answered with 1, yet
//   a derivative request writes nothing and succeeds. A host must take numerical derivatives here, whatever the
//   answer.

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

ANSATZ_PAGE(Reich, .title = "", .formula = "y = A1 exp(-k1 x) + A2 exp(-k2 x)",
            .parameters = {{"A1", "first amplitude", Trait::constant},
                           {"k1", "first rate, 1/(unit of x)", Trait::constant},
                           {"A2", "second amplitude", Trait::constant},
                           {"k2", "second rate", Trait::constant}},
            .true_derivatives = false,
            .notes = "Start with rates that differ: at k1 = k2 the amplitudes cannot be told apart. The model "
                     "announces derivatives and computes none.")

} // namespace ansatz::reich
