// Competition1 and Competition2, and with the first the export Boltzman1, the same curve rising, which has no
// name in the catalogue. Where a power overflows, some 300 decades out, y is the level P2 with the slopes of
// that level; for Competition2 even while the other site still contributes. A pending domain error gives the
// value that level too; the derivatives pass it by. The value fails for nParams <= 0.

#include "protocol/limits.h"

namespace ansatz::one_site {
namespace {

template <int direction> Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (n <= 0) return fail(at);
    const Real t = power_of_ten(direction * (x[1] - P[3]));
    if (math_error()) return reaches(at, P[2]);
    y[1] = (P[1] - P[2]) / (t + 1) + P[2];
    return success;
}

template <int direction> Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Real t = power_of_ten(direction * (x[1] - P[3]));
    if (range_error()) return reaches(at, P[2], 0, 1, 0);
    const Real s = t + 1;
    const Real share = 1 / s, rest = 1 - share;
    const Scalar span = P[1] - P[2];
    y[1] = span / s + P[2];
    dyda[1] = share;
    dyda[2] = rest;
    dyda[3] = span * share * rest * (direction * ln10);
    return success;
}

} // namespace

ANSATZ_MODEL(Boltzman1, OnePath<value<-1>, derivatives<-1>>)

ANSATZ_MODEL(Competition1, OnePath<value<+1>, derivatives<+1>>)

ANSATZ_PAGE(Competition1, .title = "Competitive binding to one site, falling over the logarithm of the dose",
            .formula = "y = bottom + (top - bottom)/(1 + 10^(x - logIC50))",
            .parameters = {{"top", "level without competitor", Trait::level},
                           {"bottom", "level at large doses", Trait::level},
                           {"logIC50", "decadic logarithm of the half-way dose", Trait::log_position}},
            .typical = {{10, 1, -6}, -9, -3}, .scales = Scales::y_only,
            .same_as = "Boltzman(A1 = top, A2 = bottom, x0 = logIC50, dx = 1/ln(10))",
            .known_as = "one-site competition, inhibition curve",
            .notes = "x is the decadic logarithm of the dose. The steepness is fixed: one site.")

} // namespace ansatz::one_site

namespace ansatz::competition2 {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (n <= 0) return fail(at);
    const Real s1 = power_of_ten(x[1] - P[3]) + 1;
    const Real s2 = power_of_ten(x[1] - P[4]) + 1;
    if (math_error()) return reaches(at, P[2]);
    y[1] = (P[5] / s1 + (1 - P[5]) / s2) * (P[1] - P[2]) + P[2];
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Real s1 = power_of_ten(x[1] - P[3]) + 1;
    const Real s2 = power_of_ten(x[1] - P[4]) + 1;
    if (range_error()) return reaches(at, P[2], 0, 1, 0, 0, 0);
    const Scalar span = P[1] - P[2], first = P[5], second = 1 - P[5];
    const Real d1 = 1 / s1, d2 = 1 / s2;
    const Real f = first / s1 + second / s2;
    y[1] = f * span + P[2];
    dyda[1] = f;
    dyda[2] = 1 - f;
    dyda[3] = span * first * (1 - d1) * ln10 / s1;
    dyda[4] = ln10 * (1 - d2) * second * span / s2;
    dyda[5] = (d1 - d2) * span;
    return success;
}

} // namespace

ANSATZ_MODEL(Competition2, OnePath<value, derivatives, Answers{.probe = true}>)

ANSATZ_PAGE(
    Competition2, .title = "Competitive binding to two kinds of site, falling over the logarithm of the dose",
    .formula = "y = bottom + (top - bottom) (f/(1 + 10^(x - logIC50_1)) + (1 - f)/(1 + 10^(x - logIC50_2)))",
    .parameters = {{"top", "level without competitor", Trait::level},
                   {"bottom", "level at large doses", Trait::level},
                   {"logIC50_1", "decadic logarithm of the half-way dose of the first site",
                    Trait::log_position},
                   {"logIC50_2", "the same of the second site", Trait::log_position},
                   {"f", "fraction of the first site", Trait::fraction, from_to(0, 1)}},
    .typical = {{10, 1, -8, -5, 0.4}, -11, -2}, .scales = Scales::y_only,
    .same_as = "DoubleBoltzmann(y0 = bottom, A = top - bottom, f = f, x01 = logIC50_1, x02 = logIC50_2, dx1 = "
               "1/ln(10), dx2 = 1/ln(10))",
    .known_as = "two-site competition",
    .notes = "x is the decadic logarithm of the dose. The sites may trade places, with f becoming 1 - f; with "
             "equal starts for both a fit cannot tell them apart.")

} // namespace ansatz::competition2
