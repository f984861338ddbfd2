// Exponential decay and growth from x = 0: ExpDec1, ExpDec2, ExpDec3, ExpGro1, ExpGro2, ExpGro3.
//
//   decay    y = P1 + sum over the terms of  A e^(-x/T)
//   growth   y = P1 + sum over the terms of  A e^( x/T)
//
//   P1 offset (unit of y); then per term two parameters: amplitude A (unit of y), the height of the term at
//   x = 0, and time T (unit of x): P2, P3, then P4, P5, then P6, P7. A negative time is accepted: a decay then
//   grows, a growth decays.
//
//   Fails where a time is 0 and on an overflow. The value of ExpGro1 also fails where x/P3 > 1000, an overflow
//   anyway unless the quotient is infinite. Where all amplitudes are 0 the value is P1, whatever the times; the
//   derivatives still fail for a time of 0. A failure of the derivatives leaves the slots as far as they were
//   written.

#include "protocol/forms.h"

namespace ansatz::from_zero {
namespace {

constexpr int decay = -1, growth = 1;

constexpr int amplitude(int term) {
    return 2 * term;
}
constexpr int time(int term) {
    return 2 * term + 1;
}

template <int terms> bool no_amplitude(const double* P) {
    for (int i = 1; i <= terms; ++i) {
        if (!(P[amplitude(i)] == 0)) return false;
    }
    return true;
}

template <int terms> bool zero_time(const double* P) {
    for (int i = 1; i <= terms; ++i) {
        if (P[time(i)] == 0) return true;
    }
    return false;
}

template <int direction, int terms> Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (no_amplitude<terms>(P)) {
        y[1] = P[1];
        return success;
    }
    if (zero_time<terms>(P)) return fail(at);
    double sum = P[1];
    for (int i = 1; i <= terms; ++i) sum += P[amplitude(i)] * safe_exp(direction * x[1] / P[time(i)]);
    if (math_error()) return fail(at);
    y[1] = sum;
    return success;
}

Status gro1_value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (P[2] != 0 && x[1] / P[3] > 1000) return fail(at);
    return value<growth, 1>(at);
}

/// All but the test of the times.
template <int direction, int terms> Status slopes(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    double u[terms + 1], e[terms + 1];
    for (int i = 1; i <= terms; ++i) {
        u[i] = direction * x[1] / P[time(i)];
        dyda[amplitude(i)] = e[i] = safe_exp(u[i]);
        if (range_error()) return fail(at); // a pending domain error passes
    }
    dyda[1] = 1;
    double sum = P[1];
    for (int i = 1; i <= terms; ++i) {
        const double A = P[amplitude(i)], T = P[time(i)];
        dyda[time(i)] = -u[i] * A * e[i] / T;
        sum += A * e[i];
    }
    y[1] = sum;
    return success;
}

template <int direction, int terms> Status derivatives(const Point& at) {
    if (zero_time<terms>(at.P)) return fail(at);
    return slopes<direction, terms>(at);
}

/// Fails on a pending domain error too.
Status dec1_derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (P[3] == 0) return fail(at);
    dyda[1] = 1;
    const double e = safe_exp(-x[1] / P[3]);
    dyda[2] = e;
    if (math_error()) return fail(at);
    dyda[3] = x[1] * P[2] * e / (P[3] * P[3]);
    y[1] = e * P[2] + P[1];
    return success;
}

/// The slot of the offset is written before the exponentials: it stays 1 when one of them overflows.
Status dec2_derivatives(const Point& at) {
    if (zero_time<2>(at.P)) return fail(at);
    at.dyda[1] = 1;
    return slopes<decay, 2>(at);
}

} // namespace

ANSATZ_MODEL(ExpDec1, BothPaths<value<decay, 1>, dec1_derivatives>)

ANSATZ_PAGE(ExpDec1, .title = "", .formula = "y = y0 + A1 exp(-x/t1)",
            .parameters = {{"y0", "offset", Trait::offset},
                           {"A1", "amplitude, height above the offset at x = 0", Trait::amplitude},
                           {"t1", "decay time, unit of x; half-life t1 ln 2", Trait::constant}},
            .notes = "Fails for t1 = 0 and where the exponential overflows. A negative t1 makes it a growth.")

ANSATZ_MODEL(ExpDec2, BothPaths<value<decay, 2>, dec2_derivatives>)

ANSATZ_PAGE(ExpDec2, .title = "", .formula = "y = y0 + A1 exp(-x/t1) + A2 exp(-x/t2)",
            .parameters = {{"y0", "offset", Trait::offset},
                           {"A1", "first amplitude, at x = 0", Trait::constant},
                           {"t1", "first decay time, unit of x", Trait::constant},
                           {"A2", "second amplitude", Trait::constant},
                           {"t2", "second decay time", Trait::constant}},
            .notes = "Fails for a time of 0 and where an exponential overflows. Negative times are accepted. "
                     "Start a fit with times that differ.")

ANSATZ_MODEL(ExpDec3, BothPaths<value<decay, 3>, derivatives<decay, 3>>)

ANSATZ_PAGE(ExpDec3, .title = "", .formula = "y = y0 + A1 exp(-x/t1) + A2 exp(-x/t2) + A3 exp(-x/t3)",
            .parameters = {{"y0", "offset", Trait::offset},
                           {"A1", "first amplitude, at x = 0", Trait::constant},
                           {"t1", "first decay time, unit of x", Trait::constant},
                           {"A2", "second amplitude", Trait::constant},
                           {"t2", "second decay time", Trait::constant},
                           {"A3", "third amplitude", Trait::constant},
                           {"t3", "third decay time", Trait::constant}},
            .notes = "Fails for a time of 0 and where an exponential overflows. Negative times are accepted. "
                     "Start a fit with times that differ by factors: three terms are hard to tell apart.")

ANSATZ_MODEL(ExpGro1, BothPaths<gro1_value, derivatives<growth, 1>>)

ANSATZ_PAGE(ExpGro1, .title = "", .formula = "y = y0 + A1 exp(x/t1)",
            .parameters = {{"y0", "offset", Trait::offset},
                           {"A1", "amplitude, height above the offset at x = 0", Trait::amplitude},
                           {"t1", "growth time, unit of x; doubling time t1 ln 2", Trait::constant}},
            .notes = "Fails for t1 = 0 and where the exponential overflows. A negative t1 makes it a decay.")

ANSATZ_MODEL(ExpGro2, BothPaths<value<growth, 2>, derivatives<growth, 2>>)

ANSATZ_PAGE(ExpGro2, .title = "", .formula = "y = y0 + A1 exp(x/t1) + A2 exp(x/t2)",
            .parameters = {{"y0", "offset", Trait::offset},
                           {"A1", "first amplitude, at x = 0", Trait::constant},
                           {"t1", "first growth time, unit of x", Trait::constant},
                           {"A2", "second amplitude", Trait::constant},
                           {"t2", "second growth time", Trait::constant}},
            .notes = "Fails for a time of 0 and where an exponential overflows. Negative times are accepted. "
                     "Start a fit with times that differ.")

ANSATZ_MODEL(ExpGro3, BothPaths<value<growth, 3>, derivatives<growth, 3>>)

ANSATZ_PAGE(ExpGro3, .title = "", .formula = "y = y0 + A1 exp(x/t1) + A2 exp(x/t2) + A3 exp(x/t3)",
            .parameters = {{"y0", "offset", Trait::offset},
                           {"A1", "first amplitude, at x = 0", Trait::constant},
                           {"t1", "first growth time, unit of x", Trait::constant},
                           {"A2", "second amplitude", Trait::constant},
                           {"t2", "second growth time", Trait::constant},
                           {"A3", "third amplitude", Trait::constant},
                           {"t3", "third growth time", Trait::constant}},
            .notes = "Fails for a time of 0 and where an exponential overflows. Negative times are accepted. "
                     "Start a fit with times that differ by factors.")

} // namespace ansatz::from_zero
