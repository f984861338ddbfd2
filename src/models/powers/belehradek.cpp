// Belehradek: a power law of the distance from a threshold, used for rates of growth against temperature.
//
//   y = P1 (x - P2)^P3
//
//   P1 the response one unit of x above the threshold, P2 threshold (unit of x), P3 exponent.
//
//   Fails at and below the threshold (x <= P2) and where the power overflows.

#include "protocol/handbook_law.h"

namespace ansatz::belehradek {
namespace {

Status value(const Point& at) {
    const auto [n, P, xs, y, dyda] = at;
    const double above = xs[1] - P[2];
    if (above <= 0) return fail(at);
    y[1] = P[1] * safe_pow(above, P[3]);
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, xs, y, dyda] = at;
    const double above = xs[1] - P[2];
    if (above <= 0) return fail(at, 1, 2, 3);
    const double W = safe_pow(above, P[3]);
    y[1] = P[1] * W;
    dyda[1] = W;
    dyda[2] = -y[1] * P[3] / above;
    dyda[3] = y[1] * log(above);
    return math_error() ? fail(at, 1, 2, 3) : success;
}

} // namespace

ANSATZ_MODEL(Belehradek, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(Belehradek, .title = "", .formula = "y = a (x - b)^c",
            .parameters = {{"a", "response one unit of x above the threshold", Trait::level},
                           {"b", "threshold, below every x", Trait::constant},
                           {"c", "exponent", Trait::exponent}},
            .notes = "Fails for x <= b. A fit may run b into the smallest x and stop there: then start with a "
                     "larger c, or bound b below that x (--upper).")

} // namespace ansatz::belehradek
