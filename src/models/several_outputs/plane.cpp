// PlaneMod. The status is always 0: an infinite angle, or an error indicator left set by the caller, shows as
// MISSING_VALUE in y alone, and the indicator stays set. A derivative request alone writes nothing.

#include "models/several_outputs/residual.h"

namespace ansatz::plane_mod {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Scalar s = of_parameters<sin>(P[1]);
    const Real a = of_parameters<sin>(P[2]) * s * x[2];
    const Real b = of_parameters<cos>(P[2]) * s * x[1] + a;
    return residual(at, of_parameters<cos>(P[1]) * x[3] + b + P[3]);
}

} // namespace

ANSATZ_MODEL(PlaneMod, ValueOrNothing<value>)

ANSATZ_PAGE(PlaneMod, .title = "A plane in space by its normal and its distance from the origin",
            .formula = "0 = x1 sin(t) cos(f) + x2 sin(t) sin(f) + x3 cos(t) + d", .implicit = true,
            .parameters = {{"t", "polar angle of the normal, in radians", Trait::angle},
                           {"f", "azimuth of the normal, in radians", Trait::angle},
                           {"d", "minus the distance of the plane from the origin, along the normal",
                            Trait::offset, Dimension{.x = 1}}},
            .typical = {{0.8, 0.6, -2}, -3, 5, -3, 5}, .scales = Scales::neither,
            .known_as = "Hesse normal form, orthogonal regression of a plane",
            .notes = "x1, x2 and x3 need the same unit. The residuals are distances from the plane. Near t = 0 "
                     "the data do not determine f: name the columns so that the normal is not along x3.")

} // namespace ansatz::plane_mod
