// Gumbel. Fails for b == 0 and where the inner exponential overflows. A derivative request, and a call that
// requests nothing, return 1.

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

ANSATZ_PAGE(Gumbel, .title = "The extreme-value distribution function of smallest values",
            .formula = "y = 1 - exp(-exp((x - xc)/b))",
            .parameters = {{"xc", "location, where y = 1 - 1/e = 0.632", Trait::position},
                           {"b", "scale (as x); negative: the curve falls", Trait::width, not_zero}},
            .typical = {{5, 1}, 0, 8}, .scales = Scales::x_only,
            .known_as = "Gumbel distribution, smallest extreme value distribution, type I extreme value "
                        "distribution",
            .source = "Fisher and Tippett, 1928",
            .notes = "From 0 to 1. Fails for b = 0 and more than 709 scales above the location.")

} // namespace ansatz::gumbel
