// Kinetic: a decay that stays at its baseline before the start time. The second term counts with more than 4
// parameters, the third with more than 6.

#include "from_start.h"

namespace ansatz::kinetic {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (n <= 0) return fail(at);
    if (x[1] < P[2]) {
        y[1] = P[1];
        return success;
    }
    return from_start::value<from_start::decay>(at, n > 6 ? 3 : n > 4 ? 2 : 1);
}

} // namespace

ANSATZ_MODEL(Kinetic, ValueOrNothing<value>)

ANSATZ_PAGE(Kinetic, .title = "Exponential decays that begin with a step at a start time",
            .formula = "y = y0 + sum A exp(-(x - x0)/t) for x >= x0, y0 otherwise",
            .parameters = {{"y0", "offset, before the start and at the end", Trait::offset},
                           {"x0", "start time", Trait::threshold}},
            .block = {{"A", "amplitude, at x = x0", Trait::amplitude},
                      {"t", "decay time, unit of x", Trait::time, positive}},
            .block_name = "term", .most_blocks = 3, .components = false, .layout = {.lead = 8},
            .typical = {{0.5, 2, 3, 0.8, 2, 5}, 0, 15},
            .notes = "Fails for a time <= 0. Hold x0 fixed in a fit: between two data points it only rescales "
                     "the amplitudes, and the fit cannot move it across one.")

} // namespace ansatz::kinetic
