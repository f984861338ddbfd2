// errtest: a straight line that fails on demand, so that a host can rehearse its error handling.
//
//   y = P1 + P2 x
//
//   P1 intercept, P2 slope, P3 the rehearsal:
//     1   the library reports a range error (the exponential of a large number)
//     2   the library reports a domain error (the logarithm of a negative number)
//     3   a check of the parameters fails
//   Each marks y[1] and dyda[1..3], even where the value alone was asked for: pass a dyda with three slots.
//   Any other P3 leaves the line as it is; its derivative by P3 is always 0.

#include "protocol/forms.h"

namespace ansatz::errtest {
namespace {

bool fails(double rehearsal) {
    if (rehearsal == 1) exp(1000.0);
    // cppcheck-suppress wrongmathcall
    if (rehearsal == 2) log(-1.0);
    if (rehearsal == 1 || rehearsal == 2) return math_error();
    return rehearsal == 3;
}

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (fails(P[3])) return fail(at, 1, 2, 3);
    y[1] = P[1] + P[2] * x[1];
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (fails(P[3])) return fail(at, 1, 2, 3);
    y[1] = P[1] + P[2] * x[1];
    dyda[1] = 1;
    dyda[2] = x[1];
    dyda[3] = 0;
    return success;
}

} // namespace

ANSATZ_MODEL(errtest, BothPaths<value, derivatives>)

ANSATZ_PAGE(errtest, .title = "A straight line that fails on demand", .formula = "y = a + b x",
            .parameters = {{"a", "intercept", Trait::offset},
                           {"b", "slope", Trait::slope},
                           {"c",
                            "without effect on y: the failure to rehearse, 1 range error, 2 domain error, 3 "
                            "failed check; any other value for none",
                            Trait::constant}},
            .typical = {{1, 0.5, 0}, 0, 10}, .same_as = "Line(a = a, b = b)",
            .notes = "Lets a host rehearse its error handling. A fit has to hold c (--fix c=0), which the line "
                     "does not depend on.")

} // namespace ansatz::errtest
