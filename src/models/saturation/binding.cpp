// Binding1 and Binding2. No library function is called, so the error indicator shows only what the caller left
// there; for the value such an error counts as saturation (y = P1, or P1 + P2) and is cleared. The derivatives
// take a pending range error so, with slopes that mean nothing, and pass a pending domain error by. The value
// fails for nParams < 1.

#include "protocol/limits.h"

namespace ansatz::binding1 {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (n < 1) return fail(at);
    if (math_error()) return reaches(at, P[1]);
    const Real r = 1 / (P[2] + x[1]);
    y[1] = P[1] * x[1] * r;
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (range_error()) return reaches(at, P[1], 0, 1);
    const Real r = 1 / (P[2] + x[1]);
    const Real all = P[1] * x[1];
    y[1] = all * r;
    dyda[1] = x[1] * r;
    dyda[2] = -all * (r * r);
    return success;
}

} // namespace

ANSATZ_MODEL(Binding1, OnePath<value, derivatives>)

ANSATZ_PAGE(Binding1, .title = "Equilibrium binding of a ligand to one kind of site",
            .formula = "y = Bmax x/(Kd + x)",
            .parameters = {{"Bmax", "capacity: the level at large x", Trait::ceiling},
                           {"Kd", "dissociation constant: x at which half of the capacity is bound",
                            Trait::half_point, positive}},
            .typical = {{8, 2}, 0, 20}, .same_as = "MicMent(Vmax = Bmax, Km = Kd)",
            .known_as = "one-site binding, Langmuir isotherm",
            .notes = "Nothing is tested: not finite at x = -Kd.")

} // namespace ansatz::binding1

namespace ansatz::binding2 {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (n < 1) return fail(at);
    if (math_error()) return reaches(at, P[1] + P[2]);
    const Real r1 = 1 / (P[3] + x[1]), r2 = 1 / (P[4] + x[1]);
    y[1] = P[2] * x[1] * r2 + P[1] * x[1] * r1;
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (range_error()) return reaches(at, P[1] + P[2], 0, 0, 1, 1);
    const Real r1 = 1 / (P[3] + x[1]), r2 = 1 / (P[4] + x[1]);
    const Real all1 = P[1] * x[1], all2 = P[2] * x[1];
    y[1] = all2 * r2 + all1 * r1;
    dyda[1] = x[1] * r1;
    dyda[2] = x[1] * r2;
    dyda[3] = -all1 * (r1 * r1);
    dyda[4] = -all2 * (r2 * r2);
    return success;
}

} // namespace

ANSATZ_MODEL(Binding2, OnePath<value, derivatives>)

ANSATZ_PAGE(Binding2, .title = "Equilibrium binding of a ligand to two kinds of site",
            .formula = "y = Bmax1 x/(Kd1 + x) + Bmax2 x/(Kd2 + x)",
            .parameters = {{"Bmax1", "capacity of the first kind of site", Trait::ceiling},
                           {"Bmax2", "capacity of the second kind", Trait::ceiling},
                           {"Kd1", "dissociation constant of the first kind, unit of x", Trait::half_point,
                            positive},
                           {"Kd2", "dissociation constant of the second kind", Trait::half_point, positive}},
            .typical = {{4, 6, 0.3, 8}, 0, 40},
            .same_as = "Dhyperbl(A1 = Bmax1, K1 = Kd1, A2 = Bmax2, K2 = Kd2, s = 0)",
            .known_as = "two-site binding, dual-site Langmuir isotherm",
            .notes = "Nothing is tested: not finite at x = -Kd1 and x = -Kd2. With equal starts for both kinds "
                     "of site a fit "
                     "cannot tell them apart.")

} // namespace ansatz::binding2
