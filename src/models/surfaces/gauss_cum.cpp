// GaussCum. The number of terms is nParams / 5, counted without regard to the offset: the last parameter read
// is P(5 m + 1). Never fails: a width of 0 gives a sharp step, and at its centre not a number. FF_DERIV sets y
// to the bare offset, see offset_reset.h.

#include "models/surfaces/offset_reset.h"
#include "protocol/blocks.h"
#include "special/erf.h"

namespace ansatz::gauss_cum {
namespace {

Status value(const Point& at) {
    const Scalar r = sqrt(2.0);
    return add_blocks<5>(at, at.n / 5, [&](const Scalar* p, int) -> Outcome {
        const Scalar A = p[1], xc = p[2], wx = p[3], yc = p[4], wy = p[5];
        const Real u = (at.x[1] - xc) / r / wx, v = (at.x[2] - yc) / r / wy;
        return A * 0.25 * (erf(u) + 1) * (erf(v) + 1);
    });
}

} // namespace

ANSATZ_MODEL(GaussCum, surfaces::ValueThenOffset<value>)

ANSATZ_PAGE(GaussCum, .title = "Products of a normal distribution function of each variable on a common offset",
            .formula = "y = y0 + sum (A/4) (1 + erf((x1 - xc)/(sqrt(2) wx))) (1 + erf((x2 - yc)/(sqrt(2) wy)))",
            .parameters = {{"y0", "offset", Trait::offset}},
            .block = {{"A", "height of the plateau", Trait::amplitude},
                      {"xc", "centre on x1", Trait::position},
                      {"wx", "standard deviation along x1", Trait::width, not_zero},
                      {"yc", "centre on x2", Trait::position, Dimension{.x2 = 1}},
                      {"wy", "standard deviation along x2", Trait::width, Dimension{.x2 = 1}, not_zero}},
            .block_name = "term", .layout = {.lead = 1, .block = 5, .skipped = 0},
            .typical = {{0.2, 2, 3, 0.8, 2, 0.6, 1, 8, 0.6, 5, 0.5}, 0, 12, 0, 8},
            .notes = "A negative width turns the step round.")

} // namespace ansatz::gauss_cum
