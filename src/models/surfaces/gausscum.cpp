// GaussCum: a common offset and any number of terms, each a product of two normal distribution functions.
//
//   z = P1 + sum over the terms of  A/4 (1 + erf u) (1 + erf v),
//   u = (x1 - xc) / (sqrt(2) wx), v = (x2 - yc) / (sqrt(2) wy)
//
//   P1 offset; then per term height A of the plateau, centre xc and width wx (standard deviation) along x1,
//   centre yc and width wy along x2; a negative width turns the step round. The number of terms is nParams / 5,
//   counted without regard to the offset: the last parameter read is P(5 m + 1). y[k+1] is term k alone,
//   without the offset.
//
//   Never fails: a width of 0 gives a sharp step, and at its centre not a number. No derivatives: FF_DERIV sets
//   y to the bare offset, see offset_reset.h.

#include "models/surfaces/offset_reset.h"
#include "special/erf.h"

namespace ansatz::gausscum {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    double sum = P[1];
    const int terms = n / 5;
    const double r = sqrt(2.0);
    for (int k = 1; k <= terms; ++k) {
        const double* p = P + 1 + 5 * (k - 1);
        const double A = p[1], xc = p[2], wx = p[3], yc = p[4], wy = p[5];
        const double u = (x[1] - xc) / r / wx, v = (x[2] - yc) / r / wy;
        const double term = A * 0.25 * (erf(u) + 1) * (erf(v) + 1);
        y[k + 1] = term;
        sum += term;
    }
    y[1] = sum;
    return success;
}

} // namespace

ANSATZ_MODEL(GaussCum, surfaces::ValueThenOffset<value>)

ANSATZ_PAGE(GaussCum, .title = "",
            .formula = "y = y0 + sum (A/4) (1 + erf((x1 - xc)/(sqrt(2) wx))) (1 + erf((x2 - yc)/(sqrt(2) wy)))",
            .parameters = {{"y0", "offset", Trait::offset}},
            .block = {{"A", "height of the plateau", Trait::amplitude},
                      {"xc", "centre on x1", Trait::position},
                      {"wx", "standard deviation along x1", Trait::width},
                      {"yc", "centre on x2", Trait::position},
                      {"wy", "the same along x2", Trait::constant}},
            .block_name = "term", .layout = {.lead = 1, .block = 5, .skipped = 0},
            .notes = "A negative width turns the step round.")

} // namespace ansatz::gausscum
