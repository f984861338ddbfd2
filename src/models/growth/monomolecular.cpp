// MnMolecular and MnMolecular1: growth whose rate falls in proportion to what is left to grow.
//
//   MnMolecular    y = P1 (1 - e^(-(x - P2) P3))    P1 ceiling, P2 start time, P3 rate (1 / unit of x)
//   MnMolecular1   y = P1 - P2 e^(-P3 x)            P1 ceiling, P2 depth below it at x = 0, P3 rate
//
//   Fails on an overflow of the exponential only. MnMolecular takes no exponential at x == P2, and for a
//   ceiling of 0 none for the value: y is 0 there, whatever error is pending.
//
//   Two oddities of MnMolecular: exactly at x == P2 the slope by the rate is answered with P1 x where 0 would
//   be right, which matters only for a point that coincides with the start time to the last bit; and its
//   derivatives pass a pending domain error by.

#include "protocol/forms.h"

namespace ansatz::mn_molecular {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const double d = x[1] - P[2];
    if (d == 0 || P[1] == 0) {
        y[1] = 0;
        return success;
    }
    const double t = safe_exp(-d * P[3]);
    if (math_error()) return fail(at);
    y[1] = (1 - t) * P[1];
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const double d = x[1] - P[2];
    if (d == 0) {
        y[1] = 0;
        dyda[1] = 0;
        dyda[2] = -P[3] * P[1];
        dyda[3] = P[1] * x[1]; // not 0
        return success;
    }
    const double t = safe_exp(-d * P[3]);
    if (range_error()) return fail(at, 1, 2, 3);
    const double w = t * P[1], rate = P[3];
    y[1] = (1 - t) * P[1];
    dyda[1] = 1 - t;
    dyda[2] = -w * rate;
    dyda[3] = d * w;
    return success;
}

} // namespace
} // namespace ansatz::mn_molecular

namespace ansatz::mn_molecular1 {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const double t = safe_exp(-P[3] * x[1]);
    if (math_error()) return fail(at);
    y[1] = P[1] - P[2] * t;
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    dyda[1] = 1;
    const double by_depth = -safe_exp(-P[3] * x[1]);
    if (math_error()) return fail(at, 2, 3);
    const double w = P[2] * by_depth;
    y[1] = P[1] + w;
    dyda[2] = by_depth;
    dyda[3] = -w * x[1];
    return success;
}

} // namespace

ANSATZ_MODEL(MnMolecular, BothPaths<mn_molecular::value, mn_molecular::derivatives>)

ANSATZ_PAGE(MnMolecular, .title = "", .formula = "y = a (1 - exp(-(x - xc) k))",
            .parameters = {{"a", "ceiling", Trait::ceiling},
                           {"xc", "x at which the growth starts from 0", Trait::constant},
                           {"k", "rate", Trait::rate}},
            .notes = "The derivative by k is wrong for a point with x exactly equal to xc (a x instead of 0): "
                     "do not start or fix xc at an x of the data, unless that x is 0.")

ANSATZ_MODEL(MnMolecular1, BothPaths<value, derivatives>)

ANSATZ_PAGE(MnMolecular1, .title = "", .formula = "y = a - b exp(-k x)",
            .parameters = {{"a", "ceiling", Trait::ceiling},
                           {"b", "depth below the ceiling at x = 0", Trait::constant},
                           {"k", "rate", Trait::rate}})

} // namespace ansatz::mn_molecular1
