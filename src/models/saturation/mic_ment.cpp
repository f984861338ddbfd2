// MicMent: the plain quotient, which takes negative concentrations and a negative P2 and does not look at the
// error indicator.

#include "protocol/forms.h"

namespace ansatz::mic_ment {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Real D = P[2] + x[1];
    if (D == 0) return fail(at);
    y[1] = P[1] * x[1] / D;
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Real D = P[2] + x[1];
    if (D == 0) return fail(at, 1, 2);
    const Real saturation = x[1] / D;
    const Real rate = P[1] * saturation;
    dyda[1] = saturation;
    dyda[2] = -rate / D;
    y[1] = rate;
    return success;
}

} // namespace

ANSATZ_MODEL(MicMent, BothPaths<value, derivatives>)

ANSATZ_PAGE(MicMent, .title = "Rate of an enzyme over the concentration of its substrate",
            .formula = "y = Vmax x/(Km + x)",
            .parameters = {{"Vmax", "rate approached at large x", Trait::ceiling},
                           {"Km", "x of half that rate", Trait::half_point, positive}},
            .typical = {{8, 2}, 0, 20},
            .known_as = "Michaelis-Menten kinetics, rectangular hyperbola, Langmuir isotherm, Monod equation",
            .source = "Michaelis and Menten, 1913",
            .notes = "Fails only for x = -Km. See MichaelisMenten for the same curve within x >= 0, Km > 0.")

} // namespace ansatz::mic_ment
