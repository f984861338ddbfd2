// Each rehearsed failure marks y[1] and, on a derivative request, dyda[1..3].

#include "protocol/forms.h"

namespace ansatz::errtest {
namespace {

bool fails(Scalar rehearsal) {
    if (rehearsal == 1) exp(1000.0);
    // cppcheck-suppress wrongmathcall
    if (rehearsal == 2) log(-1.0);
    if (rehearsal == 1 || rehearsal == 2) return math_error();
    return rehearsal == 3;
}

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (fails(P[3])) return fail(at);
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

/// With both bits, the derivative path alone: it gives the same value, and where it fails it marks every slot.
struct Form {
    static Status serve(unsigned flags, const Point& at) {
        return BothPaths<value, derivatives>::serve(flags & FF_DERIV ? flags & ~(0u + FF_VALUE) : flags, at);
    }
};

} // namespace

ANSATZ_MODEL(errtest, Form)

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
