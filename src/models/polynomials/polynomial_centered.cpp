// PolyCtr5: a polynomial of the fifth order around a centre.
//
//   y = P1 + P3 t + P4 t^2 + P5 t^3 + P6 t^4 + P7 t^5,  t = x - P2
//
//   P1 the value at the centre, P2 centre (unit of x), P3 to P7 the coefficients of the rising powers. The
//   centre is redundant with them: a fit should hold P2 fixed.
//
//   Never fails. It offers no derivatives: a request for them is answered 0 and ignored.

#include "protocol/forms.h"

namespace ansatz::polynomial_centered {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const double t = x[1] - P[2];
    y[1] = P[1] + t * (P[3] + t * (P[4] + t * (P[5] + t * (P[6] + t * P[7]))));
    return success;
}

} // namespace

ANSATZ_MODEL(PolyCtr5, ValueOrNothing<value>)

ANSATZ_PAGE(PolyCtr5, .title = "", .formula = "y = a0 + a1 t + a2 t^2 + a3 t^3 + a4 t^4 + a5 t^5,  t = x - xc",
            .parameters = {{"a0", "y at xc", Trait::constant},
                           {"xc", "centre, your choice: the middle of the data, for instance",
                            Trait::reference},
                           {"a1", "slope at xc", Trait::slope},
                           {"a2", "coefficient of t^2", Trait::constant},
                           {"a3", "coefficient of t^3", Trait::constant},
                           {"a4", "coefficient of t^4", Trait::constant},
                           {"a5", "coefficient of t^5", Trait::constant}},
            .notes = "The data do not determine the centre: whatever it is, the curve is the same.")

} // namespace ansatz::polynomial_centered
