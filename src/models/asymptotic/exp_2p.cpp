// Exp2P: the exponential law, in four parameterisations.
//
//   Exp2P       y = P1 P2^x            P1 scale, the response at x = 0; P2 base, the factor per unit of x
//                                      fails: P2 <= 0, overflow
//   Exp2PMod1   y = P1 e^(P2 x)        P1 scale; P2 rate (1/unit of x), negative for decay
//                                      fails: overflow
//   Exp2PMod2   y = e^(P1 + P2 x)      P1 logarithm of the response at x = 0; P2 rate
//                                      fails: overflow
//   Exp2PEVP    y = P2^((x - P3)/(P1 - P3)) P4^((P1 - x)/(P1 - P3))
//                                      P1, P3 reference positions; P2, P4 responses expected there
//                                      fails: P2 <= 0, P4 <= 0, P1 - P3 == 0, overflow of a power;
//                                      the derivatives also where P4/P2 is so small that it is 0
//
//   Exponents below -300 give exactly 0 in the two forms with a rate. In the derivatives, Exp2P and Exp2PMod2
//   mark only y[1] on any failure, and so does Exp2PEVP on a parameter outside its domain. At x == P3 Exp2PEVP
//   sets dyda[1] and dyda[3] to 0; for dyda[3], whose true value there is y ln(P4/P2) / (P1 - P3), that is a
//   gap at this one point.

#include "protocol/handbook_law.h"

namespace ansatz::exp_2p {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (P[2] <= 0) return fail(at);
    y[1] = P[1] * safe_pow(P[2], x[1]);
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (P[2] <= 0) return fail(at);
    const double W = safe_pow(P[2], x[1]);
    if (math_error()) return fail(at);
    dyda[1] = W;
    y[1] = P[1] * W;
    dyda[2] = y[1] * x[1] / P[2];
    return success;
}

} // namespace
} // namespace ansatz::exp_2p

namespace ansatz::exp_2p_mod1 {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    y[1] = P[1] * safe_exp(P[2] * x[1]);
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const double E = safe_exp(P[2] * x[1]);
    if (math_error()) return fail(at, 1, 2);
    dyda[1] = E;
    y[1] = P[1] * E;
    dyda[2] = y[1] * x[1];
    return success;
}

} // namespace
} // namespace ansatz::exp_2p_mod1

namespace ansatz::exp_2p_mod2 {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    y[1] = safe_exp(P[1] + P[2] * x[1]);
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const double E = safe_exp(P[1] + P[2] * x[1]);
    if (math_error()) return fail(at);
    y[1] = E;
    dyda[1] = E;
    dyda[2] = E * x[1];
    return success;
}

} // namespace
} // namespace ansatz::exp_2p_mod2

namespace ansatz::exp_2p_evp {
namespace {

bool outside(const double* P) {
    return P[2] <= 0 || P[4] <= 0 || P[1] - P[3] == 0;
}

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (outside(P)) return fail(at);
    const double d = P[1] - P[3];
    y[1] = safe_pow(P[2], (x[1] - P[3]) / d) * safe_pow(P[4], (P[1] - x[1]) / d);
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (outside(P)) return fail(at);
    const double d = P[1] - P[3], u = x[1] - P[3], v = P[1] - x[1];
    const double g = safe_pow(P[2], u / d) * safe_pow(P[4], v / d);
    if (math_error()) return fail_all(at, 4);
    y[1] = g;
    dyda[2] = u * g / d / P[2];
    dyda[4] = g * v / d / P[4];
    if (u == 0) {
        dyda[1] = dyda[3] = 0;
        return success;
    }
    const double slope = of_parameters<log>(P[4] / P[2]) * g * u / (d * d);
    if (math_error()) return fail_all(at, 4); // P4/P2 is 0 for responses that far apart
    dyda[1] = slope;
    dyda[3] = slope * v / u;
    return success;
}

} // namespace

ANSATZ_MODEL(Exp2P, HandbookLaw<exp_2p::value, exp_2p::derivatives>)

ANSATZ_PAGE(Exp2P, .title = "", .formula = "y = a b^x",
            .parameters = {{"a", "response at x = 0", Trait::level},
                           {"b", "factor per unit of x, above 0", Trait::base}},
            .notes = "Fails for b <= 0.")

ANSATZ_MODEL(Exp2PMod1, HandbookLaw<exp_2p_mod1::value, exp_2p_mod1::derivatives>)

ANSATZ_PAGE(Exp2PMod1, .title = "", .formula = "y = a exp(b x)",
            .parameters = {{"a", "response at x = 0", Trait::level},
                           {"b", "rate, 1/(unit of x); negative for decay", Trait::rate}})

ANSATZ_MODEL(Exp2PMod2, HandbookLaw<exp_2p_mod2::value, exp_2p_mod2::derivatives>)

ANSATZ_PAGE(Exp2PMod2, .title = "", .formula = "y = exp(a + b x)",
            .parameters = {{"a", "logarithm of the response at x = 0", Trait::constant},
                           {"b", "rate, 1/(unit of x); negative for decay", Trait::rate}},
            .notes = "Positive responses only: use Exp2PMod1 for others.")

ANSATZ_MODEL(Exp2PEVP, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(Exp2PEVP, .title = "", .formula = "y = y1^((x - x2)/(x1 - x2)) y2^((x1 - x)/(x1 - x2))",
            .parameters = {{"x1", "x of the response y1", Trait::reference},
                           {"y1", "response at x1", Trait::response},
                           {"x2", "x of the response y2", Trait::reference},
                           {"y2", "response at x2", Trait::response}},
            .notes = "The exponential through the points (x1, y1) and (x2, y2). Fails for y1 <= 0, y2 <= 0 and "
                     "x1 = x2. The derivative by x2 is taken for 0 at a point with x exactly equal to x2: do "
                     "not estimate x2 (--free) from a start at an x of the data.")

} // namespace ansatz::exp_2p_evp
