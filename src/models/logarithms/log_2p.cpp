#include "protocol/handbook_law.h"

namespace ansatz::log_2p1 {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Real d = x[1] - P[1];
    if (d <= 0) return fail(at);
    y[1] = P[2] * log(d);
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Real d = x[1] - P[1];
    if (d <= 0) return fail(at, 1, 2);
    dyda[1] = -P[2] / d;
    dyda[2] = log(d);
    if (math_error()) return fail(at, 1, 2);
    y[1] = P[2] * dyda[2];
    return success;
}

} // namespace

ANSATZ_MODEL(Log2P1, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(Log2P1, .title = "Logarithm of the distance from a pole, with a scale",
            .formula = "y = b ln(x - a)",
            .parameters = {{"a", "shift, below every x: the curve has its pole there", Trait::threshold},
                           {"b", "scale: rise of y while x - a grows by the factor e", Trait::coefficient,
                            Dimension{.y = 1}}},
            .typical = {{1, 2}, 1.05, 9}, .scales = Scales::y_only,
            .notes = "Fails for x <= a: start with a below the smallest x.")

} // namespace ansatz::log_2p1

// A scale of 0 is not guarded against: what its divisions give is what the host gets. Most failures of the
// derivatives mark y[1] only.
namespace ansatz::log_2p1_evp {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Real v = x[1] - P[1] + of_parameters<safe_exp>(P[2] / P[3]);
    if (v <= 0) return fail(at);
    y[1] = P[3] * log(v);
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Scalar t = of_parameters<safe_exp>(P[2] / P[3]);
    if (math_error()) return fail(at);
    const Real v = x[1] - P[1] + t;
    if (v <= 0) return fail(at);
    dyda[1] = -P[3] / v;
    dyda[2] = t / v;
    y[1] = P[3] * log(v);
    if (math_error()) return fail(at, 3);
    dyda[3] = (y[1] - P[2] * dyda[2]) / P[3];
    return success;
}

} // namespace

ANSATZ_MODEL(Log2P1EVP, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(Log2P1EVP, .title = "Logarithm of the distance from a pole, by the response at one position",
            .formula = "y = b ln(x - x1 + exp(y1/b))",
            .parameters = {{"x1", "x of the response y1", Trait::reference},
                           {"y1", "response at x1", Trait::response},
                           {"b", "scale: rise of y while the distance from the pole grows by the factor e",
                            Trait::coefficient, Dimension{.y = 1}, not_zero}},
            .typical = {{3, 2, 1.5}, -0.75, 9}, .scales = Scales::y_only,
            .same_as = "Log2P1(a = x1 - exp(y1/b), b = b)",
            .notes = "Fails for x <= x1 - exp(y1/b), where the curve has its pole, and for a b so close to 0 "
                     "that the exponential overflows.")

} // namespace ansatz::log_2p1_evp

namespace ansatz::log_2p2 {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Real s = P[1] + P[2] * x[1];
    if (s <= 0) return fail(at);
    y[1] = log(s);
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Real s = P[1] + P[2] * x[1];
    if (s <= 0) return fail(at, 1, 2);
    dyda[1] = 1 / s;
    dyda[2] = x[1] / s;
    y[1] = log(s);
    return math_error() ? fail(at) : success; // the slots above stand
}

} // namespace

ANSATZ_MODEL(Log2P2, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(Log2P2, .title = "Logarithm of a straight line", .formula = "y = ln(a + b x)",
            .parameters = {{"a", "intercept of the line exp(y) against x", Trait::constant},
                           {"b", "slope of that line", Trait::coefficient, Dimension{.x = -1}}},
            .typical = {{1, 2}, -0.45, 6}, .scales = Scales::x_only,
            .notes = "y has no unit. Fails where a + b x <= 0. Plot exp(y) against x for starting values.")

} // namespace ansatz::log_2p2

// The derivatives divide the exponentials by q where the calculus has q (P3 - P1).
namespace ansatz::log_2p2_evp {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (P[3] - P[1] == 0) return fail(at);
    const Scalar E2 = of_parameters<safe_exp>(P[2]), E4 = of_parameters<safe_exp>(P[4]);
    const Real q = ((x[1] - P[1]) * E4 + (P[3] - x[1]) * E2) / (P[3] - P[1]);
    if (q <= 0) return fail(at);
    y[1] = log(q);
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Scalar d = P[3] - P[1];
    if (d == 0) return fail(at);
    const Scalar E2 = of_parameters<safe_exp>(P[2]), E4 = of_parameters<safe_exp>(P[4]);
    if (math_error()) return fail(at);
    const Real u = x[1] - P[1], v = P[3] - x[1];
    const Real q = (u * E4 + v * E2) / d;
    if (q <= 0) return fail_all(at, 4);
    dyda[1] = 1 / d - E4 / q;
    dyda[3] = E2 / q - 1 / d;
    dyda[2] = v * E2 / q;
    dyda[4] = u * E4 / q;
    y[1] = log(q);
    return math_error() ? fail(at) : success; // the slots above stand
}

} // namespace

ANSATZ_MODEL(Log2P2EVP, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(Log2P2EVP, .title = "Logarithm of a straight line, by the responses at two positions",
            .formula = "y = ln(((x - x1) exp(y2) + (x2 - x) exp(y1))/(x2 - x1))",
            .parameters = {{"x1", "x of the response y1", Trait::reference},
                           {"y1", "response at x1", Trait::response},
                           {"x2", "x of the response y2", Trait::reference},
                           {"y2", "response at x2", Trait::response}},
            .typical = {{1, 1, 5, 2.5}, -0.1, 8}, .scales = Scales::x_only, .departures = {{1}, {2}, {3}, {4}},
            .true_derivatives = false,
            .same_as = "Log2P2(a = (x2 exp(y1) - x1 exp(y2))/(x2 - x1), b = (exp(y2) - exp(y1))/(x2 - x1))",
            .notes = "y has no unit. Fails for x1 = x2 and where the argument of the logarithm is not "
                     "positive. The model's own derivatives are the true ones only where x2 - x1 = 1, so that "
                     "a fit takes derivatives by differences.")

} // namespace ansatz::log_2p2_evp
