// SLogistic1, SLogistic2, SLogistic3, Slogistic4: logistic growth over time, written with a rate.
//
//   SLogistic1   y = P1 / (1 + e^(-(x - P2) P3))
//     P1 ceiling, P2 time of half the ceiling, P3 rate (1 / unit of x)
//   SLogistic2   y = P2 / (1 + ((P2 - P1)/P1) e^(-4 P3 x / P2))
//     P1 value at x = 0, P2 ceiling, P3 greatest growth rate (unit of y per unit of x)
//   SLogistic3   y = P1 / (1 + P2 e^(-P3 x))
//     P1 ceiling, P2 scale (how many times the value at 0 is missing there), P3 rate
//   Slogistic4   y = P2 + (P1 - P2) / (1 + e^(-(x - P3) P4))
//     P1 level approached late, P2 level left early, P3 centre, P4 rate; a negative rate swaps the ends
//
//   Each has conditions of its own, the same for value and derivatives:
//     SLogistic1 fails for P1 <= 0; the derivatives are then not marked.
//     SLogistic2 fails for P2 <= 0, P2 <= P1, P1 == 0 and P3 <= 0. An initial value below 0 is computed; the
//       curve then has a pole.
//     SLogistic3 fails for P1 <= 0, P2 <= 0 and P3 <= 0.
//     Slogistic4 tests nothing.
//
//   Where the exponential overflows, long before the growth, y is 0 (Slogistic4: P2) and the slopes are those
//   of that level. Only the derivatives of SLogistic2 do not look: they give what the formula gives for an
//   infinite exponential (0 or no number), status 0, and leave the error indicator set. No model here looks at
//   a pending domain error.

#include "protocol/limits.h"

namespace ansatz::slogistic1 {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (P[1] <= 0) return fail(at);
    const double t = safe_exp(-(x[1] - P[2]) * P[3]);
    if (range_error()) return reaches(at, 0);
    y[1] = P[1] / (t + 1);
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (P[1] <= 0) return fail(at);
    const double d = x[1] - P[2], rate = P[3];
    const double t = safe_exp(-d * rate);
    if (range_error()) return reaches(at, 0, 0, 0, 0);
    const double share = 1 / (t + 1);
    const double w = t * P[1] * (share * share);
    y[1] = share * P[1];
    dyda[1] = share;
    dyda[2] = -w * rate;
    dyda[3] = d * w;
    return success;
}

} // namespace
} // namespace ansatz::slogistic1

namespace ansatz::slogistic2 {
namespace {

bool outside_domain(const double* P) {
    return P[2] <= 0 || P[2] <= P[1] || P[1] == 0 || P[3] <= 0;
}

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (outside_domain(P)) return fail(at);
    const double t = safe_exp(P[3] * -4 * x[1] / P[2]);
    if (range_error()) return reaches(at, 0);
    y[1] = P[2] / ((P[2] - P[1]) * t / P[1] + 1);
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (outside_domain(P)) return fail(at, 1, 2, 3);
    const double initial = P[1], ceiling = P[2], rate = P[3], time = x[1];
    const double t = safe_exp(rate * -4 * time / ceiling); // an overflow goes through
    const double left = ceiling - initial;
    const double s = left * t / initial + 1;
    const double t4 = 4 * t;
    y[1] = ceiling / s;
    dyda[1] = -((-left * t / initial - t) * ceiling / initial / s / s);
    dyda[2] = (1 - (left * t4 * rate * time / initial / ceiling / ceiling + t / initial) * ceiling / s) / s;
    dyda[3] = t4 * left * time / initial / s / s;
    return success;
}

} // namespace
} // namespace ansatz::slogistic2

namespace ansatz::slogistic3 {
namespace {

bool outside_domain(const double* P) {
    return P[1] <= 0 || P[2] <= 0 || P[3] <= 0;
}

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (outside_domain(P)) return fail(at);
    const double t = safe_exp(-x[1] * P[3]);
    if (range_error()) return reaches(at, 0);
    y[1] = P[1] / (t * P[2] + 1);
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (outside_domain(P)) return fail(at, 1, 2, 3);
    const double scale = P[2], time = x[1];
    const double t = safe_exp(-time * P[3]);
    if (range_error()) return reaches(at, 0, 0, 0, 0);
    const double share = 1 / (t * scale + 1);
    const double level = share * P[1];
    const double by_scale = -t * (level * share);
    y[1] = level;
    dyda[1] = share;
    dyda[2] = by_scale;
    dyda[3] = -by_scale * scale * time;
    return success;
}

} // namespace
} // namespace ansatz::slogistic3

namespace ansatz::slogistic4 {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const double t = safe_exp(-(x[1] - P[3]) * P[4]);
    if (range_error()) return reaches(at, P[2]);
    y[1] = (P[1] - P[2]) / (t + 1) + P[2];
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const double d = x[1] - P[3], rate = P[4];
    const double t = safe_exp(-d * rate);
    if (range_error()) return reaches(at, P[2], 0, 1, 0, 0);
    const double span = P[1] - P[2];
    const double share = 1 / (t + 1);
    const double w = t * span * (share * share);
    y[1] = share * span + P[2];
    dyda[1] = share;
    dyda[2] = 1 - share;
    dyda[3] = -w * rate;
    dyda[4] = d * w;
    return success;
}

} // namespace

ANSATZ_MODEL(SLogistic1, OnePath<slogistic1::value, slogistic1::derivatives>)

ANSATZ_PAGE(SLogistic1, .title = "", .formula = "y = a/(1 + exp(-(x - xc) k))",
            .parameters = {{"a", "ceiling, above 0", Trait::ceiling},
                           {"xc", "centre: x of half the ceiling", Trait::position},
                           {"k", "rate, 1/(unit of x)", Trait::rate}},
            .notes = "Fails for a <= 0.")

ANSATZ_MODEL(SLogistic2, OnePath<slogistic2::value, slogistic2::derivatives>)

ANSATZ_PAGE(SLogistic2, .title = "", .formula = "y = a/(1 + (a/y0 - 1) exp(-4 v x/a))",
            .parameters = {{"y0", "value at x = 0", Trait::constant},
                           {"a", "ceiling, above 0 and above y0", Trait::ceiling},
                           {"v", "greatest growth rate: the slope at y = a/2, above 0", Trait::constant}},
            .notes = "Fails for a <= 0, a <= y0, y0 = 0 and v <= 0. A y0 < 0 is computed; the curve then has a "
                     "pole right of x = 0.")

ANSATZ_MODEL(SLogistic3, OnePath<slogistic3::value, slogistic3::derivatives>)

ANSATZ_PAGE(SLogistic3, .title = "", .formula = "y = a/(1 + b exp(-k x))",
            .parameters = {{"a", "ceiling, above 0", Trait::ceiling},
                           {"b", "scale, above 0: y is a/(1 + b) at x = 0", Trait::constant},
                           {"k", "rate, above 0", Trait::rate}},
            .notes = "Fails unless all three are above 0. Half the ceiling is reached at x = ln(b)/k.")

ANSATZ_MODEL(Slogistic4, OnePath<value, derivatives>)

ANSATZ_PAGE(Slogistic4, .title = "", .formula = "y = A2 + (A1 - A2)/(1 + exp(-(x - x0) k))",
            .parameters = {{"A1", "level at large x, for k > 0", Trait::level},
                           {"A2", "level at small x", Trait::level},
                           {"x0", "centre: x half-way between the levels", Trait::position},
                           {"k", "rate, 1/(unit of x)", Trait::rate}},
            .notes = "Mind the order of the levels: for k > 0 the curve starts at A2 and ends at A1. "
                     "Exchanging them and changing the sign of k gives the same curve.")

} // namespace ansatz::slogistic4
