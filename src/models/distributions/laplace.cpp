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

ANSATZ_MODEL(Laplace, ValueOrRefusal<value, distribution::values>)

ANSATZ_PAGE(
    Laplace, .title = "", .formula = "y = y0 + exp(-abs(x - xc)/b)/(2 b)",
    .parameters = {{"y0", "offset", Trait::offset},
                   {"xc", "centre", Trait::position},
                   {"b", "scale (as x)", Trait::constant}},
    .notes = "A density of area 1. Fails for b = 0; a negative b gives no density, so bound it from below.")

} // namespace ansatz::laplace
