// LineMod: the straight line by its slope and the x where it crosses zero.
//
//   y = P1 (x - P2)
//
//   P1 slope; P2 x-intercept (unit of x). Never fails and never looks at the error indicator.

#include "models/handbook/law.h"

namespace ansatz::line_mod {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    y[1] = P[1] * (x[1] - P[2]);
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const double d = x[1] - P[2];
    y[1] = P[1] * d;
    dyda[1] = d;
    dyda[2] = -P[1];
    return success;
}

} // namespace
} // namespace ansatz::line_mod

ANSATZ_MODEL(LineMod, ansatz::HandbookLaw<ansatz::line_mod::value, ansatz::line_mod::derivatives>)
