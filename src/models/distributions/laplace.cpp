// Laplace: the density of the Laplace (double exponential) distribution on an offset.
//
//   y = P1 + 0.5 e^(-|x - P2| / P3) / P3
//
//   P1 offset, P2 centre, P3 scale (same unit as x). y[2] is the density alone, without the offset.
//
//   Fails for P3 == 0 and on an overflow. A negative P3 is accepted: the curve then grows away from the centre,
//   upside down. Needs nParams >= 3: with fewer the call returns 1 and y = P1, without a marker. More than
//   three parameters still make one term. No derivatives.

#include "models/distributions/answers.h"

namespace ansatz::laplace {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    y[1] = P[1];
    if ((n - 1) / 2 < 1) return failure;
    if (P[3] == 0) return fail(at);
    const double density = 0.5 * safe_exp(-std::fabs(x[1] - P[2]) / P[3]) / P[3];
    if (math_error()) return fail(at);
    y[2] = density;
    y[1] += density;
    return success;
}

} // namespace
} // namespace ansatz::laplace

ANSATZ_MODEL(Laplace, ansatz::FormV<ansatz::laplace::value, ansatz::distribution::values>)
