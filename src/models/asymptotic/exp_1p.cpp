// Exp1P1 .. Exp1P4: exponentials of one parameter, by a shift or a rate, and for a rate also by a base.
//
// What a failing derivative path marks differs: y[1] and dyda[1] in Exp1P1, Exp1P2 and Exp1P4Md, y[1] alone in
// the others.

#include "protocol/handbook_law.h"

namespace ansatz::exp_1p1 {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    y[1] = safe_exp(x[1] - P[1]);
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Real e = safe_exp(x[1] - P[1]);
    if (math_error()) return fail(at, 1);
    dyda[1] = -e;
    y[1] = e;
    return success;
}

} // namespace

ANSATZ_MODEL(Exp1P1, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(Exp1P1, .title = "Exponential growth at a rate of 1, from a shifted origin",
            .formula = "y = exp(x - a)", .parameters = {{"a", "shift: x where y is 1", Trait::position}},
            .typical = {{1}, -2, 3}, .scales = Scales::neither,
            .notes = "Fails when the exponential overflows.")

} // namespace ansatz::exp_1p1

namespace ansatz::exp_1p2 {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    y[1] = safe_exp(-P[1] * x[1]);
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Real e = safe_exp(-P[1] * x[1]);
    if (math_error()) return fail(at, 1);
    dyda[1] = -x[1] * e;
    y[1] = e;
    return success;
}

} // namespace

ANSATZ_MODEL(Exp1P2, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(Exp1P2, .title = "Exponential decay from 1 to 0, by a rate", .formula = "y = exp(-k x)",
            .parameters = {{"k", "rate, 1/(unit of x); negative for growth", Trait::rate}},
            .typical = {{0.5}, 0, 10}, .scales = Scales::x_only, .known_as = "exponential survival function",
            .notes = "Fails when the exponential overflows.")

} // namespace ansatz::exp_1p2

namespace ansatz::exp_1p2_md {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (P[1] <= 0) return fail(at);
    y[1] = safe_pow(P[1], x[1]);
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (P[1] <= 0) return fail(at);
    const Real w = safe_pow(P[1], x[1]);
    if (math_error()) return fail(at);
    dyda[1] = x[1] * w / P[1];
    y[1] = w;
    return success;
}

} // namespace

ANSATZ_MODEL(Exp1P2Md, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(Exp1P2Md, .title = "Exponential decay from 1 to 0, by a base", .formula = "y = r^x",
            .parameters = {{"r", "base: factor per unit of x; above 1 for growth", Trait::base, positive}},
            .typical = {{0.6}, 0, 10}, .scales = Scales::neither, .same_as = "Exp1P2(k = -ln(r))",
            .notes = "Fails for r <= 0 and when the power overflows.")

} // namespace ansatz::exp_1p2_md

namespace ansatz::exp_1p3 {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (P[1] == 0) {
        y[1] = 0;
        return success;
    }
    y[1] = P[1] * safe_exp(-P[1] * x[1]);
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (P[1] == 0) {
        y[1] = 0;
        dyda[1] = MISSING_VALUE; // no failure, although the derivative proper is 1
        return success;
    }
    const Real w = P[1] * safe_exp(-P[1] * x[1]);
    if (math_error()) return fail(at);
    dyda[1] = (1 / P[1] - x[1]) * w;
    y[1] = w;
    return success;
}

} // namespace

ANSATZ_MODEL(Exp1P3, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(Exp1P3, .title = "Density of the exponential distribution, by a rate", .formula = "y = k exp(-k x)",
            .parameters = {{"k", "rate, 1/(unit of x), also y at x = 0", Trait::rate, positive}},
            .typical = {{0.5}, 0, 10}, .scales = Scales::neither, .departures = {{1, "k = 0"}},
            .known_as = "exponential distribution",
            .notes =
                "Fails when the exponential overflows. A rate <= 0 is computed but is no density; at k = 0 "
                "the derivative is missing, without a failure.")

} // namespace ansatz::exp_1p3

namespace ansatz::exp_1p3_md {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (P[1] <= 0) return fail(at);
    y[1] = -of_parameters<log>(P[1]) * safe_pow(P[1], x[1]);
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (P[1] <= 0) return fail(at);
    const Real w = safe_pow(P[1], x[1]);
    const Real density = -of_parameters<log>(P[1]) * w;
    if (math_error()) return fail(at);
    dyda[1] = (density * x[1] - w) / P[1];
    y[1] = density;
    return success;
}

} // namespace

ANSATZ_MODEL(Exp1P3Md, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(Exp1P3Md, .title = "Density of the exponential distribution, by a base",
            .formula = "y = -ln(r) r^x",
            .parameters = {{"r", "base: factor per unit of x", Trait::base, between(0, 1)}},
            .typical = {{0.6}, 0, 10}, .scales = Scales::neither, .same_as = "Exp1P3(k = -ln(r))",
            .notes = "Fails for r <= 0 and when the power overflows. r >= 1 is computed but is no density.")

} // namespace ansatz::exp_1p3_md

namespace ansatz::exp_1p4 {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    y[1] = 1 - safe_exp(-P[1] * x[1]);
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Real e = safe_exp(-P[1] * x[1]);
    if (math_error()) return fail(at);
    dyda[1] = x[1] * e;
    y[1] = 1 - e;
    return success;
}

} // namespace

ANSATZ_MODEL(Exp1P4, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(Exp1P4, .title = "Exponential rise from 0 to 1, by a rate", .formula = "y = 1 - exp(-k x)",
            .parameters = {{"k", "rate, 1/(unit of x)", Trait::rate}}, .typical = {{0.5}, 0, 10},
            .scales = Scales::x_only, .known_as = "cumulative exponential distribution",
            .notes = "Fails when the exponential overflows.")

} // namespace ansatz::exp_1p4

namespace ansatz::exp_1p4_md {
namespace {

/// The power is not tested: an overflow gives -infinity with status 0 and leaves the error indicator set.
Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (P[1] <= 0) return fail(at);
    y[1] = 1 - safe_pow(P[1], x[1]);
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (P[1] <= 0) return fail(at, 1);
    const Real w = safe_pow(P[1], x[1]);
    if (math_error()) return fail(at, 1);
    dyda[1] = -(x[1] / P[1]) * w;
    y[1] = 1 - w;
    return success;
}

} // namespace

ANSATZ_MODEL(Exp1P4Md, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(Exp1P4Md, .title = "Exponential rise from 0 to 1, by a base", .formula = "y = 1 - r^x",
            .parameters = {{"r", "base: what is left of the gap to 1 after one unit of x", Trait::base,
                            positive}},
            .typical = {{0.6}, 0, 10}, .scales = Scales::neither, .same_as = "Exp1P4(k = -ln(r))",
            .notes = "Fails for r <= 0. Where the power overflows, the value is minus infinity and the "
                     "derivatives, and so a fit, fail.")

} // namespace ansatz::exp_1p4_md
