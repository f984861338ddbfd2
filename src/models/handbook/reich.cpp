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
} // namespace ansatz::reich

ANSATZ_MODEL(Reich, ansatz::FormE<ansatz::reich::value, ansatz::reich::no_derivatives>)
