// Allometric1, Allometric2: the power law of growth and form, without and with an offset.
//
//   Allometric1   y = P1 x^P2             P1 scale (value at x = 1), P2 exponent
//   Allometric2   y = P1 + P2 x^P3        P1 offset, P2 scale, P3 exponent
//
//   Both fail for x <= 0, also with a scale of 0, and on a range error of the power. A scale of 0 gives the
//   value 0 (P1 in Allometric2) without a power, and the call ends there: no derivatives, even when both were
//   requested; ask for the derivatives alone.

#include "protocol/forms.h"

namespace ansatz {
namespace {
namespace allometric1 {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (x[1] <= 0) return fail(at);
    if (P[1] == 0) {
        y[1] = 0;
        return ends_call;
    }
    y[1] = P[1] * safe_pow(x[1], P[2]);
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (x[1] <= 0) return fail(at, 1, 2);
    const double w = safe_pow(x[1], P[2]);
    if (math_error()) return fail(at, 1, 2);
    const double scaled = P[1] * w;
    dyda[1] = w;
    y[1] = scaled;
    dyda[2] = scaled * log(x[1]); // an error here would leave y[1] standing
    return math_error() ? fail_slots(at, 2) : success;
}

} // namespace allometric1

namespace allometric2 {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (x[1] <= 0) return fail(at);
    if (P[2] == 0) {
        y[1] = P[1];
        return ends_call;
    }
    y[1] = P[1] + P[2] * safe_pow(x[1], P[3]);
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (x[1] <= 0) return fail(at, 1, 2, 3);
    dyda[1] = 1;
    const double w = safe_pow(x[1], P[3]);
    if (math_error()) return fail(at, 2, 3);
    const double scaled = P[2] * w;
    dyda[2] = w;
    y[1] = scaled;
    dyda[3] = scaled * log(x[1]); // an error here would leave y[1] without the offset
    if (math_error()) return fail_slots(at, 3);
    y[1] = P[1] + scaled;
    return success;
}

} // namespace allometric2
} // namespace

ANSATZ_MODEL(Allometric1, BothPaths<allometric1::value, allometric1::derivatives>)

ANSATZ_PAGE(Allometric1, .title = "", .formula = "y = a x^b",
            .parameters = {{"a", "scale: y at x = 1", Trait::constant}, {"b", "exponent", Trait::exponent}},
            .notes = "Fails for x <= 0: leave out a point at x = 0.")

ANSATZ_MODEL(Allometric2, BothPaths<allometric2::value, allometric2::derivatives>)

ANSATZ_PAGE(Allometric2, .title = "", .formula = "y = a + b x^c",
            .parameters = {{"a", "offset", Trait::offset},
                           {"b", "scale: y - a at x = 1", Trait::constant},
                           {"c", "exponent", Trait::exponent}},
            .notes = "Fails for x <= 0: leave out a point at x = 0.")

} // namespace ansatz
