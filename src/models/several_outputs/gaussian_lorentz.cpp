// GaussianLorentz. Widths are not tested: w1 == 0 makes y[1] not a number, w2 == 0 leaves y[2] at the offset
// (at the centre: not a number), both with status 0. A failure, which only an error indicator left set by the
// caller can cause, marks both outputs. A derivative request alone returns 0 and writes nothing.

#include "models/several_outputs/missing_fill.h"

namespace ansatz::gaussian_lorentz {
namespace {

constexpr Scalar half_pi = 1.5707963267948966, pi = 3.141592653589793;

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Real d = x[1] - P[2], u = d / P[5];
    y[1] = P[1] + P[3] / (sqrt(half_pi) * P[5]) * safe_exp(-2 * (u * u));
    if (math_error()) return missing_fill(at, 2);
    y[2] = P[1] + 2 * P[4] / pi * P[6] / (4 * (d * d) + P[6] * P[6]);
    return math_error() ? missing_fill(at, 2) : success;
}

} // namespace

ANSATZ_MODEL(GaussianLorentz, ValueOrNothing<value>)

ANSATZ_PAGE(
    GaussianLorentz,
    .title = "A Gaussian and a Lorentzian peak with a common offset and centre, in two columns",
    .formula =
        "y1 = y0 + A1/(w1 sqrt(pi/2)) exp(-2 ((x - xc)/w1)^2);  y2 = y0 + 2 A2 w2/(pi (4 (x - xc)^2 + w2^2))",
    .parameters = {{"y0", "offset of both", Trait::offset},
                   {"xc", "centre of both", Trait::position},
                   {"A1", "area of the Gaussian", Trait::area},
                   {"A2", "area of the Lorentzian", Trait::area},
                   {"w1", "width of the Gaussian, twice the standard deviation", Trait::width, positive},
                   {"w2", "width of the Lorentzian, full at half maximum", Trait::width, positive}},
    .typical = {{0.2, 5, 4, 4, 1.5, 1.8}, 0, 10},
    .notes = "A negative width turns its peak upside down: bound both from below.")

} // namespace ansatz::gaussian_lorentz
