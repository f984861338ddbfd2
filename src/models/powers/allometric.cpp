// A scale of 0 gives the value 0 (the offset in Allometric2) without a power, and the call ends there: no
// derivatives, even when both were requested. x <= 0 fails also then.

#include "protocol/forms.h"

namespace ansatz::allometric1 {
namespace {

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
    const Real w = safe_pow(x[1], P[2]);
    if (math_error()) return fail(at, 1, 2);
    const Real scaled = P[1] * w;
    dyda[1] = w;
    y[1] = scaled;
    dyda[2] = scaled * log(x[1]); // an error here would leave y[1] standing
    return math_error() ? fail_slots(at, 2) : success;
}

} // namespace

ANSATZ_MODEL(Allometric1, BothPaths<value, derivatives>)

ANSATZ_PAGE(Allometric1, .title = "Power law", .formula = "y = a x^b",
            .parameters = {{"a", "y at x = 1", Trait::level}, {"b", "exponent", Trait::exponent}},
            .x = {positive}, .typical = {{2, 0.6}, 0.05, 10}, .scales = Scales::y_only,
            .known_as = "allometric growth", .source = "Huxley, 1924",
            .notes = "Fails for x <= 0: leave out a point at x = 0.")

} // namespace ansatz::allometric1

namespace ansatz::allometric2 {
namespace {

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
    const Real w = safe_pow(x[1], P[3]);
    if (math_error()) return fail(at, 2, 3);
    const Real scaled = P[2] * w;
    dyda[2] = w;
    y[1] = scaled;
    dyda[3] = scaled * log(x[1]); // an error here would leave y[1] without the offset
    if (math_error()) return fail_slots(at, 3);
    y[1] = P[1] + scaled;
    return success;
}

} // namespace

ANSATZ_MODEL(Allometric2, BothPaths<value, derivatives>)

ANSATZ_PAGE(Allometric2, .title = "Power law with an offset", .formula = "y = a + b x^c",
            .parameters = {{"a", "offset", Trait::offset},
                           {"b", "amplitude: y - a at x = 1", Trait::amplitude},
                           {"c", "exponent", Trait::exponent}},
            .x = {positive}, .typical = {{1, 0.3, 1.7}, 0.05, 6}, .scales = Scales::y_only,
            .notes = "Fails for x <= 0: leave out a point at x = 0. With c close to 0 the power term is hard "
                     "to tell from the offset.")

} // namespace ansatz::allometric2
