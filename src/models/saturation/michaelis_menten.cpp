// MicMent, MichaelisMenten: the rate of an enzyme over the concentration of its substrate, under two contracts.
//
//   y = P1 x / (P2 + x)
//
//   P1 maximum rate, P2 the concentration of half the maximum rate (unit of x).
//
//   MicMent is the plain quotient: it fails only where P2 + x == 0, takes negative concentrations and a
//   negative P2, and does not look at the error indicator.
//
//   MichaelisMenten guards its domain: it fails for x < 0 and for P2 <= 0, x == 0 gives 0. It serves one
//   request per call: with both bits set only the value. A range error pending on entry is no failure here but
//   gives 0 and is cleared; on the derivative path both derivatives are 0 as well, and the indicator stays set.
//   A pending domain error fails; the derivative path marks y[1] alone then and leaves the derivatives it has
//   computed.

#include "protocol/forms.h"

namespace ansatz {
namespace {
namespace mic_ment {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const double D = P[2] + x[1];
    if (D == 0) return fail(at);
    y[1] = P[1] * x[1] / D;
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const double D = P[2] + x[1];
    if (D == 0) return fail(at, 1, 2);
    const double saturation = x[1] / D;
    const double rate = P[1] * saturation;
    dyda[1] = saturation;
    dyda[2] = -rate / D;
    y[1] = rate;
    return success;
}

} // namespace mic_ment

namespace michaelis_menten {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (x[1] < 0 || P[2] <= 0) return fail(at);
    if (x[1] == 0) {
        y[1] = 0;
        return success;
    }
    if (range_error()) {
        clear_error();
        y[1] = 0;
        return success;
    }
    if (domain_error()) return fail(at);
    y[1] = P[1] * x[1] / (P[2] + x[1]);
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (x[1] < 0 || P[2] <= 0) return fail(at, 1, 2);
    if (x[1] == 0 || range_error()) {
        y[1] = dyda[1] = dyda[2] = 0;
        return success;
    }
    const double D = P[2] + x[1];
    const double saturation = x[1] / D;
    dyda[1] = saturation;
    dyda[2] = -(P[1] * x[1]) / (D * D);
    y[1] = P[1] * saturation;
    return math_error() ? fail(at) : success;
}

} // namespace michaelis_menten
} // namespace

ANSATZ_MODEL(MicMent, BothPaths<mic_ment::value, mic_ment::derivatives>)

ANSATZ_PAGE(MicMent, .title = "", .formula = "y = Vmax x/(Km + x)",
            .parameters = {{"Vmax", "rate approached at large x", Trait::rate},
                           {"Km", "x of half that rate", Trait::position}},
            .notes = "Fails only for x = -Km. See MichaelisMenten for the same curve within x >= 0, Km > 0.")

ANSATZ_MODEL(MichaelisMenten, OnePath<michaelis_menten::value, michaelis_menten::derivatives>)

ANSATZ_PAGE(MichaelisMenten, .title = "", .formula = "y = Vmax x/(Km + x)",
            .parameters = {{"Vmax", "rate approached at large x", Trait::rate},
                           {"Km", "x of half that rate, above 0", Trait::position}},
            .notes = "Fails for x < 0 and for Km <= 0.")

} // namespace ansatz
