// Langevin. Never fails. The closed form is taken down to |x - xc| = 0.0001, where cancellation leaves the
// value four digits. Above x - xc = 355 e^(2t) overflows: the value is right, A (1 - 1/t), the derivative by
// the centre is not a number, and the error indicator is left set.

#include "special/langevin.h"
#include "protocol/forms.h"

namespace ansatz::langevin_model {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    Real sum = P[1];
    const int terms = (n - 1) / 2;
    for (int k = 1; k <= terms; ++k) {
        const Real term = P[2 * k + 1] * langevin(x[1] - P[2 * k]);
        y[k + 1] = term;
        sum += term;
    }
    y[1] = sum;
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    dyda[1] = 1;
    Real sum = P[1];
    const int terms = (n - 1) / 2;
    for (int k = 1; k <= terms; ++k) {
        const int centre = 2 * k, amplitude = 2 * k + 1;
        const Scalar A = P[amplitude];
        const Real t = x[1] - P[centre];
        const Real E = safe_exp(t + t), L = langevin(t, E);
        dyda[amplitude] = L;
        dyda[centre] = (E * 4.0 / (E - 1) / (E - 1) - 1 / t / t) * A;
        y[k + 1] = A * L;
        sum += A * L;
    }
    y[1] = sum;
    return success;
}

} // namespace

ANSATZ_MODEL(Langevin, BothPaths<value, derivatives>)

ANSATZ_PAGE(
    Langevin, .title = "The magnetisation of paramagnets on a common offset",
    .formula = "y = y0 + sum A (coth(x - xc) - 1/(x - xc))", .parameters = {{"y0", "offset", Trait::offset}},
    .block = {{"xc", "centre", Trait::position},
              {"A", "amplitude, the saturation on either side", Trait::amplitude}},
    .block_name = "term", .typical = {{0.5, 0.37, 2, 20.37, 1}, -20, 40}, .scales = Scales::y_only,
    .departures = {{2, "abs(x - xc) < 0.001"}, {2, "x - xc > 354"}, {3, "0.0001 < abs(x - xc) < 0.001"}},
    .true_derivatives = false, .known_as = "Langevin function", .source = "Langevin, 1905",
    .notes = "The law has no width: scale x first, to the energy of the dipole in its field over kT. "
             "Close to the centre, from 0.0001 off it, the value errs by about 1e-16/(x - xc)^2.")

} // namespace ansatz::langevin_model
