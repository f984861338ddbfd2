// LineExp: a straight line and an exponential, two dependent variables.
//
//   y[1] = P1 + P3 x,   y[2] = P2 + P4 e^(x/P5)
//
//   P1 and P2 offsets of the line and of the exponential, P3 slope, P4 amplitude, P5 scale of x (same unit;
//   negative: decay).
//
//   An overflow of the exponential fails both outputs. P5 == 0 is not tested: for x >= 0 it makes y[2] infinite
//   or not a number, with status 0. No derivatives; a derivative request alone returns 0 and writes nothing.

#include "models/multi/missing_fill.h"

namespace ansatz::lineexp {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    y[1] = P[1] + P[3] * x[1];
    if (math_error()) return missing_fill(at, 2);
    y[2] = P[2] + P[4] * safe_exp(x[1] / P[5]);
    return math_error() ? missing_fill(at, 2) : success;
}

} // namespace
} // namespace ansatz::lineexp

ANSATZ_MODEL(LineExp, ansatz::FormW<ansatz::lineexp::value>)
