#include "protocol/handbook_law.h"

namespace ansatz::log_3p1 {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Real shifted = x[1] + P[3];
    if (shifted <= 0) return fail(at);
    y[1] = P[1] - P[2] * log(shifted);
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Real shifted = x[1] + P[3];
    if (shifted <= 0) return fail(at, 1, 2, 3);
    const Real L = log(shifted);
    y[1] = P[1] - P[2] * L;
    dyda[1] = 1;
    dyda[2] = -L;
    dyda[3] = -P[2] / shifted;
    return math_error() ? fail(at, 1, 2, 3) : success;
}

} // namespace

ANSATZ_MODEL(Log3P1, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(Log3P1, .title = "Logarithm with an offset, a scale and a shift", .formula = "y = a - b ln(x + c)",
            .parameters = {{"a", "offset: y where x + c = 1", Trait::offset},
                           {"b", "scale: fall of y while x + c grows by the factor e", Trait::coefficient,
                            Dimension{.y = 1}},
                           {"c", "shift: the pole is at x = -c", Trait::constant, Dimension{.x = 1}}},
            .typical = {{5, 1.2, 1}, -0.95, 9}, .scales = Scales::y_only,
            .notes = "Fails for x <= -c: start with a c above the negative of the smallest x. A negative b "
                     "makes a rising curve.")

} // namespace ansatz::log_3p1
