// MnMolecular and MnMolecular1. MnMolecular takes no exponential at x == P2, and for a ceiling of 0 none for
// the value: y is 0 there, whatever error is pending. Its derivatives pass a pending domain error by.

#include "protocol/forms.h"

namespace ansatz::mn_molecular {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Real d = x[1] - P[2];
    if (d == 0 || P[1] == 0) {
        y[1] = 0;
        return success;
    }
    const Real t = safe_exp(-d * P[3]);
    if (math_error()) return fail(at);
    y[1] = (1 - t) * P[1];
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Real d = x[1] - P[2];
    if (d == 0) {
        y[1] = 0;
        dyda[1] = 0;
        dyda[2] = -P[3] * P[1];
        dyda[3] = P[1] * x[1]; // not 0
        return success;
    }
    const Real t = safe_exp(-d * P[3]);
    if (range_error()) return fail(at, 1, 2, 3);
    const Real w = t * P[1];
    const Scalar rate = P[3];
    y[1] = (1 - t) * P[1];
    dyda[1] = 1 - t;
    dyda[2] = -w * rate;
    dyda[3] = d * w;
    return success;
}

} // namespace

ANSATZ_MODEL(MnMolecular, BothPaths<value, derivatives>)

ANSATZ_PAGE(MnMolecular, .title = "Growth in proportion to what is left to grow, by its start and its ceiling",
            .formula = "y = a (1 - exp(-(x - xc) k))",
            .parameters = {{"a", "ceiling", Trait::ceiling},
                           {"xc", "x at which the growth starts from 0", Trait::threshold},
                           {"k", "rate", Trait::rate}},
            .typical = {{8, 1, 0.5}, 1.1, 12}, .departures = {{3, "x = xc"}},
            .same_as = "ExpDec1(y0 = a, A1 = -a exp(k xc), t1 = 1/k)", .known_as = "monomolecular growth",
            .notes = "Fails on an overflow of the exponential only. The derivative by k is wrong for a point "
                     "with x exactly equal to xc (a x instead of 0): "
                     "do not start or fix xc at an x of the data, unless that x is 0.")

} // namespace ansatz::mn_molecular

namespace ansatz::mn_molecular1 {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Real t = safe_exp(-P[3] * x[1]);
    if (math_error()) return fail(at);
    y[1] = P[1] - P[2] * t;
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    dyda[1] = 1;
    const Real by_depth = -safe_exp(-P[3] * x[1]);
    if (math_error()) return fail(at, 2, 3);
    const Real w = P[2] * by_depth;
    y[1] = P[1] + w;
    dyda[2] = by_depth;
    dyda[3] = -w * x[1];
    return success;
}

} // namespace

ANSATZ_MODEL(MnMolecular1, BothPaths<value, derivatives>)

ANSATZ_PAGE(MnMolecular1,
            .title = "Growth in proportion to what is left to grow, by its ceiling and the depth below it",
            .formula = "y = a - b exp(-k x)",
            .parameters = {{"a", "ceiling", Trait::ceiling},
                           {"b", "depth below the ceiling at x = 0", Trait::amplitude},
                           {"k", "rate", Trait::rate}},
            .typical = {{8, 6, 0.5}, 0, 12}, .same_as = "ExpDec1(y0 = a, A1 = -b, t1 = 1/k)",
            .known_as = "monomolecular growth", .notes = "Fails on an overflow of the exponential only.")

} // namespace ansatz::mn_molecular1
