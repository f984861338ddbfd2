// Pow2P2 (routine Ratkowsky2P3): a power law whose origin lies at x = -1.
//
//   Pow2P2            y = P1 (x + 1)^P2
//                     P1 scale, the response at x = 0; P2 exponent
//                     fails: x + 1 <= 0, overflow
//   Ratkowsky2P3EVP   y = P2 ((x + 1) / (P1 + 1))^P3
//                     P1 reference position; P2 response expected there; P3 exponent
//                     fails: P1 + 1 == 0, (x + 1) / (P1 + 1) <= 0; the derivatives also on an overflow
//
//   In the expected-value form x and P1 may both lie below -1. Its value path does not look at the error
//   indicator: an overflow gives an infinite value with status 0 and leaves the indicator set.

#include "protocol/handbook_law.h"

namespace ansatz::ratkowsky_2p3 {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const double s = x[1] + 1;
    if (s <= 0) return fail(at);
    y[1] = P[1] * safe_pow(s, P[2]);
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const double s = x[1] + 1;
    if (s <= 0) return fail(at, 1, 2);
    const double W = safe_pow(s, P[2]);
    if (math_error()) return fail(at, 1, 2);
    dyda[1] = W;
    y[1] = P[1] * W;
    dyda[2] = y[1] * log(s);
    return math_error() ? fail_slots(at, 2) : success;
}

} // namespace
} // namespace ansatz::ratkowsky_2p3

namespace ansatz::ratkowsky_2p3_evp {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const double d = P[1] + 1;
    if (d == 0) return fail(at);
    const double r = (x[1] + 1) / d;
    if (r <= 0) return fail(at);
    y[1] = P[2] * safe_pow(r, P[3]);
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const double d = P[1] + 1;
    if (d == 0) return fail(at, 1, 2, 3);
    const double r = (1 + x[1]) / d;
    if (r <= 0) return fail(at, 1, 2, 3);
    const double W = safe_pow(r, P[3]);
    if (math_error()) return fail(at, 1, 2, 3);
    dyda[2] = W;
    y[1] = P[2] * W;
    dyda[1] = -y[1] * P[3] / d;
    dyda[3] = log(r) * y[1];
    return math_error() ? fail_slots(at, 3) : success;
}

} // namespace

ANSATZ_MODEL(Pow2P2, HandbookLaw<ratkowsky_2p3::value, ratkowsky_2p3::derivatives>)

ANSATZ_PAGE(Pow2P2, .title = "", .formula = "y = a (x + 1)^b",
            .parameters = {{"a", "response at x = 0", Trait::level}, {"b", "exponent", Trait::exponent}},
            .notes = "Fails for x <= -1.")

ANSATZ_MODEL(Ratkowsky2P3EVP, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(
    Ratkowsky2P3EVP, .title = "", .formula = "y = y1 ((x + 1)/(x1 + 1))^b",
    .parameters = {{"x1", "x of the response y1", Trait::reference},
                   {"y1", "response at x1", Trait::response},
                   {"b", "exponent", Trait::exponent}},
    .notes = "Pow2P2 through the point (x1, y1). Fails for x1 = -1 and where (x + 1)/(x1 + 1) is not positive.")

} // namespace ansatz::ratkowsky_2p3_evp
