// Response1 and Response2. What each tests differs between value and derivatives. Response1 wants nParams > 0,
// P4 != 0 and P2 > P1 for the value, but for the derivatives only a slope of at least 1e-18 in size (y alone is
// marked). Response2 wants nParams > 0 and plateaus not below the base, for the value only.
//
// An overflowing power, some 300 decades out: Response1 is then at its lower level, with the slopes of the
// upper one; a pending domain error gives the value the same level, and the derivatives pass it by. Response2
// looks for errors before it takes its powers: one left pending by the caller makes y = P2 + P3, while an
// overflow of its own goes unnoticed, gives the right value and leaves the error indicator set after a status
// of 0. The derivatives do look: there an overflow makes y = P2 + P3 with made-up slopes.

#include "protocol/limits.h"

namespace ansatz::response1 {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (n <= 0 || P[4] == 0 || P[2] <= P[1]) return fail(at);
    const Real t = power_of_ten((P[3] - x[1]) * P[4]);
    if (math_error()) return reaches(at, P[1]);
    y[1] = (P[2] - P[1]) / (t + 1) + P[1];
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Scalar slope = P[4];
    if (std::fabs(slope) < 1e-18) return fail(at);
    const Real u = P[3] - x[1];
    const Real t = power_of_ten(u * slope);
    if (range_error()) return reaches(at, P[1], 0, 1, 0, 0);
    const Real s = t + 1;
    const Real share = 1 / s, rest = 1 - share;
    const Scalar span = P[2] - P[1];
    const Real common = -ln10 * span * rest * share;
    y[1] = span / s + P[1];
    dyda[1] = rest;
    dyda[2] = share;
    dyda[3] = common * slope;
    dyda[4] = common * u;
    return success;
}

} // namespace

ANSATZ_MODEL(Response1, OnePath<value, derivatives>)

ANSATZ_PAGE(Response1, .title = "Sigmoid over the logarithm of a dose, with its steepness",
            .formula = "y = bottom + (top - bottom)/(1 + 10^((logEC50 - x) p))",
            .parameters = {{"bottom", "lower level", Trait::level},
                           {"top", "upper level; must be above bottom", Trait::level},
                           {"logEC50", "decadic logarithm of the half-way dose", Trait::log_position},
                           {"p", "steepness, the Hill slope; negative: the curve falls", Trait::exponent,
                            not_zero}},
            .typical = {{1, 10, -6, 1.2}, -9, -3}, .scales = Scales::y_only,
            .departures = {{1, "(logEC50 - x) p > 308"}, {2, "(logEC50 - x) p > 308"}},
            .same_as = "Boltzman(A1 = top, A2 = bottom, x0 = logEC50, dx = -1/(p ln(10)))",
            .known_as = "dose-response curve with variable slope",
            .notes = "x is the decadic logarithm of the dose. Fails unless top > bottom; let p carry the "
                     "direction. Fails for p = 0.")

} // namespace ansatz::response1

namespace ansatz::response2 {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (n <= 0 || P[2] < P[1] || P[3] < P[1]) return fail(at);
    if (math_error()) return reaches(at, P[2] + P[3]); // a pending error; those of the powers are not looked at
    const Real d1 = 1 / (power_of_ten((x[1] - P[4]) * P[6]) + 1);
    const Real d2 = 1 / (power_of_ten((P[5] - x[1]) * P[7]) + 1);
    y[1] = (P[2] - P[1]) * d1 + P[1] + (P[3] - P[1]) * d2;
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Real u1 = x[1] - P[4], u2 = P[5] - x[1];
    const Scalar slope1 = P[6], slope2 = P[7];
    const Real t1 = power_of_ten(u1 * slope1);
    const Real t2 = power_of_ten(u2 * slope2);
    if (range_error()) return reaches(at, P[3] + P[2], 1, 0, 0, 1, 1, -1, 1);
    const Real d1 = 1 / (t1 + 1), d2 = 1 / (t2 + 1);
    const Scalar left = P[2] - P[1], right = P[3] - P[1];
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

ANSATZ_MODEL(Response2, OnePath<value, derivatives>)

ANSATZ_PAGE(
    Response2, .title = "Bell or dip over the logarithm of a dose: two sigmoids with a base in common",
    .formula = "y = y0 + (A1 - y0)/(1 + 10^((x - x1) p1)) + (A2 - y0)/(1 + 10^((x2 - x) p2))",
    .parameters = {{"y0", "base", Trait::level},
                   {"A1", "plateau at small x, for p1 > 0; not below y0", Trait::level},
                   {"A2", "plateau at large x, for p2 > 0; not below y0", Trait::level},
                   {"x1", "logarithm of the dose half-way between A1 and y0", Trait::log_position},
                   {"x2", "logarithm of the dose half-way between y0 and A2", Trait::log_position},
                   {"p1", "steepness at x1", Trait::exponent},
                   {"p2", "steepness at x2", Trait::exponent}},
    .typical = {{1, 8, 5, -7, -4, 1, 1.3}, -10, -1}, .scales = Scales::y_only,
    .departures = {{1, "an exponent > 308"},
                   {2, "an exponent > 308"},
                   {3, "an exponent > 308"},
                   {4, "an exponent > 308"},
                   {5, "an exponent > 308"},
                   {6, "an exponent > 308"},
                   {7, "an exponent > 308"}},
    .same_as = "DoubleBoltzmann(y0 = y0, A = A1 + A2 - 2 y0, f = (A1 - y0)/(A1 + A2 - 2 y0), x01 = x1, x02 = "
               "x2, dx1 = 1/(p1 ln(10)), dx2 = -1/(p2 ln(10)))",
    .known_as = "bell-shaped dose-response curve",
    .notes = "x is the decadic logarithm of the dose. For positive slopes a dip to y0 where x1 < x2, "
             "and a bell up to A1 + A2 - y0 where x2 < x1. Fails for A1 < y0 and for A2 < y0. The derivatives "
             "are made up where an exponent, (x - x1) p1 or (x2 - x) p2, exceeds 308: bound steep slopes.")

} // namespace ansatz::response2
