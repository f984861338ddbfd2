// Boltzman and BoltzIV. Beyond 665 widths after the centre the curve is taken to be at its far end, with the
// slopes of the far end. An error pending on entry looks the same there and is cleared. A failure of the
// derivatives marks y only. The value fails for nParams <= 0.

#include "protocol/limits.h"

namespace ansatz {
namespace {

constexpr Scalar far_end = 665;
constexpr Scalar least_width = 1e-18;

/// e^u into *t; false at the far end of the transition.
bool exp_before_far_end(Real u, Real* t) {
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
    Real t = 0;
    if (!exp_before_far_end((x[1] - P[3]) / P[4], &t)) return reaches(at, P[2]);
    y[1] = (P[1] - P[2]) / (t + 1) + P[2];
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (std::fabs(P[4]) < least_width) return fail(at);
    const Real u = (x[1] - P[3]) / P[4];
    Real t = 0;
    if (!exp_before_far_end(u, &t)) return reaches(at, P[2], 0, 1, 0, 0);
    const Real s = t + 1;
    const Real share = 1 / s, rest = 1 - share;
    const Scalar fall = P[1] - P[2];
    const Real by_centre = fall * share * rest / P[4];
    y[1] = fall / s + P[2];
    dyda[1] = share;
    dyda[2] = rest;
    dyda[3] = by_centre;
    dyda[4] = by_centre * u;
    return success;
}

} // namespace

ANSATZ_MODEL(Boltzman, OnePath<value, derivatives>)

ANSATZ_PAGE(Boltzman, .title = "Sigmoid between two levels, symmetric about its centre",
            .formula = "y = A2 + (A1 - A2)/(1 + exp((x - x0)/dx))",
            .parameters = {{"A1", "level at small x", Trait::level},
                           {"A2", "level at large x", Trait::level},
                           {"x0", "centre: x half-way between the levels", Trait::position},
                           {"dx", "width: the tangent at the centre runs from level to level within 4 dx",
                            Trait::width, positive}},
            .typical = {{1, 6, 4, 0.6}, 0, 8}, .known_as = "Boltzmann sigmoid, logistic sigmoid",
            .notes = "Fails for dx = 0; the derivatives also where |dx| < 1e-18. Exchanging A1 with A2 and "
                     "changing the sign of dx gives the same curve.")

} // namespace ansatz::boltzman

namespace ansatz::boltz_iv {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (n <= 0 || P[2] == 0) return fail(at);
    Real t = 0;
    if (!exp_before_far_end((x[1] - P[1]) / P[2], &t)) return reaches(at, 0);
    y[1] = (x[1] - P[4]) * P[3] / (t + 1);
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Scalar width = P[2], slope = P[3];
    if (std::fabs(width) < least_width) return fail(at);
    const Real from_centre = x[1] - P[1];
    Real t = 0;
    if (!exp_before_far_end(from_centre / width, &t)) return reaches(at, 0, 0, 0, 0, 0);
    const Real s = 1 + t;
    const Real from_zero = x[1] - P[4];
    dyda[1] = from_zero * slope * t / (s * width * s);
    dyda[2] = t * slope * from_zero * from_centre / (width * width * (s * s));
    dyda[3] = from_zero / s;
    dyda[4] = -slope / s;
    y[1] = from_zero * slope / s;
    return success;
}

} // namespace

ANSATZ_MODEL(BoltzIV, OnePath<value, derivatives>)

ANSATZ_PAGE(
    BoltzIV, .title = "Current over voltage of a conductance that opens or closes along a Boltzmann sigmoid",
    .formula = "y = (x - Vrev) gmax/(1 + exp((x - Vhalf)/dV))",
    .parameters = {{"Vhalf", "voltage at which half of the conductance is open", Trait::position},
                   {"dV", "width of the transition; negative: opens with rising x", Trait::width, not_zero},
                   {"gmax", "greatest conductance: slope of the straight branch", Trait::slope},
                   {"Vrev", "reversal voltage, where the current is 0", Trait::position}},
    .typical = {{-20, -7, 0.5, 55}, -80, 80},
    .notes = "x is the voltage, y the current. Fails for dV = 0; the derivatives also where |dV| < 1e-18.")

} // namespace ansatz::boltz_iv
