// SWeibull1 and SWeibull2. SWeibull1 tests no parameter for the value and fails on what power and exponential
// report; its derivatives test for overflow only, so a pending domain error is passed by. Where the power of
// SWeibull2 overflows y is the ceiling. One failure of its derivatives, a domain error pending on entry, does
// not mark dyda[4] but scales what the caller had in it by MISSING_VALUE.
//
// The logarithm in the slope by the shape is not tested: where (x - P2) P4 is too small for a double, that
// slope is no number and the error indicator stays set.

#include "protocol/limits.h"

namespace ansatz::sweibull1 {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Real p = safe_pow((x[1] - P[2]) * P[4], P[3]);
    if (math_error()) return fail(at);
    const Real e = safe_exp(-p);
    if (math_error()) return fail(at);
    y[1] = (1 - e) * P[1];
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Scalar start = P[2], shape = P[3], rate = P[4];
    if (shape < 0 || rate <= 0) return fail(at, 1, 2, 3, 4);
    if (x[1] <= start) {
        dyda[1] = dyda[2] = dyda[3] = dyda[4] = 0;
        y[1] = 0;
        return success;
    }
    const Real d = x[1] - start;
    const Real z = d * rate;
    const Real p = safe_pow(z, shape);
    if (range_error()) return fail(at, 1, 2, 3, 4);
    const Real e = safe_exp(-p);
    if (range_error()) return fail(at, 1, 2, 3, 4);
    const Real share = 1 - e;
    const Real by_rate = e * P[1] * shape * p / rate;
    y[1] = share * P[1];
    dyda[1] = share;
    dyda[2] = -by_rate * rate / d;
    dyda[3] = log(z) * rate * by_rate / shape;
    dyda[4] = by_rate;
    return success;
}

} // namespace

ANSATZ_MODEL(SWeibull1, BothPaths<value, derivatives>)

ANSATZ_PAGE(SWeibull1, .title = "Growth after the distribution function of Weibull, from its start",
            .formula = "y = a (1 - exp(-((x - xc) k)^d))",
            .parameters = {{"a", "ceiling", Trait::ceiling},
                           {"xc", "x at which the growth starts from 0", Trait::threshold},
                           {"d", "shape; 1 makes it MnMolecular", Trait::shape, positive},
                           {"k", "rate", Trait::rate, positive}},
            .typical = {{8, 1, 2.5, 0.25}, 1.1, 9},
            .departures = {{1, "x < xc"}, {2, "x < xc"}, {3, "x < xc"}, {4, "x < xc"}, {2, "x = xc, d <= 1"}},
            .known_as = "Weibull growth curve", .source = "Weibull, 1951",
            .notes = "For x < xc there is no value unless d is a whole number, and the derivatives are "
                     "answered with 0: bound xc from above by the "
                     "least x of the data. The derivatives, and so a fit, fail for k <= 0 and d < 0; for d = 0 "
                     "that by d is no number.")

} // namespace ansatz::sweibull1

namespace ansatz::sweibull2 {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (P[4] <= 0 || x[1] <= 0) return fail(at);
    const Real p = safe_pow(P[4] * x[1], P[3]);
    if (range_error()) return reaches(at, P[1]); // derivatives follow if requested
    const Real e = safe_exp(-p);
    if (math_error()) return fail(at);
    y[1] = P[1] - (P[1] - P[2]) * e;
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (P[4] <= 0 || x[1] <= 0) return fail(at, 1, 2, 3, 4);
    const Scalar ceiling = P[1], initial = P[2], shape = P[3], rate = P[4];
    const Real z = rate * x[1];
    const Real p = safe_pow(z, shape);
    if (range_error()) return reaches(at, ceiling, 1, 0, 0, 0);
    const Real e = safe_exp(-p);
    if (math_error()) {
        dyda[4] *= MISSING_VALUE; // scaled, not marked
        return fail(at, 1, 2, 3);
    }
    const Real share = 1 - e;
    const Real w = (ceiling - initial) * e * p;
    y[1] = e * initial + share * ceiling;
    dyda[1] = share;
    dyda[2] = e;
    dyda[3] = w * log(z);
    dyda[4] = shape / rate * w;
    return success;
}

} // namespace

ANSATZ_MODEL(SWeibull2, BothPaths<value, derivatives>)

ANSATZ_PAGE(SWeibull2, .title = "Growth after the distribution function of Weibull, from a level at x = 0",
            .formula = "y = a - (a - y0) exp(-(k x)^d)",
            .parameters = {{"a", "ceiling", Trait::ceiling},
                           {"y0", "value towards x = 0", Trait::level},
                           {"d", "shape", Trait::shape, positive},
                           {"k", "rate", Trait::rate, positive}},
            .x = {positive}, .typical = {{8, 1, 2.5, 0.25}, 0.05, 8}, .known_as = "Weibull growth curve",
            .source = "Weibull, 1951",
            .notes = "Fails for x <= 0, so leave out a point at x = 0, and for k <= 0.")

} // namespace ansatz::sweibull2
