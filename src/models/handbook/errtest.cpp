// errtest: a straight line that fails on demand, so that a host can rehearse its error handling.
//
//   y = P1 + P2 x
//
//   P1 intercept, P2 slope, P3 the rehearsal:
//     1   the library reports a range error (the exponential of a large number)
//     2   the library reports a domain error (the logarithm of a negative number)
//     3   a check of the parameters fails
//   Each marks y[1] and, on a derivative request, dyda[1..3]. Any other P3 leaves the line as it is; its
//   derivative by P3 is always 0.

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
        return FormD<value, derivatives>::serve(flags & FF_DERIV ? flags & ~(0u + FF_VALUE) : flags, at);
    }
};

} // namespace
} // namespace ansatz::errtest

ANSATZ_MODEL(errtest, ansatz::errtest::Form)
