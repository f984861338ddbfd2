// Exponential association in two phases: ExpAssoc, ExpAssoc2.
//
//   y = P1 + P2 (1 - e^(-x/P3)) + P4 (1 - e^(-x/P5))
//
//   P1 baseline at x = 0, P2 and P4 the rise of each phase (unit of y), P3 and P5 its time constant (unit of
//   x). A negative time constant is accepted: the phase then falls ever faster.
//
//   Fails where a time constant is 0 and on an overflow. A failure of the derivatives leaves the slots as far
//   as they were written. The derivatives fail for every time constant of 0, the values forgive some:
//
//   ExpAssoc    skips each phase of amplitude 0, whatever its time constant. It leaves the second phase out
//               below 4 parameters, though its derivatives do not, and fails for nParams <= 0.
//   ExpAssoc2   is P1 where both amplitudes are 0, whatever the time constants; a single amplitude of 0
//               forgives nothing.

#include "protocol/forms.h"

namespace ansatz::association {
namespace {

Status assoc_value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (n <= 0) return fail(at);
    double sum = P[1];
    const int phases = n > 3 ? 2 : 1;
    for (int i = 1; i <= phases; ++i) {
        const double A = P[2 * i], T = P[2 * i + 1];
        if (A == 0) continue;
        if (T == 0) return fail(at);
        sum += A * (1 - safe_exp(-x[1] / T));
        if (math_error()) return fail(at);
    }
    y[1] = sum;
    return success;
}

Status assoc2_value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (P[2] == 0 && P[4] == 0) {
        y[1] = P[1];
        return success;
    }
    if (P[3] == 0 || P[5] == 0) return fail(at);
    const double sum = P[1] + P[2] * (1 - safe_exp(-x[1] / P[3])) + P[4] * (1 - safe_exp(-x[1] / P[5]));
    if (math_error()) return fail(at);
    y[1] = sum;
    return success;
}

/// The derivatives but for the slots of the time constants.
[[gnu::always_inline]] inline Status rises(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (P[3] == 0 || P[5] == 0) return fail(at);
    dyda[1] = 1;
    dyda[2] = 1 - safe_exp(-x[1] / P[3]);
    if (math_error()) return fail(at);
    dyda[4] = 1 - safe_exp(-x[1] / P[5]);
    if (math_error()) return fail(at);
    y[1] = P[2] * dyda[2] + P[1] + P[4] * dyda[4];
    return success;
}

Status assoc_derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (const Status status = rises(at); status != success) return status;
    dyda[3] = -x[1] / P[3] * P[2] * (1 - dyda[2]) / P[3];
    dyda[5] = P[4] * (-x[1] / P[5]) * (1 - dyda[4]) / P[5];
    return success;
}

Status assoc2_derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (const Status status = rises(at); status != success) return status;
    dyda[3] = (1 - dyda[2]) * (-x[1] / P[3]) * P[2] / P[3];
    dyda[5] = -x[1] / P[5] * P[4] * (1 - dyda[4]) / P[5];
    return success;
}

} // namespace

ANSATZ_MODEL(ExpAssoc, BothPaths<assoc_value, assoc_derivatives>)

ANSATZ_PAGE(ExpAssoc, .title = "", .formula = "y = y0 + A1 (1 - exp(-x/t1)) + A2 (1 - exp(-x/t2))",
            .parameters = {{"y0", "baseline, the value at x = 0", Trait::base},
                           {"A1", "rise of the first phase", Trait::constant},
                           {"t1", "its time constant, unit of x", Trait::constant},
                           {"A2", "rise of the second phase", Trait::constant},
                           {"t2", "its time constant", Trait::constant}},
            .notes = "Fails for a time constant of 0 and where an exponential overflows. Start a fit with "
                     "times that differ.")

ANSATZ_MODEL(ExpAssoc2, BothPaths<assoc2_value, assoc2_derivatives>)

ANSATZ_PAGE(ExpAssoc2, .title = "", .formula = "y = y0 + A1 (1 - exp(-x/t1)) + A2 (1 - exp(-x/t2))",
            .parameters = {{"y0", "baseline, the value at x = 0", Trait::base},
                           {"A1", "rise of the first phase", Trait::constant},
                           {"t1", "its time constant, unit of x", Trait::constant},
                           {"A2", "rise of the second phase", Trait::constant},
                           {"t2", "its time constant", Trait::constant}},
            .notes = "The curve of ExpAssoc, and it fails where that does; the two differ only in when an "
                     "amplitude of 0 excuses a time constant of 0. Start a fit with times that differ.")

} // namespace ansatz::association
