// Langevin: the magnetisation of a paramagnet, a common offset and any number of terms.
//
//   y = P1 + sum over the terms of  A (coth t - 1/t),   t = x - c
//
//   P1 offset; then per term two parameters: centre c (same unit as x), amplitude A, the saturation. The number
//   of terms is (nParams - 1) / 2. y[k+1] is term k alone, without the offset.
//
//   Never fails. For small t, but outside -0.0001 .. 0.0001, cancellation costs digits: about 1e-16/t^2 is
//   lost. From t = 355 on e^(2t) overflows: the value is right, A (1 - 1/t), the derivative by c is not a
//   number, and the error indicator is left set. The derivative by c is evaluated in closed form for all t: it
//   loses its digits as t goes to 0 and is not a number at x == c, where it should be -A/3.

#include "special/langevin.h"
#include "protocol/forms.h"

namespace ansatz::langevin_model {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    double sum = P[1];
    const int terms = (n - 1) / 2;
    for (int k = 1; k <= terms; ++k) {
        const double term = P[2 * k + 1] * langevin(x[1] - P[2 * k]);
        y[k + 1] = term;
        sum += term;
    }
    y[1] = sum;
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    dyda[1] = 1;
    double sum = P[1];
    const int terms = (n - 1) / 2;
    for (int k = 1; k <= terms; ++k) {
        const int centre = 2 * k, amplitude = 2 * k + 1;
        const double A = P[amplitude], t = x[1] - P[centre];
        const double E = safe_exp(t + t), L = langevin(t, E);
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

ANSATZ_PAGE(Langevin, .title = "", .formula = "y = y0 + sum A (coth(x - xc) - 1/(x - xc))",
            .parameters = {{"y0", "offset", Trait::offset}},
            .block = {{"xc", "centre", Trait::position},
                      {"A", "amplitude, the saturation on either side", Trait::amplitude}},
            .block_name = "term", .true_derivatives = false,
            .notes = "The law has no width: scale x first, to the energy of the dipole in its field over kT.")

} // namespace ansatz::langevin_model
