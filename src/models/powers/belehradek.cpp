#include "protocol/handbook_law.h"

namespace ansatz::belehradek {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Real above = x[1] - P[2];
    if (above <= 0) return fail(at);
    y[1] = P[1] * safe_pow(above, P[3]);
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Real above = x[1] - P[2];
    if (above <= 0) return fail(at, 1, 2, 3);
    const Real W = safe_pow(above, P[3]);
    y[1] = P[1] * W;
    dyda[1] = W;
    dyda[2] = -y[1] * P[3] / above;
    dyda[3] = y[1] * log(above);
    return math_error() ? fail(at, 1, 2, 3) : success;
}

} // namespace

ANSATZ_MODEL(Belehradek, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(Belehradek, .title = "Power of the distance above a threshold, as of a temperature",
            .formula = "y = a (x - b)^c",
            .parameters = {{"a", "response one unit of x above the threshold", Trait::level},
                           {"b", "threshold, below every x", Trait::threshold},
                           {"c", "exponent", Trait::exponent}},
            .typical = {{0.5, 2, 1.7}, 2.02, 12}, .scales = Scales::y_only,
            .same_as = "Power1(xc = b, A = a, p = c)", .source = "Belehradek, 1935",
            .notes =
                "Fails for x <= b. A fit may run b into the smallest x and stop there: then start with a "
                "larger c, or bound b below that x (--upper). Power1 has the same curve on both sides of b.")

} // namespace ansatz::belehradek
