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

#include "models/handbook/law.h"
#include "protocol/of_parameters.h"

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
    const double e = of_parameters<safe_exp>(0, P[2]);
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
    const double e = of_parameters<safe_exp>(0, P[2]);
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
} // namespace ansatz

ANSATZ_MODEL(Logarithm, ansatz::FormE<ansatz::logarithm::value, ansatz::logarithm::derivatives>)
ANSATZ_MODEL(LogarithmEVP,
             ansatz::HandbookLaw<ansatz::logarithm_evp::value, ansatz::logarithm_evp::derivatives>)
