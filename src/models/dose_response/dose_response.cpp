// Boltzman1, Competition1, Response1: a response over the decadic logarithm of a dose.
//
//   Boltzman1      y = P2 + (P1 - P2) / (1 + 10^(P3 - x))         rises from P2 to P1
//   Competition1   y = P2 + (P1 - P2) / (1 + 10^(x - P3))         falls from P1 to P2
//     P1 top, P2 bottom, P3 logarithm of the half-way dose; the slope is fixed: one site
//   Response1      y = P1 + (P2 - P1) / (1 + 10^((P3 - x) P4))    rises from P1 to P2
//     P1 bottom, P2 top, P3 logarithm of the half-way dose, P4 slope
//
//   Competition1 is exported as Boltzman3 and Response1 as Boltzman2. Boltzman1 is an export without a
//   name in the catalogue.
//
//   The value fails for nParams <= 0. Response1 further wants P4 != 0 and P2 > P1 for the value, but for the
//   derivatives only a slope of at least 1e-18 in size (y alone is marked).
//
//   Where the power overflows, for common slopes some 300 decades out, y is the bottom level: P2, for Response1
//   P1. The slopes are then 0, 1, 0, ..; for Response1, whose limit is P1, true ones would be 1, 0, 0, 0.
//   A pending domain error gives the value the same level; the derivatives pass it by.

#include "protocol/limits.h"

namespace ansatz {
namespace {

/// One site with a slope of one decade: direction +1 falls with x, -1 rises.
namespace one_site {

template <int direction> Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (n <= 0) return fail(at);
    const double t = power_of_ten(direction * (x[1] - P[3]));
    if (math_error()) return reaches(at, P[2]);
    y[1] = (P[1] - P[2]) / (t + 1) + P[2];
    return success;
}

template <int direction> Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const double t = power_of_ten(direction * (x[1] - P[3]));
    if (range_error()) return reaches(at, P[2], 0, 1, 0);
    const double s = t + 1;
    const double share = 1 / s, rest = 1 - share;
    const double span = P[1] - P[2];
    y[1] = span / s + P[2];
    dyda[1] = share;
    dyda[2] = rest;
    dyda[3] = span * share * rest * (direction * ln10);
    return success;
}

} // namespace one_site

namespace response1 {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (n <= 0 || P[4] == 0 || P[2] <= P[1]) return fail(at);
    const double t = power_of_ten((P[3] - x[1]) * P[4]);
    if (math_error()) return reaches(at, P[1]);
    y[1] = (P[2] - P[1]) / (t + 1) + P[1];
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const double slope = P[4];
    if (std::fabs(slope) < 1e-18) return fail(at);
    const double u = P[3] - x[1];
    const double t = power_of_ten(u * slope);
    if (range_error()) return reaches(at, P[1], 0, 1, 0, 0);
    const double s = t + 1;
    const double share = 1 / s, rest = 1 - share;
    const double span = P[2] - P[1];
    const double common = -ln10 * span * rest * share;
    y[1] = span / s + P[1];
    dyda[1] = rest;
    dyda[2] = share;
    dyda[3] = common * slope;
    dyda[4] = common * u;
    return success;
}

} // namespace response1
} // namespace

ANSATZ_MODEL(Boltzman1, OnePath<one_site::value<-1>, one_site::derivatives<-1>>)

ANSATZ_MODEL(Competition1, OnePath<one_site::value<+1>, one_site::derivatives<+1>>)

ANSATZ_PAGE(Competition1, .title = "", .formula = "y = bottom + (top - bottom)/(1 + 10^(x - logIC50))",
            .parameters = {{"top", "level without competitor", Trait::level},
                           {"bottom", "level at large doses", Trait::level},
                           {"logIC50", "decadic logarithm of the half-way dose", Trait::constant}},
            .notes = "x is the decadic logarithm of the dose. The slope is fixed: one site.")

ANSATZ_MODEL(Response1, OnePath<response1::value, response1::derivatives>)

ANSATZ_PAGE(Response1, .title = "", .formula = "y = bottom + (top - bottom)/(1 + 10^((logEC50 - x) p))",
            .parameters = {{"bottom", "lower level", Trait::constant},
                           {"top", "upper level; must be above bottom", Trait::constant},
                           {"logEC50", "decadic logarithm of the half-way dose", Trait::constant},
                           {"p", "slope at the half-way dose; negative: the curve falls", Trait::slope}},
            .notes = "x is the decadic logarithm of the dose. Fails unless top > bottom; let p carry the "
                     "direction. Fails for p = 0.")

} // namespace ansatz
