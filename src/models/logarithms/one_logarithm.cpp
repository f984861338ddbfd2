// Logarithm, LogarithmEVP: the logarithm from a shifted origin, one parameter.
//
//   Logarithm      y = ln(x - P1)             P1 shift: the x where the logarithm starts
//   LogarithmEVP   y = ln(x - P1 - e^P2)      P1 reference x, P2 log-offset; reads params[2], writes dyda[2]
//
//   Both fail where the argument of the logarithm is <= 0 and on a range or domain error. Logarithm marks y[1]
//   and dyda[1] for its argument, y[1] alone for an error. LogarithmEVP takes an overflow of e^P2, or a range
//   error pending on entry, for its limit y = P2 with derivatives 0 and 1, clears the indicator and succeeds.
//
//   LogarithmEVP is no expected-value form in the strict sense: it subtracts e^P2, so at x = P1 it fails
//   instead of returning P2. Its derivative by P2 has the sign of the sum, +e^P2/v, not of the difference that
//   is computed: a host that wants the true one negates dyda[2] or takes it numerically.

#include "protocol/handbook_law.h"

namespace ansatz {
namespace {
namespace logarithm {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const double v = x[1] - P[1];
    if (v <= 0) return fail(at);
    y[1] = log(v);
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const double v = x[1] - P[1];
    if (v <= 0) return fail(at, 1);
    dyda[1] = -1 / v;
    y[1] = log(v);
    return math_error() ? fail(at) : success;
}

} // namespace logarithm

namespace logarithm_evp {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const double e = of_parameters<safe_exp>(P[2]);
    if (range_error()) {
        clear_error();
        y[1] = P[2];
        return success;
    }
    const double v = x[1] - P[1] - e;
    if (v <= 0) return fail(at);
    y[1] = log(v);
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const double e = of_parameters<safe_exp>(P[2]);
    if (range_error()) {
        clear_error();
        y[1] = P[2];
        dyda[1] = 0;
        dyda[2] = 1;
        return success;
    }
    const double v = x[1] - P[1] - e;
    if (v <= 0) return fail(at, 1, 2);
    y[1] = log(v);
    if (math_error()) return fail(at, 1, 2);
    dyda[1] = -1 / v;
    dyda[2] = e / v;
    return success;
}

} // namespace logarithm_evp
} // namespace

ANSATZ_MODEL(Logarithm, OnePath<logarithm::value, logarithm::derivatives>)

ANSATZ_PAGE(Logarithm, .title = "", .formula = "y = ln(x - a)",
            .parameters = {{"a", "shift: x where the logarithm starts", Trait::constant}},
            .notes = "Fails for x <= a: bound a from above by the least x of the data.")

ANSATZ_MODEL(LogarithmEVP, HandbookLaw<logarithm_evp::value, logarithm_evp::derivatives>)

ANSATZ_PAGE(LogarithmEVP, .title = "", .formula = "y = ln(x - x1 - exp(b))",
            .parameters = {{"x1", "reference x, your choice", Trait::reference},
                           {"b", "logarithm of the distance from x1 to where the curve starts",
                            Trait::constant}},
            .true_derivatives = false,
            .notes = "Fails for x <= x1 + exp(b), also at x1 itself, so choose x1 left of the data. For b "
                     "beyond 709 y is b. The model's own derivative by b has the wrong sign, so that a fit "
                     "takes derivatives by differences.")

} // namespace ansatz
