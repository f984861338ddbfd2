// Exponential decay and growth from a start time: ExpDecay1, ExpDecay2, ExpDecay3, Kinetic, ExpGrow1, ExpGrow2.
//
//   decay    y = P1 + sum over the terms of  A e^(-(x - P2)/T)
//   growth   y = P1 + sum over the terms of  A e^( (x - P2)/T)
//
//   P1 baseline (unit of y), P2 start time (unit of x); then per term two parameters: amplitude A (unit of y),
//   the height of the term at x = P2, and time constant T (unit of x): P3, P4, then P5, P6, then P7, P8.
//   But for Kinetic, moving P2 only rescales the amplitudes: hold it fixed in a fit.
//
//   ExpDecay1..3 have as many terms as their names say. Kinetic is a decay that stays at P1 before x = P2; it
//   has no derivatives. Its second term counts with more than 4 parameters, its third with more than 6. The
//   value of ExpGrow2 leaves the second term out below 5 parameters, its derivatives never do.
//
//   The value fails for nParams <= 0, for a time constant <= 0 and on an overflow. A term of amplitude 0 is
//   skipped, whatever its time constant.
//   The derivatives of a decay fail for every time constant <= 0, that of a term of amplitude 0 too, and mark
//   every slot. Those of a growth accept a negative time constant, where the term decays; they fail at 0, and
//   a failure leaves the slots as far as they were written.

#include "protocol/forms.h"

namespace ansatz::from_start {
namespace {

constexpr int decay = -1, growth = 1;

constexpr int amplitude(int term) {
    return 2 * term + 1;
}
constexpr int time_constant(int term) {
    return 2 * term + 2;
}

/// The number of terms is a constant to most callers: inlined, the loop unrolls.
template <int direction> [[gnu::always_inline]] inline Status value(const Point& at, int terms) {
    const auto [n, P, x, y, dyda] = at;
    if (n <= 0) return fail(at);
    double sum = P[1];
    for (int i = 1; i <= terms; ++i) {
        const double A = P[amplitude(i)], T = P[time_constant(i)];
        if (A == 0) continue;
        if (T <= 0) return fail(at);
        sum += A * safe_exp(direction * (x[1] - P[2]) / T);
        if (math_error()) return fail(at);
    }
    y[1] = sum;
    return success;
}

template <int terms> Status decay_value(const Point& at) {
    return value<decay>(at, terms);
}

Status kinetic_value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (n <= 0) return fail(at);
    if (x[1] < P[2]) {
        y[1] = P[1];
        return success;
    }
    return value<decay>(at, n > 6 ? 3 : n > 4 ? 2 : 1);
}

Status grow1_value(const Point& at) {
    return value<growth>(at, 1);
}

Status grow2_value(const Point& at) {
    return value<growth>(at, at.n > 4 ? 2 : 1);
}

template <int terms> Status decay_derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    constexpr int slots = time_constant(terms);
    for (int i = 1; i <= terms; ++i) {
        if (P[time_constant(i)] <= 0) return fail_all(at, slots);
    }
    const double d = x[1] - P[2];
    double sum = P[1], by_start = -0.0; // so that a term of -0 stays -0
    for (int i = 1; i <= terms; ++i) {
        const double A = P[amplitude(i)], T = P[time_constant(i)];
        const double u = d / T, rate = A / T;
        const double e = safe_exp(-u);
        if (range_error()) return fail_all(at, slots); // a pending domain error passes
        dyda[amplitude(i)] = e;
        dyda[time_constant(i)] = terms == 1 ? rate * u * e : e * u * rate;
        by_start += rate * e;
        sum += A * e;
    }
    dyda[1] = 1;
    dyda[2] = by_start;
    y[1] = sum;
    return success;
}

template <int terms> Status growth_derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    for (int i = 1; i <= terms; ++i) {
        if (P[time_constant(i)] == 0) return fail(at);
    }
    dyda[1] = 1;
    const double d = x[1] - P[2];
    double e[terms + 1];
    for (int i = 1; i <= terms; ++i) {
        dyda[amplitude(i)] = e[i] = safe_exp(d / P[time_constant(i)]);
        if (math_error()) return fail(at);
    }
    double sum = P[1], by_start = -0.0; // so that a term of -0 stays -0
    for (int i = 1; i <= terms; ++i) {
        const double term = P[amplitude(i)] * e[i], T = P[time_constant(i)];
        const double slope = term / T;
        dyda[time_constant(i)] = -slope * d / T;
        by_start -= slope;
        sum += term;
    }
    dyda[2] = by_start;
    y[1] = sum;
    return success;
}

} // namespace

ANSATZ_MODEL(ExpDecay1, BothPaths<decay_value<1>, decay_derivatives<1>>)

ANSATZ_PAGE(ExpDecay1, .title = "", .formula = "y = y0 + A1 exp(-(x - x0)/t1)",
            .parameters = {{"y0", "offset", Trait::offset},
                           {"x0", "start time", Trait::constant},
                           {"A1", "amplitude, height above the offset at x = x0", Trait::amplitude},
                           {"t1", "decay time, unit of x; half-life t1 ln 2", Trait::constant}},
            .notes = "Fails for t1 <= 0 and where the exponential overflows. Another x0 only rescales A1: hold "
                     "it fixed in a fit.")

ANSATZ_MODEL(ExpDecay2, BothPaths<decay_value<2>, decay_derivatives<2>>)

ANSATZ_PAGE(ExpDecay2, .title = "", .formula = "y = y0 + A1 exp(-(x - x0)/t1) + A2 exp(-(x - x0)/t2)",
            .parameters = {{"y0", "offset", Trait::offset},
                           {"x0", "start time", Trait::constant},
                           {"A1", "first amplitude, at x = x0", Trait::constant},
                           {"t1", "first decay time, unit of x", Trait::constant},
                           {"A2", "second amplitude", Trait::constant},
                           {"t2", "second decay time", Trait::constant}},
            .notes = "Fails for a time <= 0 and where an exponential overflows. Another x0 only rescales the "
                     "amplitudes: hold it fixed in a fit, and start with times that differ.")

ANSATZ_MODEL(ExpDecay3, BothPaths<decay_value<3>, decay_derivatives<3>>)

ANSATZ_PAGE(ExpDecay3, .title = "",
            .formula = "y = y0 + A1 exp(-(x - x0)/t1) + A2 exp(-(x - x0)/t2) + A3 exp(-(x - x0)/t3)",
            .parameters = {{"y0", "offset", Trait::offset},
                           {"x0", "start time", Trait::constant},
                           {"A1", "first amplitude, at x = x0", Trait::constant},
                           {"t1", "first decay time, unit of x", Trait::constant},
                           {"A2", "second amplitude", Trait::constant},
                           {"t2", "second decay time", Trait::constant},
                           {"A3", "third amplitude", Trait::constant},
                           {"t3", "third decay time", Trait::constant}},
            .notes = "Fails for a time <= 0 and where an exponential overflows. Another x0 only rescales the "
                     "amplitudes: hold it fixed in a fit, and start with times that differ by factors.")

ANSATZ_MODEL(Kinetic, ValueOrNothing<kinetic_value>)

ANSATZ_PAGE(Kinetic, .title = "", .formula = "y = y0 + sum A exp(-(x - x0)/t) for x >= x0, y0 otherwise",
            .parameters = {{"y0", "baseline, before the start and at the end", Trait::base},
                           {"x0", "start time", Trait::constant}},
            .block = {{"A", "amplitude, at x = x0", Trait::amplitude},
                      {"t", "decay time, unit of x", Trait::constant}},
            .block_name = "term", .most_blocks = 3, .components = false, .layout = {.lead = 8},
            .notes = "Fails for a time <= 0. Hold x0 fixed in a fit: between two data points it only rescales "
                     "the amplitudes, and the fit cannot move it across one.")

ANSATZ_MODEL(ExpGrow1, BothPaths<grow1_value, growth_derivatives<1>>)

ANSATZ_PAGE(ExpGrow1, .title = "", .formula = "y = y0 + A1 exp((x - x0)/t1)",
            .parameters = {{"y0", "offset", Trait::offset},
                           {"x0", "start time", Trait::constant},
                           {"A1", "amplitude, height above the offset at x = x0", Trait::amplitude},
                           {"t1", "growth time, unit of x; doubling time t1 ln 2", Trait::constant}},
            .notes = "Fails for t1 <= 0 and where the exponential overflows. Another x0 only rescales A1: hold "
                     "it fixed in a fit.")

ANSATZ_MODEL(ExpGrow2, BothPaths<grow2_value, growth_derivatives<2>>)

ANSATZ_PAGE(ExpGrow2, .title = "", .formula = "y = y0 + A1 exp((x - x0)/t1) + A2 exp((x - x0)/t2)",
            .parameters = {{"y0", "offset", Trait::offset},
                           {"x0", "start time", Trait::constant},
                           {"A1", "first amplitude, at x = x0", Trait::constant},
                           {"t1", "first growth time, unit of x", Trait::constant},
                           {"A2", "second amplitude", Trait::constant},
                           {"t2", "second growth time", Trait::constant}},
            .notes = "Fails for a time <= 0 and where an exponential overflows. Another x0 only rescales the "
                     "amplitudes: hold it fixed in a fit, and start with times that differ.")

} // namespace ansatz::from_start
