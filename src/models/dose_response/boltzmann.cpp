// Boltzman and BoltzIV: the Boltzmann transition between two levels, and its use for current-voltage curves.
//
//   Boltzman   y = P2 + (P1 - P2) / (1 + e^((x - P3)/P4))
//     P1 start level, P2 end level, P3 centre, P4 width (unit of x)
//   BoltzIV    y = (x - P4) P3 / (1 + e^((x - P1)/P2))
//     P1 centre, P2 width, P3 slope of the straight branch, P4 x of zero current
//
//   A negative width swaps the ends. The value fails for nParams <= 0 and for a width of exactly 0; the
//   derivatives fail for a width below 1e-18 in size, marking y only.
//
//   Where (x - centre)/width is above 665 the curve is taken to be at its far end (P2, or 0 for BoltzIV) and
//   the slopes are those of the far end. An error left pending by the caller looks the same and is cleared.

#include "protocol/limits.h"

namespace ansatz {
namespace {

constexpr double far_end = 665;
constexpr double least_width = 1e-18;

/// e^u into *t; false at the far end of the transition.
bool exp_before_far_end(double u, double* t) {
    if (u > far_end) return false;
    *t = safe_exp(u);
    return !math_error();
}

} // namespace
} // namespace ansatz

namespace ansatz::boltzman {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (n <= 0 || P[4] == 0) return fail(at);
    double t = 0;
    if (!exp_before_far_end((x[1] - P[3]) / P[4], &t)) return reaches(at, P[2]);
    y[1] = (P[1] - P[2]) / (t + 1) + P[2];
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (std::fabs(P[4]) < least_width) return fail(at);
    const double u = (x[1] - P[3]) / P[4];
    double t = 0;
    if (!exp_before_far_end(u, &t)) return reaches(at, P[2], 0, 1, 0, 0);
    const double s = t + 1;
    const double share = 1 / s, rest = 1 - share;
    const double fall = P[1] - P[2];
    const double by_centre = fall * share * rest / P[4];
    y[1] = fall / s + P[2];
    dyda[1] = share;
    dyda[2] = rest;
    dyda[3] = by_centre;
    dyda[4] = by_centre * u;
    return success;
}

} // namespace
} // namespace ansatz::boltzman

namespace ansatz::boltz_iv {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (n <= 0 || P[2] == 0) return fail(at);
    double t = 0;
    if (!exp_before_far_end((x[1] - P[1]) / P[2], &t)) return reaches(at, 0);
    y[1] = (x[1] - P[4]) * P[3] / (t + 1);
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const double width = P[2], slope = P[3];
    if (std::fabs(width) < least_width) return fail(at);
    const double from_centre = x[1] - P[1];
    double t = 0;
    if (!exp_before_far_end(from_centre / width, &t)) return reaches(at, 0, 0, 0, 0, 0);
    const double s = 1 + t;
    const double from_zero = x[1] - P[4];
    dyda[1] = from_zero * slope * t / (s * width * s);
    dyda[2] = t * slope * from_zero * from_centre / (width * width * (s * s));
    dyda[3] = from_zero / s;
    dyda[4] = -slope / s;
    y[1] = from_zero * slope / s;
    return success;
}

} // namespace

ANSATZ_MODEL(Boltzman, OnePath<boltzman::value, boltzman::derivatives>)

ANSATZ_PAGE(Boltzman, .title = "", .formula = "y = A2 + (A1 - A2)/(1 + exp((x - x0)/dx))",
            .parameters = {{"A1", "level at small x, for dx > 0", Trait::level},
                           {"A2", "level at large x", Trait::level},
                           {"x0", "centre: x half-way between the levels", Trait::position},
                           {"dx", "width: the tangent at the centre runs from level to level within 4 dx",
                            Trait::width}},
            .notes = "Fails for dx = 0; the derivatives also where |dx| < 1e-18. Exchanging A1 with A2 and "
                     "changing the sign of dx gives the same curve.")

ANSATZ_MODEL(BoltzIV, OnePath<value, derivatives>)

ANSATZ_PAGE(BoltzIV, .title = "", .formula = "y = (x - Vrev) gmax/(1 + exp((x - Vhalf)/dV))",
            .parameters = {{"Vhalf", "voltage at which half of the conductance is open", Trait::constant},
                           {"dV", "width of the transition; negative: opens with rising x", Trait::width},
                           {"gmax", "greatest conductance: slope of the straight branch", Trait::constant},
                           {"Vrev", "reversal voltage, where the current is 0", Trait::constant}},
            .notes = "Current over voltage x. Fails for dV = 0; the derivatives also where |dV| < 1e-18.")

} // namespace ansatz::boltz_iv
