// SLogistic1, SLogistic2, SLogistic3, Slogistic4. The conditions are the same for value and derivatives, but a
// failure of SLogistic1 leaves the derivatives unmarked.
//
// Where the exponential overflows, long before the growth, y is 0 (Slogistic4: P2) and the slopes are those of
// that level. Only the derivatives of SLogistic2 do not look: they give what the formula gives for an infinite
// exponential (0 or no number), status 0, and leave the error indicator set. No model here looks at a pending
// domain error.

#include "protocol/limits.h"

namespace ansatz::slogistic1 {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (P[1] <= 0) return fail(at);
    const Real t = safe_exp(-(x[1] - P[2]) * P[3]);
    if (range_error()) return reaches(at, 0);
    y[1] = P[1] / (t + 1);
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (P[1] <= 0) return fail(at);
    const Real d = x[1] - P[2];
    const Scalar rate = P[3];
    const Real t = safe_exp(-d * rate);
    if (range_error()) return reaches(at, 0, 0, 0, 0);
    const Real share = 1 / (t + 1);
    const Real w = t * P[1] * (share * share);
    y[1] = share * P[1];
    dyda[1] = share;
    dyda[2] = -w * rate;
    dyda[3] = d * w;
    return success;
}

} // namespace

ANSATZ_MODEL(SLogistic1, OnePath<value, derivatives>)

ANSATZ_PAGE(SLogistic1, .title = "Logistic growth, by its ceiling, its centre and its rate",
            .formula = "y = a/(1 + exp(-(x - xc) k))",
            .parameters = {{"a", "ceiling", Trait::ceiling, positive},
                           {"xc", "centre: x of half the ceiling", Trait::position},
                           {"k", "rate, 1/(unit of x)", Trait::rate}},
            .typical = {{8, 4, 1.5}, 0, 8}, .known_as = "logistic growth, Verhulst growth",
            .source = "Verhulst, 1838", .notes = "Fails for a <= 0. Boltzman with A1 = 0 and dx = 1/k.")

} // namespace ansatz::slogistic1

namespace ansatz::slogistic2 {
namespace {

bool outside_domain(const Scalar* P) {
    return P[2] <= 0 || P[2] <= P[1] || P[1] == 0 || P[3] <= 0;
}

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (outside_domain(P)) return fail(at);
    const Real t = safe_exp(P[3] * -4 * x[1] / P[2]);
    if (range_error()) return reaches(at, 0);
    y[1] = P[2] / ((P[2] - P[1]) * t / P[1] + 1);
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (outside_domain(P)) return fail(at, 1, 2, 3);
    const Scalar initial = P[1], ceiling = P[2], rate = P[3];
    const Real time = x[1];
    const Real t = safe_exp(rate * -4 * time / ceiling); // an overflow goes through
    const Scalar left = ceiling - initial;
    const Real s = left * t / initial + 1;
    const Real t4 = 4 * t;
    y[1] = ceiling / s;
    dyda[1] = -((-left * t / initial - t) * ceiling / initial / s / s);
    dyda[2] = (1 - (left * t4 * rate * time / initial / ceiling / ceiling + t / initial) * ceiling / s) / s;
    dyda[3] = t4 * left * time / initial / s / s;
    return success;
}

} // namespace

ANSATZ_MODEL(SLogistic2, OnePath<value, derivatives>)

ANSATZ_PAGE(SLogistic2, .title = "Logistic growth, by its value at x = 0 and its greatest growth rate",
            .formula = "y = a/(1 + (a/y0 - 1) exp(-4 v x/a))",
            .parameters = {{"y0", "value at x = 0", Trait::level, positive},
                           {"a", "ceiling, above y0", Trait::ceiling, positive},
                           {"v", "greatest growth rate: the slope at y = a/2", Trait::slope, positive}},
            .typical = {{0.1, 8, 2.5}, 0, 8},
            .departures = {{1, "-4 v x/a > 709"}, {2, "-4 v x/a > 709"}, {3, "-4 v x/a > 709"}},
            .same_as = "SLogistic1(a = a, xc = a ln(a/y0 - 1)/(4 v), k = 4 v/a)", .known_as = "logistic growth",
            .source = "Verhulst, 1838",
            .notes = "Fails for a <= 0, a <= y0, y0 = 0 and v <= 0. A y0 < 0 is computed; the curve then has a "
                     "pole right of x = 0.")

} // namespace ansatz::slogistic2

namespace ansatz::slogistic3 {
namespace {

bool outside_domain(const Scalar* P) {
    return P[1] <= 0 || P[2] <= 0 || P[3] <= 0;
}

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (outside_domain(P)) return fail(at);
    const Real t = safe_exp(-x[1] * P[3]);
    if (range_error()) return reaches(at, 0);
    y[1] = P[1] / (t * P[2] + 1);
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (outside_domain(P)) return fail(at, 1, 2, 3);
    const Scalar scale = P[2];
    const Real time = x[1];
    const Real t = safe_exp(-time * P[3]);
    if (range_error()) return reaches(at, 0, 0, 0, 0);
    const Real share = 1 / (t * scale + 1);
    const Real level = share * P[1];
    const Real by_scale = -t * (level * share);
    y[1] = level;
    dyda[1] = share;
    dyda[2] = by_scale;
    dyda[3] = -by_scale * scale * time;
    return success;
}

} // namespace

ANSATZ_MODEL(SLogistic3, OnePath<value, derivatives>)

ANSATZ_PAGE(SLogistic3, .title = "Logistic growth, by what is missing at x = 0",
            .formula = "y = a/(1 + b exp(-k x))",
            .parameters = {{"a", "ceiling", Trait::ceiling, positive},
                           {"b", "scale: y is a/(1 + b) at x = 0", Trait::coefficient, positive},
                           {"k", "rate", Trait::rate, positive}},
            .typical = {{8, 60, 1.2}, 0, 8}, .same_as = "SLogistic1(a = a, xc = ln(b)/k, k = k)",
            .known_as = "logistic growth", .source = "Verhulst, 1838",
            .notes = "Fails unless all three are above 0. Half the ceiling is reached at x = ln(b)/k.")

} // namespace ansatz::slogistic3

namespace ansatz::slogistic4 {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Real t = safe_exp(-(x[1] - P[3]) * P[4]);
    if (range_error()) return reaches(at, P[2]);
    y[1] = (P[1] - P[2]) / (t + 1) + P[2];
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Real d = x[1] - P[3];
    const Scalar rate = P[4];
    const Real t = safe_exp(-d * rate);
    if (range_error()) return reaches(at, P[2], 0, 1, 0, 0);
    const Scalar span = P[1] - P[2];
    const Real share = 1 / (t + 1);
    const Real w = t * span * (share * share);
    y[1] = share * span + P[2];
    dyda[1] = share;
    dyda[2] = 1 - share;
    dyda[3] = -w * rate;
    dyda[4] = d * w;
    return success;
}

} // namespace

ANSATZ_MODEL(Slogistic4, OnePath<value, derivatives>)

ANSATZ_PAGE(Slogistic4, .title = "Logistic growth from one level to another",
            .formula = "y = A2 + (A1 - A2)/(1 + exp(-(x - x0) k))",
            .parameters = {{"A1", "level at large x, for k > 0", Trait::level},
                           {"A2", "level at small x", Trait::level},
                           {"x0", "centre: x half-way between the levels", Trait::position},
                           {"k", "rate, 1/(unit of x)", Trait::rate}},
            .typical = {{8, 1, 4, 1.5}, 0, 8}, .same_as = "Boltzman(A1 = A1, A2 = A2, x0 = x0, dx = -1/k)",
            .notes = "Mind the order of the levels: for k > 0 the curve starts at A2 and ends at A1. "
                     "Exchanging them and changing the sign of k gives the same curve.")

} // namespace ansatz::slogistic4
