#include "protocol/handbook_law.h"

namespace ansatz::pareto {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (x[1] <= 0) return fail(at);
    y[1] = 1 - safe_pow(x[1], -P[1]);
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (x[1] <= 0) return fail(at, 1);
    const Real w = safe_pow(x[1], -P[1]);
    dyda[1] = log(x[1]) * w;
    y[1] = 1 - w;
    return math_error() ? fail(at, 1) : success;
}

} // namespace

ANSATZ_MODEL(Pareto, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(Pareto, .title = "Rise from 0 at x = 1 to 1, the gap shrinking as a power",
            .formula = "y = 1 - x^(-a)", .parameters = {{"a", "exponent", Trait::exponent}}, .x = {positive},
            .typical = {{1.5}, 1, 10}, .scales = Scales::neither,
            .known_as = "Pareto distribution function with the minimum 1", .source = "Pareto, 1896",
            .notes = "Fails for x <= 0. Every curve is 0 at x = 1.")

} // namespace ansatz::pareto

// At the reference x = 1 every curve is 0 and the response there says nothing. The value and dyda[1] are 0
// then, dyda[2] is marked, and the status is 0.
namespace ansatz::pareto_evp {
namespace {

bool parameters_fail(const Scalar* P, Real x) {
    return x <= 0 || P[1] <= 0 || P[2] >= 1;
}

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (parameters_fail(P, x[1])) return fail(at);
    if (P[1] == 1) {
        y[1] = 0;
        return success;
    }
    y[1] = 1 - safe_pow(1 - P[2], log(x[1]) / of_parameters<log>(P[1]));
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (parameters_fail(P, x[1])) return fail(at, 1, 2);
    if (P[1] == 1) {
        y[1] = dyda[1] = 0;
        dyda[2] = MISSING_VALUE;
        return success;
    }
    const Scalar a = 1 - P[2];
    const Scalar log_reference = of_parameters<log>(P[1]);
    const Real r = log(x[1]) / log_reference;
    const Real w = safe_pow(a, r);
    if (math_error()) return fail(at, 1, 2);
    y[1] = 1 - w;
    dyda[2] = w * r / a;
    dyda[1] = of_parameters<log>(a) * w * r / P[1] / log_reference;
    return math_error() ? fail_slots(at, 1) : success;
}

} // namespace

ANSATZ_MODEL(ParetoEVP, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(ParetoEVP, .title = "Rise from 0 at x = 1 to 1 as a power, by the response at one position",
            .formula = "y = 1 - (1 - y1)^(ln(x)/ln(x1))",
            .parameters = {{"x1", "x of the response y1", Trait::reference, positive},
                           {"y1", "response at x1", Trait::response, below(1)}},
            .x = {positive}, .typical = {{2, 0.6}, 1, 10}, .scales = Scales::neither,
            .departures = {{1, "x1 = 1"}, {2, "x1 = 1"}}, .same_as = "Pareto(a = -ln(1 - y1)/ln(x1))",
            .notes = "Fails for x <= 0, x1 <= 0 and y1 >= 1. Choose x1 other than 1, where every curve is 0.")

} // namespace ansatz::pareto_evp
