// The exponential law of one parameter: the decay, its complement to 1, and the density, each by a rate, by a
// base and (but for the density) by the response expected at a reference x.
//
//   decay        Exp1P2          y = e^(-P1 x)                 P1 rate       routine Exponent2
//                Exp1P2Md        y = P1^x                      P1 base       routine Exponent2Mod1
//                Exponent2EVP    y = P2^(x/P1)                 P1 reference x, P2 response there
//   complement   Exp1P4          y = 1 - e^(-P1 x)             P1 rate       routine Exponent3
//                Exp1P4Md        y = 1 - P1^x                  P1 base       routine Exponent3Mod1
//                Exponent3EVP    y = 1 - (1 - P2)^(x/P1)       P1 reference x, P2 response there
//   density      Exp1P3          y = P1 e^(-P1 x)              P1 rate       routine Exponent1
//                Exp1P3Md        y = -ln P1 P1^x               P1 base       routine Exponent1Mod
//
//   A rate is per unit of x and may be negative; a base is the factor per unit of x, e^-rate. The
//   expected-value forms read params[2] and write dyda[2]. All fail on a range error, and the forms with a base
//   for P1 <= 0, Exponent2EVP for P2 <= 0 and P1 == 0, Exponent3EVP for P2 >= 1.
//
//   What a failing derivative path marks differs: y[1] alone in Exp1P2Md, Exp1P4, Exp1P3 and Exp1P3Md; y[1] and
//   dyda[1] in Exp1P2 and Exp1P4Md; all slots in the expected-value forms, but y[1] alone where the power of
//   Exponent2EVP errs.
//
//   Oddities: Exp1P4Md does not test its power on the value path, so an overflow gives -infinity with status 0
//   and leaves the error indicator set. Exp1P3 with P1 == 0 has the value 0 and marks dyda[1] with status 0.
//   Exponent3EVP with P1 == 0 has the value 0; its derivative path writes that value too, marks both slots
//   and returns 1.

#include "protocol/handbook_law.h"

namespace ansatz {
namespace {

// The decay.

namespace exponent2 {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    y[1] = safe_exp(-P[1] * x[1]);
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const double e = safe_exp(-P[1] * x[1]);
    if (math_error()) return fail(at, 1);
    dyda[1] = -x[1] * e;
    y[1] = e;
    return success;
}

} // namespace exponent2

namespace exponent2_mod1 {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (P[1] <= 0) return fail(at);
    y[1] = safe_pow(P[1], x[1]);
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (P[1] <= 0) return fail(at);
    const double w = safe_pow(P[1], x[1]);
    if (math_error()) return fail(at);
    dyda[1] = x[1] * w / P[1];
    y[1] = w;
    return success;
}

} // namespace exponent2_mod1

namespace exponent2_evp {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (P[2] <= 0 || P[1] == 0) return fail(at);
    y[1] = safe_pow(P[2], x[1] / P[1]);
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (P[2] <= 0 || P[1] == 0) return fail(at, 1, 2);
    const double t = x[1] / P[1];
    const double w = safe_pow(P[2], t);
    if (math_error()) return fail(at);
    y[1] = w;
    dyda[2] = t * w / P[2];
    dyda[1] = -(t * w / P[1]) * of_parameters<log>(P[2]);
    return math_error() ? fail_slots(at, 1) : success;
}

} // namespace exponent2_evp

// The complement.

namespace exponent3 {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    y[1] = 1 - safe_exp(-P[1] * x[1]);
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const double e = safe_exp(-P[1] * x[1]);
    if (math_error()) return fail(at);
    dyda[1] = x[1] * e;
    y[1] = 1 - e;
    return success;
}

} // namespace exponent3

namespace exponent3_mod1 {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (P[1] <= 0) return fail(at);
    y[1] = 1 - safe_pow(P[1], x[1]);
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (P[1] <= 0) return fail(at, 1);
    const double w = safe_pow(P[1], x[1]);
    if (math_error()) return fail(at, 1);
    dyda[1] = -(x[1] / P[1]) * w;
    y[1] = 1 - w;
    return success;
}

} // namespace exponent3_mod1

namespace exponent3_evp {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (P[2] >= 1) return fail(at);
    if (P[1] == 0) {
        y[1] = 0;
        return success;
    }
    y[1] = 1 - safe_pow(1 - P[2], x[1] / P[1]);
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (P[2] >= 1) return fail(at, 1, 2);
    if (P[1] == 0) {
        y[1] = 0;
        return fail_slots(at, 1, 2);
    }
    const double a = 1 - P[2];
    const double w = safe_pow(a, x[1] / P[1]);
    if (math_error()) return fail(at, 1, 2);
    y[1] = 1 - w;
    dyda[2] = x[1] * w / P[1] / a;
    dyda[1] = of_parameters<log>(a) * x[1] * w / (P[1] * P[1]);
    return math_error() ? fail_slots(at, 1) : success;
}

} // namespace exponent3_evp

// The density.

namespace exponent1 {

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
        dyda[1] = MISSING_VALUE;
        return success;
    }
    const double w = P[1] * safe_exp(-P[1] * x[1]);
    if (math_error()) return fail(at);
    dyda[1] = (1 / P[1] - x[1]) * w;
    y[1] = w;
    return success;
}

} // namespace exponent1

namespace exponent1_mod {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (P[1] <= 0) return fail(at);
    y[1] = -of_parameters<log>(P[1]) * safe_pow(P[1], x[1]);
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (P[1] <= 0) return fail(at);
    const double w = safe_pow(P[1], x[1]);
    const double density = -of_parameters<log>(P[1]) * w;
    if (math_error()) return fail(at);
    dyda[1] = (density * x[1] - w) / P[1];
    y[1] = density;
    return success;
}

} // namespace exponent1_mod
} // namespace

ANSATZ_MODEL(Exp1P2, HandbookLaw<exponent2::value, exponent2::derivatives>)

ANSATZ_PAGE(Exp1P2, .title = "", .formula = "y = exp(-k x)",
            .parameters = {{"k", "rate, 1/(unit of x)", Trait::rate}},
            .notes = "Fails when the exponential overflows.")

ANSATZ_MODEL(Exp1P2Md, HandbookLaw<exponent2_mod1::value, exponent2_mod1::derivatives>)

ANSATZ_PAGE(Exp1P2Md, .title = "", .formula = "y = r^x",
            .parameters = {{"r", "base: factor per unit of x, above 0", Trait::base}},
            .notes = "Fails for r <= 0. Exp1P2 with k = -ln(r).")

ANSATZ_MODEL(Exponent2EVP, HandbookLaw<exponent2_evp::value, exponent2_evp::derivatives>)

ANSATZ_PAGE(Exponent2EVP, .title = "", .formula = "y = y1^(x/x1)",
            .parameters = {{"x1", "reference x, your choice", Trait::reference},
                           {"y1", "y expected at x1", Trait::constant}},
            .notes = "Fails for x1 = 0 and y1 <= 0.")

ANSATZ_MODEL(Exp1P4, HandbookLaw<exponent3::value, exponent3::derivatives>)

ANSATZ_PAGE(Exp1P4, .title = "", .formula = "y = 1 - exp(-k x)",
            .parameters = {{"k", "rate, 1/(unit of x)", Trait::rate}},
            .notes = "Fails when the exponential overflows.")

ANSATZ_MODEL(Exp1P4Md, HandbookLaw<exponent3_mod1::value, exponent3_mod1::derivatives>)

ANSATZ_PAGE(Exp1P4Md, .title = "", .formula = "y = 1 - r^x",
            .parameters = {{"r", "base: factor per unit of x, above 0", Trait::base}},
            .notes = "Fails for r <= 0. Exp1P4 with k = -ln(r).")

ANSATZ_MODEL(Exponent3EVP, HandbookLaw<exponent3_evp::value, exponent3_evp::derivatives>)

ANSATZ_PAGE(Exponent3EVP, .title = "", .formula = "y = 1 - (1 - y1)^(x/x1)",
            .parameters = {{"x1", "reference x, your choice", Trait::reference},
                           {"y1", "y expected at x1, below 1", Trait::constant}},
            .notes = "Fails for y1 >= 1. At x1 = 0 there is a value, 0, and no fit.")

ANSATZ_MODEL(Exp1P3, HandbookLaw<exponent1::value, exponent1::derivatives>)

ANSATZ_PAGE(Exp1P3, .title = "", .formula = "y = k exp(-k x)",
            .parameters = {{"k", "rate, 1/(unit of x)", Trait::rate}},
            .notes = "Fails when the exponential overflows.")

ANSATZ_MODEL(Exp1P3Md, HandbookLaw<exponent1_mod::value, exponent1_mod::derivatives>)

ANSATZ_PAGE(Exp1P3Md, .title = "", .formula = "y = -ln(r) r^x",
            .parameters = {{"r", "base: factor per unit of x, above 0", Trait::base}},
            .notes = "Fails for r <= 0. Exp1P3 with k = -ln(r).")

} // namespace ansatz
