// Laplace. y[2] is the density alone, without the offset. Fails for b == 0 and on an overflow. Needs nParams >=
// 3: with fewer the call returns 1 and y = P1, without a marker. More than three parameters still make one
// term.

#include "models/distributions/answers.h"

namespace ansatz::laplace {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    y[1] = P[1];
    if ((n - 1) / 2 < 1) return failure;
    if (P[3] == 0) return fail(at);
    const Real density = 0.5 * safe_exp(-std::fabs(x[1] - P[2]) / P[3]) / P[3];
    if (math_error()) return fail(at);
    y[2] = density;
    y[1] += density;
    return success;
}

} // namespace

ANSATZ_MODEL(Laplace, ValueOrRefusal<value, distribution::values>)

ANSATZ_PAGE(Laplace, .title = "The density of the double exponential distribution on an offset",
            .formula = "y = y0 + exp(-abs(x - xc)/b)/(2 b)",
            .parameters = {{"y0", "offset", Trait::offset},
                           {"xc", "centre", Trait::position},
                           {"b", "scale (as x)", Trait::width, positive}},
            .typical = {{0.1, 4, 0.8}, 0, 8}, .scales = Scales::neither,
            .known_as = "Laplace distribution, double exponential distribution", .source = "Laplace, 1774",
            .notes =
                "A density of area 1. Fails for b = 0; a negative b gives a curve that grows away from the "
                "centre, upside down: bound it from below.")

} // namespace ansatz::laplace
