#include "protocol/forms.h"

namespace ansatz::poly_ctr5 {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Real t = x[1] - P[2];
    y[1] = P[1] + t * (P[3] + t * (P[4] + t * (P[5] + t * (P[6] + t * P[7]))));
    return success;
}

} // namespace

ANSATZ_MODEL(PolyCtr5, ValueOrNothing<value>)

ANSATZ_PAGE(
    PolyCtr5, .title = "Polynomial of the fifth order around a centre of your choice",
    .formula = "y = a0 + a1 t + a2 t^2 + a3 t^3 + a4 t^4 + a5 t^5,  t = x - xc",
    .parameters = {{"a0", "y at xc", Trait::level},
                   {"xc", "centre, your choice: the middle of the data, for instance", Trait::reference},
                   {"a1", "slope at xc", Trait::slope},
                   {"a2", "coefficient of t^2", Trait::coefficient, Dimension{.x = -2, .y = 1}},
                   {"a3", "coefficient of t^3", Trait::coefficient, Dimension{.x = -3, .y = 1}},
                   {"a4", "coefficient of t^4", Trait::coefficient, Dimension{.x = -4, .y = 1}},
                   {"a5", "coefficient of t^5", Trait::coefficient, Dimension{.x = -5, .y = 1}}},
    .typical = {{1, 4, 1.5, -0.2, -1.5, 0.1, 0.25}, 1.5, 6.5},
    .same_as = "Poly5(a0 = a0 - a1 xc + a2 xc^2 - a3 xc^3 + a4 xc^4 - a5 xc^5, "
               "a1 = a1 - 2 a2 xc + 3 a3 xc^2 - 4 a4 xc^3 + 5 a5 xc^4, "
               "a2 = a2 - 3 a3 xc + 6 a4 xc^2 - 10 a5 xc^3, a3 = a3 - 4 a4 xc + 10 a5 xc^2, "
               "a4 = a4 - 5 a5 xc, a5 = a5)",
    .notes = "Never fails. The data do not determine the centre: whatever it is, the curve is the same, so a "
             "fit holds it.")

} // namespace ansatz::poly_ctr5
