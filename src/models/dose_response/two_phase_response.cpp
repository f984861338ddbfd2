// Competition2, Response2, BiDoseResp: a response with two phases over the decadic logarithm of a dose.
//
//   Competition2   y = P2 + (P1 - P2) [P5 / (1 + 10^(x - P3)) + (1 - P5) / (1 + 10^(x - P4))]
//     P1 top, P2 bottom, P3 and P4 logarithms of the two half-way doses, P5 fraction of the first phase
//   Response2      y = P1 + (P2 - P1) / (1 + 10^((x - P4) P6)) + (P3 - P1) / (1 + 10^((P5 - x) P7))
//     P1 base, P2 and P3 plateaus to the left and right, P4 and P5 logarithms of the doses half-way from each
//     to the base, P6 and P7 slopes there. With positive slopes a dip to the base where P4 < P5, and a bell
//     with its top near P2 + P3 - P1 where P5 < P4.
//   BiDoseResp     y = P1 + (P2 - P1) [P7 / (1 + 10^((P3 - x) P5)) + (1 - P7) / (1 + 10^((P4 - x) P6))]
//     P1 bottom, P2 top, P3 and P4 logarithms of the two half-way doses, P5 and P6 slopes, P7 fraction of the
//     first phase
//
//   They differ in what they test and in what an overflowing power (some 300 decades out) means:
//
//   Competition2 (exported as Boltzman4) fails for nParams <= 0, value only. If either power overflows,
//   y is P2, even while the other phase still contributes.
//
//   Response2 fails, value only, for nParams <= 0 and for a plateau below the base. It looks for errors before
//   it takes its powers: one left pending by the caller makes y = P2 + P3, while an overflow of its own goes
//   unnoticed, gives the right value and leaves the error indicator set behind a status of 0. The derivatives
//   do look: there an overflow makes y = P2 + P3 with made-up slopes.
//
//   BiDoseResp fails on any overflow, marking y only. A slope of 0 has a value; the derivative by it is no
//   number.

#include "protocol/limits.h"

namespace ansatz::competition2 {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (n <= 0) return fail(at);
    const double s1 = power_of_ten(x[1] - P[3]) + 1;
    const double s2 = power_of_ten(x[1] - P[4]) + 1;
    if (math_error()) return reaches(at, P[2]);
    y[1] = (P[5] / s1 + (1 - P[5]) / s2) * (P[1] - P[2]) + P[2];
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const double s1 = power_of_ten(x[1] - P[3]) + 1;
    const double s2 = power_of_ten(x[1] - P[4]) + 1;
    if (range_error()) return reaches(at, P[2], 0, 1, 0, 0, 0);
    const double span = P[1] - P[2], first = P[5], second = 1 - P[5];
    const double d1 = 1 / s1, d2 = 1 / s2;
    const double f = first / s1 + second / s2;
    y[1] = f * span + P[2];
    dyda[1] = f;
    dyda[2] = 1 - f;
    dyda[3] = span * first * (1 - d1) * ln10 / s1;
    dyda[4] = ln10 * (1 - d2) * second * span / s2;
    dyda[5] = (d1 - d2) * span;
    return success;
}

} // namespace
} // namespace ansatz::competition2

namespace ansatz::response2 {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (n <= 0 || P[2] < P[1] || P[3] < P[1]) return fail(at);
    if (math_error()) return reaches(at, P[2] + P[3]); // a pending error; those of the powers are not looked at
    const double d1 = 1 / (power_of_ten((x[1] - P[4]) * P[6]) + 1);
    const double d2 = 1 / (power_of_ten((P[5] - x[1]) * P[7]) + 1);
    y[1] = (P[2] - P[1]) * d1 + P[1] + (P[3] - P[1]) * d2;
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const double u1 = x[1] - P[4], u2 = P[5] - x[1], slope1 = P[6], slope2 = P[7];
    const double t1 = power_of_ten(u1 * slope1);
    const double t2 = power_of_ten(u2 * slope2);
    if (range_error()) return reaches(at, P[3] + P[2], 1, 0, 0, 1, 1, -1, 1);
    const double d1 = 1 / (t1 + 1), d2 = 1 / (t2 + 1);
    const double left = P[2] - P[1], right = P[3] - P[1];
    y[1] = right * d2 + left * d1 + P[1];
    dyda[1] = 1 - d1 - d2;
    dyda[2] = d1;
    dyda[3] = d2;
    dyda[4] = left * (d1 * d1) * slope1 * ln10 * t1;
    dyda[5] = -ln10 * right * (d2 * d2) * slope2 * t2;
    dyda[6] = -ln10 * t1 * (d1 * d1) * left * u1;
    dyda[7] = -ln10 * (d2 * d2) * right * u2 * t2;
    return success;
}

} // namespace
} // namespace ansatz::response2

namespace ansatz::bi_dose_resp {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const double s1 = power_of_ten((P[3] - x[1]) * P[5]) + 1;
    if (math_error()) return fail(at);
    const double s2 = power_of_ten((P[4] - x[1]) * P[6]) + 1;
    if (math_error()) return fail(at);
    y[1] = (P[7] / s1 + (1 - P[7]) / s2) * (P[2] - P[1]) + P[1];
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const double u1 = P[3] - x[1], u2 = P[4] - x[1], slope1 = P[5], slope2 = P[6];
    const double s1 = power_of_ten(u1 * slope1) + 1;
    if (math_error()) return fail(at);
    const double s2 = power_of_ten(u2 * slope2) + 1;
    if (math_error()) return fail(at);
    const double span = P[2] - P[1], first = P[7], second = 1 - P[7];
    const double f = first / s1 + second / s2;
    const double by_centre1 = (1 - s1) * span * slope1 * first * ln10 / (s1 * s1);
    const double by_centre2 = ln10 * (1 - s2) * span * slope2 * second / (s2 * s2);
    y[1] = span * f + P[1];
    dyda[1] = 1 - f;
    dyda[2] = f;
    dyda[3] = by_centre1;
    dyda[4] = by_centre2;
    dyda[5] = u1 * by_centre1 / slope1;
    dyda[6] = u2 * by_centre2 / slope2;
    dyda[7] = (1 / s1 - 1 / s2) * span;
    return success;
}

} // namespace

ANSATZ_MODEL(Competition2, OnePath<competition2::value, competition2::derivatives, Answers{.probe = true}>)

ANSATZ_PAGE(
    Competition2, .title = "",
    .formula = "y = bottom + (top - bottom) (f/(1 + 10^(x - logIC50_1)) + (1 - f)/(1 + 10^(x - logIC50_2)))",
    .parameters = {{"top", "level without competitor", Trait::level},
                   {"bottom", "level at large doses", Trait::level},
                   {"logIC50_1", "decadic logarithm of the half-way dose of the first site", Trait::constant},
                   {"logIC50_2", "the same of the second site", Trait::constant},
                   {"f", "fraction of the first site, 0..1", Trait::fraction}},
    .notes = "x is the decadic logarithm of the dose. The sites may trade places, with f becoming 1 - f; with "
             "equal starts for both a fit cannot tell them apart.")

ANSATZ_MODEL(Response2, OnePath<response2::value, response2::derivatives>)

ANSATZ_PAGE(Response2, .title = "",
            .formula = "y = y0 + (A1 - y0)/(1 + 10^((x - x1) p1)) + (A2 - y0)/(1 + 10^((x2 - x) p2))",
            .parameters = {{"y0", "base", Trait::base},
                           {"A1", "plateau at small x; not below y0", Trait::level},
                           {"A2", "plateau at large x; not below y0", Trait::level},
                           {"x1", "logarithm of the dose half-way between A1 and y0", Trait::constant},
                           {"x2", "logarithm of the dose half-way between y0 and A2", Trait::constant},
                           {"p1", "slope at x1", Trait::slope},
                           {"p2", "slope at x2", Trait::slope}},
            .notes = "x is the decadic logarithm of the dose. For positive slopes a dip to y0 where x1 < x2, "
                     "and a bell up to A1 + A2 - y0 where x2 < x1. Fails for A1 < y0 and for A2 < y0.")

ANSATZ_MODEL(BiDoseResp, OnePath<value, derivatives>)

ANSATZ_PAGE(
    BiDoseResp, .title = "",
    .formula =
        "y = bottom + (top - bottom) (f/(1 + 10^((logEC50_1 - x) p1)) + (1 - f)/(1 + 10^((logEC50_2 - x) p2)))",
    .parameters = {{"bottom", "lower level", Trait::constant},
                   {"top", "upper level", Trait::constant},
                   {"logEC50_1", "decadic logarithm of the half-way dose of the first phase", Trait::constant},
                   {"logEC50_2", "the same of the second phase", Trait::constant},
                   {"p1", "slope of the first phase", Trait::slope},
                   {"p2", "slope of the second phase", Trait::slope},
                   {"f", "fraction of the first phase, 0..1", Trait::fraction}},
    .notes = "x is the decadic logarithm of the dose. A slope of 0 has no derivatives: do not start a fit "
             "there. Fails where an exponent (logEC50 - x) p exceeds 308: bound steep slopes.")

} // namespace ansatz::bi_dose_resp
