// ExpAssoc and ExpAssoc2: exponential association in two phases.
//
// The derivatives fail for every time constant of 0, and leave the slots as far as they were written. The
// values forgive some: ExpAssoc skips each phase of amplitude 0, whatever its time constant; ExpAssoc2 is the
// baseline where both amplitudes are 0, and a single amplitude of 0 forgives nothing. ExpAssoc leaves the
// second phase out of the value below 4 parameters.

#include "protocol/forms.h"

namespace ansatz::exp_assoc {
namespace {

Status assoc_value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (n <= 0) return fail(at);
    Real sum = P[1];
    const int phases = n > 3 ? 2 : 1;
    for (int i = 1; i <= phases; ++i) {
        const Scalar A = P[2 * i], T = P[2 * i + 1];
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
    const Real sum = P[1] + P[2] * (1 - safe_exp(-x[1] / P[3])) + P[4] * (1 - safe_exp(-x[1] / P[5]));
    if (math_error()) return fail(at);
    y[1] = sum;
    return success;
}

/// The derivatives but for the slots of the time constants, for which each row has an order of its own.
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

ANSATZ_PAGE(ExpAssoc, .title = "Exponential association in two phases from a baseline",
            .formula = "y = y0 + A1 (1 - exp(-x/t1)) + A2 (1 - exp(-x/t2))",
            .parameters = {{"y0", "offset, the value at x = 0", Trait::offset},
                           {"A1", "rise of the first phase", Trait::amplitude},
                           {"t1", "its time constant, unit of x", Trait::time, not_zero},
                           {"A2", "rise of the second phase", Trait::amplitude},
                           {"t2", "its time constant, unit of x", Trait::time, not_zero}},
            .typical = {{1, 2, 0.8, 3, 5}, 0, 20},
            .same_as = "ExpDec2(y0 = y0 + A1 + A2, A1 = -A1, t1 = t1, A2 = -A2, t2 = t2)",
            .known_as = "two-phase association",
            .notes = "Fails for a time constant of 0 and where an exponential overflows. A negative time "
                     "constant is accepted: the phase then leaves the baseline ever faster. Start a fit with "
                     "times that differ.")

ANSATZ_MODEL(ExpAssoc2, BothPaths<assoc2_value, assoc2_derivatives>)

ANSATZ_PAGE(ExpAssoc2, .title = "Exponential association in two phases from a baseline, a second form",
            .formula = "y = y0 + A1 (1 - exp(-x/t1)) + A2 (1 - exp(-x/t2))",
            .parameters = {{"y0", "offset, the value at x = 0", Trait::offset},
                           {"A1", "rise of the first phase", Trait::amplitude},
                           {"t1", "its time constant, unit of x", Trait::time, not_zero},
                           {"A2", "rise of the second phase", Trait::amplitude},
                           {"t2", "its time constant, unit of x", Trait::time, not_zero}},
            .typical = {{1, 2, 0.8, 3, 5}, 0, 20},
            .same_as = "ExpDec2(y0 = y0 + A1 + A2, A1 = -A1, t1 = t1, A2 = -A2, t2 = t2)",
            .known_as = "two-phase association",
            .notes = "The curve of ExpAssoc, and it fails where that does; the two differ only in when an "
                     "amplitude of 0 excuses a time constant of 0. Start a fit with times that differ.")

} // namespace ansatz::exp_assoc
