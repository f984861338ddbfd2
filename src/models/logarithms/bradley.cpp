#include "protocol/handbook_law.h"

namespace ansatz::bradley {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (x[1] <= 0 || P[2] == 0) return fail(at);
    const Real t = -P[2] * log(x[1]);
    if (t <= 0) return fail(at);
    y[1] = P[1] * log(t);
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (x[1] <= 0 || P[2] == 0) return fail(at, 1, 2);
    const Real t = -P[2] * log(x[1]);
    if (t <= 0) return fail(at, 1, 2);
    const Real L = log(t);
    if (math_error()) return fail(at, 1, 2);
    dyda[1] = L;
    y[1] = P[1] * L;
    dyda[2] = P[1] / P[2];
    return success;
}

} // namespace

ANSATZ_MODEL(Bradley, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(Bradley, .title = "Adsorption isotherm with a logarithm of a logarithm",
            .formula = "y = a ln(-b ln(x))",
            .parameters = {{"a", "scale; negative for a curve that rises below x = 1", Trait::coefficient,
                            Dimension{.y = 1}},
                           {"b", "factor of the inner logarithm, negative for data above x = 1",
                            Trait::coefficient, not_zero}},
            .x = {positive}, .typical = {{-1, 0.2}, 0.02, 0.98}, .scales = Scales::y_only,
            .known_as = "Bradley isotherm", .source = "Bradley, 1936",
            .notes = "x has no unit, such as a relative pressure. Fails for x <= 0 and where -b ln(x) is not "
                     "positive: at and above x = 1, or with a negative b at and below x = 1. A fit cannot "
                     "carry b across 0: start with the right sign.")

} // namespace ansatz::bradley
