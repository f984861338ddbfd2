// Log2P2: the logarithm of a straight line.
//
//   Log2P2      y = ln(P1 + P2 x)
//               P1 intercept, P2 slope of the line (per unit of x); y has no unit
//               fails: P1 + P2 x <= 0
//   Log2P2EVP   y = ln(q),  q = ((x - P1) e^P4 + (P3 - x) e^P2) / (P3 - P1)
//               P1, P3 reference positions; P2, P4 responses expected there
//               fails: P3 - P1 == 0, q <= 0, overflow of an exponential
//
//   The expected-value form is Log2P2 with the line through (P1, e^P2) and (P3, e^P4).
//
//   Its derivatives divide the exponentials by q where the calculus has q (P3 - P1). So they are the true ones
//   only where P3 - P1 == 1: choose the reference positions one unit of x apart, the lower one first, or have
//   the host take differences of the value.

#include "protocol/handbook_law.h"

namespace ansatz::log_2p2 {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const double s = P[1] + P[2] * x[1];
    if (s <= 0) return fail(at);
    y[1] = log(s);
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const double s = P[1] + P[2] * x[1];
    if (s <= 0) return fail(at, 1, 2);
    dyda[1] = 1 / s;
    dyda[2] = x[1] / s;
    y[1] = log(s);
    return math_error() ? fail(at) : success; // the slots above stand
}

} // namespace
} // namespace ansatz::log_2p2

namespace ansatz::log_2p2_evp {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (P[3] - P[1] == 0) return fail(at);
    const double E2 = of_parameters<safe_exp>(P[2]), E4 = of_parameters<safe_exp>(P[4]);
    const double q = ((x[1] - P[1]) * E4 + (P[3] - x[1]) * E2) / (P[3] - P[1]);
    if (q <= 0) return fail(at);
    y[1] = log(q);
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const double d = P[3] - P[1];
    if (d == 0) return fail(at);
    const double E2 = of_parameters<safe_exp>(P[2]), E4 = of_parameters<safe_exp>(P[4]);
    if (math_error()) return fail(at);
    const double u = x[1] - P[1], v = P[3] - x[1];
    const double q = (u * E4 + v * E2) / d;
    if (q <= 0) return fail_all(at, 4);
    dyda[1] = 1 / d - E4 / q;
    dyda[3] = E2 / q - 1 / d;
    dyda[2] = v * E2 / q;
    dyda[4] = u * E4 / q;
    y[1] = log(q);
    return math_error() ? fail(at) : success; // the slots above stand
}

} // namespace

ANSATZ_MODEL(Log2P2, HandbookLaw<log_2p2::value, log_2p2::derivatives>)

ANSATZ_PAGE(Log2P2, .title = "", .formula = "y = ln(a + b x)",
            .parameters = {{"a", "intercept of the line exp(y) against x", Trait::constant},
                           {"b", "its slope", Trait::constant}},
            .notes = "Fails where a + b x <= 0.")

ANSATZ_MODEL(Log2P2EVP, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(Log2P2EVP, .title = "", .formula = "y = ln(((x - x1) exp(y2) + (x2 - x) exp(y1))/(x2 - x1))",
            .parameters = {{"x1", "x of the response y1", Trait::reference},
                           {"y1", "response at x1", Trait::response},
                           {"x2", "x of the response y2", Trait::reference},
                           {"y2", "response at x2", Trait::response}},
            .true_derivatives = false,
            .notes = "Log2P2 through the points (x1, y1) and (x2, y2). Fails for x1 = x2 and where the "
                     "argument of the logarithm is not positive. The derivatives that the routine itself "
                     "offers are the true ones only where x2 - x1 = 1.")

} // namespace ansatz::log_2p2_evp
