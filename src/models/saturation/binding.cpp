// Binding1 and Binding2: equilibrium binding of a ligand to one or two kinds of site.
//
//   Binding1   y = P1 x / (P2 + x)
//     P1 capacity, P2 dissociation constant (unit of x): half of the capacity is bound at x = P2
//   Binding2   y = P1 x / (P3 + x) + P2 x / (P4 + x)
//     P1, P2 capacities and P3, P4 dissociation constants of the two kinds
//
//   The value fails for nParams < 1, nothing else is tested: at x = -P2 the result is infinite or no number. No
//   library function is called, so the error indicator shows only what the caller left there; such an error
//   counts as saturation (y = P1, or P1 + P2) and is cleared. The derivatives take a pending range error
//   so, with slopes that mean nothing, and pass a pending domain error by.

#include "protocol/limits.h"

namespace ansatz::binding1 {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (n < 1) return fail(at);
    if (math_error()) return reaches(at, P[1]);
    const double r = 1 / (P[2] + x[1]);
    y[1] = P[1] * x[1] * r;
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (range_error()) return reaches(at, P[1], 0, 1);
    const double r = 1 / (P[2] + x[1]);
    const double all = P[1] * x[1];
    y[1] = all * r;
    dyda[1] = x[1] * r;
    dyda[2] = -all * (r * r);
    return success;
}

} // namespace
} // namespace ansatz::binding1

namespace ansatz::binding2 {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (n < 1) return fail(at);
    if (math_error()) return reaches(at, P[1] + P[2]);
    const double r1 = 1 / (P[3] + x[1]), r2 = 1 / (P[4] + x[1]);
    y[1] = P[2] * x[1] * r2 + P[1] * x[1] * r1;
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (range_error()) return reaches(at, P[1] + P[2], 0, 0, 1, 1);
    const double r1 = 1 / (P[3] + x[1]), r2 = 1 / (P[4] + x[1]);
    const double all1 = P[1] * x[1], all2 = P[2] * x[1];
    y[1] = all2 * r2 + all1 * r1;
    dyda[1] = x[1] * r1;
    dyda[2] = x[1] * r2;
    dyda[3] = -all1 * (r1 * r1);
    dyda[4] = -all2 * (r2 * r2);
    return success;
}

} // namespace

ANSATZ_MODEL(Binding1, OnePath<binding1::value, binding1::derivatives>)

ANSATZ_PAGE(Binding1, .title = "", .formula = "y = Bmax x/(Kd + x)",
            .parameters = {{"Bmax", "capacity: the level at large x", Trait::constant},
                           {"Kd", "dissociation constant: x at which half of the capacity is bound",
                            Trait::constant}},
            .notes = "Not finite at x = -Kd.")

ANSATZ_MODEL(Binding2, OnePath<value, derivatives>)

ANSATZ_PAGE(Binding2, .title = "", .formula = "y = Bmax1 x/(Kd1 + x) + Bmax2 x/(Kd2 + x)",
            .parameters = {{"Bmax1", "capacity of the first kind of site", Trait::constant},
                           {"Bmax2", "capacity of the second kind", Trait::constant},
                           {"Kd1", "dissociation constant of the first kind, unit of x", Trait::constant},
                           {"Kd2", "dissociation constant of the second kind", Trait::constant}},
            .notes = "Not finite at x = -Kd1 and x = -Kd2. With equal starts for both kinds of site a fit "
                     "cannot tell them apart.")

} // namespace ansatz::binding2
