// Logarithm marks y[1] and dyda[1] for an argument that is not positive, y[1] alone for an error.

#include "protocol/handbook_law.h"

namespace ansatz::logarithm {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Real v = x[1] - P[1];
    if (v <= 0) return fail(at);
    y[1] = log(v);
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Real v = x[1] - P[1];
    if (v <= 0) return fail(at, 1);
    dyda[1] = -1 / v;
    y[1] = log(v);
    return math_error() ? fail(at) : success;
}

} // namespace

ANSATZ_MODEL(Logarithm, OnePath<value, derivatives>)

ANSATZ_PAGE(Logarithm, .title = "Natural logarithm with a shift", .formula = "y = ln(x - a)",
            .parameters = {{"a", "shift, below every x: the curve has its pole there", Trait::threshold}},
            .typical = {{1}, 1.05, 9}, .scales = Scales::neither,
            .notes = "Fails for x <= a: bound a from above by the least x of the data.")

} // namespace ansatz::logarithm

// LogarithmEVP takes an overflow of e^P2, or a range error pending on entry, for its limit y = P2 with
// derivatives 0 and 1, clears the indicator and succeeds.
//
// It is no expected-value form in the strict sense: it subtracts e^P2, so at x = P1 it fails instead of
// returning P2. Its derivative by P2 is that of a sum, +e^P2/v, and so has the wrong sign: hosts rely on it.
namespace ansatz::logarithm_evp {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Scalar e = of_parameters<safe_exp>(P[2]);
    if (range_error()) {
        clear_error();
        y[1] = P[2];
        return success;
    }
    const Real v = x[1] - P[1] - e;
    if (v <= 0) return fail(at);
    y[1] = log(v);
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Scalar e = of_parameters<safe_exp>(P[2]);
    if (range_error()) {
        clear_error();
        y[1] = P[2];
        dyda[1] = 0;
        dyda[2] = 1;
        return success;
    }
    const Real v = x[1] - P[1] - e;
    if (v <= 0) return fail(at, 1, 2);
    y[1] = log(v);
    if (math_error()) return fail(at, 1, 2);
    dyda[1] = -1 / v;
    dyda[2] = e / v;
    return success;
}

} // namespace

ANSATZ_MODEL(LogarithmEVP, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(LogarithmEVP,
            .title = "Natural logarithm whose pole lies an exponential above a reference position",
            .formula = "y = ln(x - x1 - exp(b))",
            .parameters = {{"x1", "position below the data, your choice", Trait::reference},
                           {"b", "logarithm of the distance from x1 to the pole", Trait::constant}},
            .typical = {{0.5, 0.2}, 1.8, 9}, .scales = Scales::neither, .departures = {{2}},
            .true_derivatives = false, .same_as = "Logarithm(a = x1 + exp(b))",
            .notes = "Fails for x <= x1 + exp(b), also at x1 itself, so choose x1 left of the data; unlike in "
                     "other expected-value forms b is not the response there. For b beyond 709 y is b. The "
                     "model's own derivative by b has the wrong sign, so that a fit takes derivatives by "
                     "differences.")

} // namespace ansatz::logarithm_evp
