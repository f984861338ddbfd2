// Log2P1: a logarithm that starts at a shifted origin.
//
//   Log2P1      y = P2 ln(x - P1)
//               P1 shift, the position of the pole (unit of x); P2 scale (unit of y)
//               fails: x - P1 <= 0
//   Log2P1EVP   y = P3 ln(x - P1 + e^(P2/P3))
//               P1 reference position; P2 response expected there; P3 scale (unit of y)
//               fails: x - P1 + e^(P2/P3) <= 0, overflow of the exponential
//
//   The expected-value form is Log2P1 with the scale P3 and the shift P1 - e^(P2/P3). A scale of 0 is not
//   guarded against; what its divisions give is what the host gets. Most failures of its derivatives mark y[1]
//   only.

#include "protocol/handbook_law.h"

namespace ansatz::log_2p1 {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const double d = x[1] - P[1];
    if (d <= 0) return fail(at);
    y[1] = P[2] * log(d);
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const double d = x[1] - P[1];
    if (d <= 0) return fail(at, 1, 2);
    dyda[1] = -P[2] / d;
    dyda[2] = log(d);
    if (math_error()) return fail(at, 1, 2);
    y[1] = P[2] * dyda[2];
    return success;
}

} // namespace
} // namespace ansatz::log_2p1

namespace ansatz::log_2p1_evp {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const double v = x[1] - P[1] + of_parameters<safe_exp>(P[2] / P[3]);
    if (v <= 0) return fail(at);
    y[1] = P[3] * log(v);
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const double t = of_parameters<safe_exp>(P[2] / P[3]);
    if (math_error()) return fail(at);
    const double v = x[1] - P[1] + t;
    if (v <= 0) return fail(at);
    dyda[1] = -P[3] / v;
    dyda[2] = t / v;
    y[1] = P[3] * log(v);
    if (math_error()) return fail(at, 3);
    dyda[3] = (y[1] - P[2] * dyda[2]) / P[3];
    return success;
}

} // namespace

ANSATZ_MODEL(Log2P1, HandbookLaw<log_2p1::value, log_2p1::derivatives>)

ANSATZ_PAGE(Log2P1, .title = "", .formula = "y = b ln(x - a)",
            .parameters = {{"a", "shift, in the unit of x: the curve has its pole there", Trait::constant},
                           {"b", "scale, in the unit of y", Trait::constant}},
            .notes = "Fails for x <= a: start with a below the smallest x.")

ANSATZ_MODEL(Log2P1EVP, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(Log2P1EVP, .title = "", .formula = "y = b ln(x - x1 + exp(y1/b))",
            .parameters = {{"x1", "x of the response y1", Trait::reference},
                           {"y1", "response at x1", Trait::response},
                           {"b", "scale, in the unit of y, not 0", Trait::constant}},
            .notes = "Log2P1 through the point (x1, y1), with a = x1 - exp(y1/b). Fails for x <= a, and for a "
                     "b so close to 0 that the exponential overflows.")

} // namespace ansatz::log_2p1_evp
