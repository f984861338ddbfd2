// Box-Lucas rise to a plateau, written with a base instead of a rate.
//
//   BoxLucas1Mod   y = P1 (1 - P2^x)
//                  P1 plateau (unit of y); P2 base, what is left of the gap to it after one unit of x
//                  fails: P2 <= 0, overflow of the power
//   BoxLucas1EVP   y = P2 (1 - P3^x) / (1 - P3^P1)
//                  P1 reference position; P2 response expected there; P3 base
//                  fails: P3 <= 0, P1 == 0, P3 == 1, overflow of P3^x
//
//   The expected-value form is BoxLucas1Mod with the plateau P2 / (1 - P3^P1). A base above 1 is accepted and
//   gives growth without a plateau. Where P3^P1 overflows the curve is flat at 0: value and derivatives are 0,
//   status 0, and the error indicator stays set, so a host that goes on must clear it.

#include "protocol/handbook_law.h"

namespace ansatz::box_lucas_1_mod {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (P[2] <= 0) return fail(at);
    y[1] = P[1] * (1 - safe_pow(P[2], x[1]));
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (P[2] <= 0) return fail(at, 1, 2);
    const double W = safe_pow(P[2], x[1]);
    if (math_error()) return fail(at, 1, 2);
    dyda[1] = 1 - W;
    y[1] = P[1] * (1 - W);
    dyda[2] = -(P[1] * x[1] / P[2]) * W;
    return success;
}

} // namespace
} // namespace ansatz::box_lucas_1_mod

namespace ansatz::box_lucas_1_evp {
namespace {

bool outside(const double* P) {
    return P[3] <= 0 || P[1] == 0 || P[3] == 1;
}

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (outside(P)) return fail(at);
    const double W = safe_pow(P[3], x[1]);
    if (math_error()) return fail(at);
    const double V = of_parameters<safe_pow>(P[3], P[1]);
    y[1] = range_error() ? 0 : P[2] * (1 - W) / (1 - V);
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (outside(P)) return fail(at, 1, 2, 3);
    const double W = safe_pow(P[3], x[1]);
    if (math_error()) return fail(at, 1, 2, 3);
    const double V = of_parameters<safe_pow>(P[3], P[1]);
    if (range_error()) {
        y[1] = dyda[1] = dyda[2] = dyda[3] = 0;
        return success;
    }
    dyda[2] = (1 - W) / (1 - V);
    y[1] = P[2] * dyda[2];
    dyda[1] = y[1] * V * of_parameters<log>(P[3]) / (1 - V);
    dyda[3] = (V * y[1] * P[1] - P[2] * x[1] * W) / P[3] / (1 - V);
    return success;
}

} // namespace

ANSATZ_MODEL(BoxLucas1Mod, HandbookLaw<box_lucas_1_mod::value, box_lucas_1_mod::derivatives>)

ANSATZ_PAGE(BoxLucas1Mod, .title = "", .formula = "y = a (1 - b^x)",
            .parameters = {{"a", "plateau", Trait::level},
                           {"b", "base, between 0 and 1: what is left of the gap to the plateau per unit of x",
                            Trait::base}},
            .notes = "Fails for b <= 0. b > 1 is computed: a curve without a plateau. It is the curve a (1 - "
                     "exp(-k x)) with k = -ln b.")

ANSATZ_MODEL(BoxLucas1EVP, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(BoxLucas1EVP, .title = "", .formula = "y = y1 (1 - b^x)/(1 - b^x1)",
            .parameters = {{"x1", "x of the response y1", Trait::reference},
                           {"y1", "response at x1", Trait::response},
                           {"b", "base: what is left of the gap to the plateau per unit of x", Trait::base}},
            .notes = "BoxLucas1Mod through the point (x1, y1), with a = y1/(1 - b^x1). Fails for b <= 0, b = 1 "
                     "and x1 = 0. Where b^x1 overflows, y is 0.")

} // namespace ansatz::box_lucas_1_evp
