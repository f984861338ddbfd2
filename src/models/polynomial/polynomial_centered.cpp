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
} // namespace ansatz::polynomial_centered

ANSATZ_MODEL(PolynomialCentered5, ansatz::FormW<ansatz::polynomial_centered::value>)
