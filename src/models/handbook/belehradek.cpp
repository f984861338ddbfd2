// Belehradek: a power law of the distance from a threshold, used for rates of growth against temperature.
//
//   y = P1 (x - P2)^P3
//
//   P1 the response one unit of x above the threshold, P2 threshold (unit of x), P3 exponent.
//
//   Fails at and below the threshold (x <= P2) and where the power overflows.

#include "models/handbook/law.h"

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
} // namespace ansatz::belehradek

ANSATZ_MODEL(Belehradek, ansatz::HandbookLaw<ansatz::belehradek::value, ansatz::belehradek::derivatives>)
