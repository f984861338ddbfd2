// PlaneMod: a plane in normal form, implicit; y is the residual, 0 for points on the plane.
//
//   y = cos(P1) x3 + sin(P1) cos(P2) x1 + sin(P1) sin(P2) x2 + P3
//
//   P1 polar angle of the normal, P2 its azimuth (radians), P3 distance term: y is the signed distance from the
//   plane.
//
//   The status is always 0: an infinite angle, or an error indicator left set by the caller, shows as
//   MISSING_VALUE in y alone, and the indicator stays set. No derivatives; a derivative request alone writes
//   nothing.

#include "models/several_outputs/residual.h"

namespace ansatz::planemod {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const double s = of_parameters<sin>(P[1]);
    const double a = of_parameters<sin>(P[2]) * s * x[2];
    const double b = of_parameters<cos>(P[2]) * s * x[1] + a;
    return residual(at, of_parameters<cos>(P[1]) * x[3] + b + P[3]);
}

} // namespace

ANSATZ_MODEL(PlaneMod, ValueOrNothing<value>)

ANSATZ_PAGE(PlaneMod, .title = "", .formula = "0 = x1 sin(t) cos(f) + x2 sin(t) sin(f) + x3 cos(t) + d",
            .implicit = true,
            .parameters = {{"t", "polar angle of the normal, in radians", Trait::constant},
                           {"f", "azimuth of the normal, in radians", Trait::constant},
                           {"d", "minus the distance of the plane from the origin, along the normal",
                            Trait::constant}},
            .notes = "The residuals are distances from the plane. Near t = 0 the data do not determine f: name "
                     "the columns so that the normal is not along x3.")

} // namespace ansatz::planemod
