// GaussianLorentz: a Gaussian and a Lorentzian peak with a common offset and centre, two dependent variables.
//
//   y[1] = P1 + P3 / (P5 sqrt(pi/2)) e^(-2 ((x - P2)/P5)^2)
//   y[2] = P1 + (2 P4 / pi) P6 / (4 (x - P2)^2 + P6^2)
//
//   P1 offset, P2 centre, P3 area of the Gaussian, P4 area of the Lorentzian, P5 width of the Gaussian (twice
//   its standard deviation), P6 width of the Lorentzian (full width at half maximum).
//
//   Widths are not tested: P5 == 0 makes y[1] not a number, P6 == 0 leaves y[2] at the offset (at the centre:
//   not a number), both with status 0; a negative width turns its peak upside down. A failure, which only an
//   error indicator left set by the caller can cause, marks both outputs. No derivatives; a derivative request
//   alone returns 0 and writes nothing.

#include "models/several_outputs/missing_fill.h"

namespace ansatz::gaussianlorentz {
namespace {

constexpr double half_pi = 1.5707963267948966, pi = 3.141592653589793;

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const double d = x[1] - P[2], u = d / P[5];
    y[1] = P[1] + P[3] / (sqrt(half_pi) * P[5]) * safe_exp(-2 * (u * u));
    if (math_error()) return missing_fill(at, 2);
    y[2] = P[1] + 2 * P[4] / pi * P[6] / (4 * (d * d) + P[6] * P[6]);
    return math_error() ? missing_fill(at, 2) : success;
}

} // namespace

ANSATZ_MODEL(GaussianLorentz, ValueOrNothing<value>)

ANSATZ_PAGE(
    GaussianLorentz, .title = "",
    .formula =
        "y1 = y0 + A1/(w1 sqrt(pi/2)) exp(-2 ((x - xc)/w1)^2);  y2 = y0 + 2 A2 w2/(pi (4 (x - xc)^2 + w2^2))",
    .parameters = {{"y0", "offset of both", Trait::offset},
                   {"xc", "centre of both", Trait::position},
                   {"A1", "area of the Gaussian", Trait::area},
                   {"A2", "area of the Lorentzian", Trait::area},
                   {"w1", "width of the Gaussian, twice the standard deviation", Trait::width},
                   {"w2", "width of the Lorentzian, full at half maximum", Trait::width}},
    .notes = "A negative width turns its peak upside down: bound both from below.")

} // namespace ansatz::gaussianlorentz
