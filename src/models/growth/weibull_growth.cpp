// SWeibull1 and SWeibull2: growth after the distribution function of Weibull.
//
//   SWeibull1   y = P1 (1 - e^(-((x - P2) P4)^P3))
//     P1 ceiling, P2 start time, P3 shape, P4 rate (1 / unit of x)
//     The value tests no parameter and fails on what power and exponential report: before the start time it
//     exists for whole-numbered shapes only. The derivatives fail for P3 < 0 and P4 <= 0, and are 0 together
//     with y for x <= P2. A shape of 0 gives a slope by the shape that is no number. They test for overflow
//     only, so a pending domain error is passed by.
//
//   SWeibull2   y = P1 - (P1 - P2) e^(-(P4 x)^P3)
//     P1 ceiling, P2 value at x = 0, P3 shape, P4 rate
//     Fails for P4 <= 0 and for x <= 0: the start itself is excluded. Where the power overflows y is the
//     ceiling. One failure of the derivatives, a domain error pending on entry, does not mark dyda[4] but
//     scales what the caller had in it by MISSING_VALUE.
//
//   The logarithm in the slope by the shape is not tested: where (x - P2) P4 is too small for a double, that
//   slope is no number and the error indicator stays set.

#include "protocol/limits.h"

namespace ansatz::sweibull1 {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const double p = safe_pow((x[1] - P[2]) * P[4], P[3]);
    if (math_error()) return fail(at);
    const double e = safe_exp(-p);
    if (math_error()) return fail(at);
    y[1] = (1 - e) * P[1];
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const double start = P[2], shape = P[3], rate = P[4];
    if (shape < 0 || rate <= 0) return fail(at, 1, 2, 3, 4);
    if (x[1] <= start) {
        dyda[1] = dyda[2] = dyda[3] = dyda[4] = 0;
        y[1] = 0;
        return success;
    }
    const double d = x[1] - start;
    const double z = d * rate;
    const double p = safe_pow(z, shape);
    if (range_error()) return fail(at, 1, 2, 3, 4);
    const double e = safe_exp(-p);
    if (range_error()) return fail(at, 1, 2, 3, 4);
    const double share = 1 - e;
    const double by_rate = e * P[1] * shape * p / rate;
    y[1] = share * P[1];
    dyda[1] = share;
    dyda[2] = -by_rate * rate / d;
    dyda[3] = log(z) * rate * by_rate / shape;
    dyda[4] = by_rate;
    return success;
}

} // namespace
} // namespace ansatz::sweibull1

namespace ansatz::sweibull2 {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (P[4] <= 0 || x[1] <= 0) return fail(at);
    const double p = safe_pow(P[4] * x[1], P[3]);
    if (range_error()) return reaches(at, P[1]); // derivatives follow if requested
    const double e = safe_exp(-p);
    if (math_error()) return fail(at);
    y[1] = P[1] - (P[1] - P[2]) * e;
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (P[4] <= 0 || x[1] <= 0) return fail(at, 1, 2, 3, 4);
    const double ceiling = P[1], initial = P[2], shape = P[3], rate = P[4];
    const double z = rate * x[1];
    const double p = safe_pow(z, shape);
    if (range_error()) return reaches(at, ceiling, 1, 0, 0, 0);
    const double e = safe_exp(-p);
    if (math_error()) {
        dyda[4] *= MISSING_VALUE; // scaled, not marked
        return fail(at, 1, 2, 3);
    }
    const double share = 1 - e;
    const double w = (ceiling - initial) * e * p;
    y[1] = e * initial + share * ceiling;
    dyda[1] = share;
    dyda[2] = e;
    dyda[3] = w * log(z);
    dyda[4] = shape / rate * w;
    return success;
}

} // namespace

ANSATZ_MODEL(SWeibull1, BothPaths<sweibull1::value, sweibull1::derivatives>)

ANSATZ_PAGE(SWeibull1, .title = "", .formula = "y = a (1 - exp(-((x - xc) k)^d))",
            .parameters = {{"a", "ceiling", Trait::ceiling},
                           {"xc", "x at which the growth starts from 0", Trait::constant},
                           {"d", "shape; 1 makes it MnMolecular", Trait::shape},
                           {"k", "rate, above 0", Trait::rate}},
            .notes = "For x < xc there is no value unless d is a whole number: bound xc from above by the "
                     "least x of the data. The derivatives, and so a fit, fail for k <= 0 and d < 0.")

ANSATZ_MODEL(SWeibull2, BothPaths<value, derivatives>)

ANSATZ_PAGE(SWeibull2, .title = "", .formula = "y = a - (a - y0) exp(-(k x)^d)",
            .parameters = {{"a", "ceiling", Trait::ceiling},
                           {"y0", "value towards x = 0", Trait::constant},
                           {"d", "shape", Trait::shape},
                           {"k", "rate, above 0", Trait::rate}},
            .notes = "Fails for x <= 0, so leave out a point at x = 0, and for k <= 0.")

} // namespace ansatz::sweibull2
