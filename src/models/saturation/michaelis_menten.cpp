// MichaelisMenten: the quotient with its domain guarded. x == 0 gives 0 whatever is pending. A range error
// pending on entry is no failure here but gives 0 and is cleared; on the derivative path both derivatives are 0
// as well, and the indicator stays set. A pending domain error fails; the derivative path marks y[1] alone then
// and leaves the derivatives it has computed.

#include "protocol/forms.h"

namespace ansatz::michaelis_menten {
namespace {

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
    const Real D = P[2] + x[1];
    const Real saturation = x[1] / D;
    dyda[1] = saturation;
    dyda[2] = -(P[1] * x[1]) / (D * D);
    y[1] = P[1] * saturation;
    return math_error() ? fail(at) : success;
}

} // namespace

ANSATZ_MODEL(MichaelisMenten, OnePath<value, derivatives>)

ANSATZ_PAGE(MichaelisMenten,
            .title = "Rate of an enzyme over the concentration of its substrate, within its domain",
            .formula = "y = Vmax x/(Km + x)",
            .parameters = {{"Vmax", "rate approached at large x", Trait::ceiling},
                           {"Km", "x of half that rate", Trait::half_point, positive}},
            .x = {not_negative}, .typical = {{8, 2}, 0, 20}, .same_as = "MicMent(Vmax = Vmax, Km = Km)",
            .known_as = "Michaelis-Menten kinetics", .source = "Michaelis and Menten, 1913",
            .notes = "Fails for x < 0 and for Km <= 0.")

} // namespace ansatz::michaelis_menten
