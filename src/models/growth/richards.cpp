// Richards. The value accepts a negative shape; for a shape of 0 it is P1, and a call for both ends with it.
// The derivatives fail for P4 <= 0.

#include "protocol/forms.h"

namespace ansatz::richards {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (P[4] == 0) {
        y[1] = P[1];
        return ends_call;
    }
    const Real t = safe_exp(-(P[3] * x[1] + P[2]) / P[4]);
    if (math_error()) return fail(at);
    const Real power = safe_pow(t + 1, P[4]);
    if (math_error()) return fail(at);
    y[1] = P[1] / power;
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (P[4] <= 0) return fail(at, 1, 2, 3, 4);
    const Real time = x[1];
    const Real u = (P[3] * time + P[2]) / P[4];
    const Real t = safe_exp(-u);
    if (math_error()) return fail(at, 1, 2, 3, 4);
    const Real s = t + 1;
    const Real share = safe_pow(s, -P[4]);
    if (math_error()) return fail(at, 1, 2, 3, 4);
    const Real level = P[1] * share;
    const Real by_location = level * t / s;
    y[1] = level;
    dyda[1] = share;
    dyda[2] = by_location;
    dyda[3] = by_location * time;
    dyda[4] = (-log(s) - u * t / s) * level;
    if (math_error()) return fail_slots(at, 4);
    return success;
}

} // namespace

ANSATZ_MODEL(Richards, BothPaths<value, derivatives>)

ANSATZ_PAGE(Richards, .title = "Sigmoidal growth with a shape, by its early exponential growth",
            .formula = "y = a/(1 + exp(-(k x + b)/m))^m",
            .parameters = {{"a", "ceiling", Trait::ceiling},
                           {"b", "location: early in the growth y = a exp(k x + b)", Trait::constant},
                           {"k", "rate of the early, exponential growth, 1/(unit of x)", Trait::rate},
                           {"m", "shape; 1 makes it the logistic curve", Trait::shape, positive}},
            .typical = {{8, -4, 1, 0.5}, 0, 10}, .known_as = "generalised logistic curve",
            .source = "Richards, 1959",
            .notes = "m < 0 has a value but no derivatives: bound m from below by a small positive number.")

} // namespace ansatz::richards
