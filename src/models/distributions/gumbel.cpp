// Gumbel: the Gumbel (extreme value) distribution function of smallest values.
//
//   y = 1 - e^(-e^((x - P1) / P2))
//
//   P1 location, where y = 1 - 1/e; P2 scale (same unit as x; negative: the curve falls).
//
//   Fails for P2 == 0 and where the inner exponential overflows, from about 709 scales above the location on.
//   No derivatives; a derivative request, and a call that requests nothing, return 1.

#include "models/distributions/answers.h"

namespace ansatz::gumbel {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (P[2] == 0) return fail(at);
    y[1] = 1 - safe_exp(-safe_exp((x[1] - P[1]) / P[2]));
    return math_error() ? fail(at) : success;
}

} // namespace

ANSATZ_MODEL(Gumbel, ValueOrRefusal<value, distribution::values>)

ANSATZ_PAGE(Gumbel, .title = "", .formula = "y = 1 - exp(-exp((x - xc)/b))",
            .parameters = {{"xc", "location, where y = 1 - 1/e = 0.632", Trait::constant},
                           {"b", "scale (as x); negative: the curve falls", Trait::constant}},
            .notes = "The distribution function of smallest values, from 0 to 1. Fails for b = 0 and more than "
                     "709 scales above the location.")

} // namespace ansatz::gumbel
