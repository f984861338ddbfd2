// Power, Pareto and their expected-value forms: a power of x with a free exponent, and its complement to 1.
//
//   Power       y = x^P1                                P1 exponent
//   PowerEVP    y = P2^(ln x / ln P1)                   P1 reference x, P2 response there
//   Pareto      y = 1 - x^(-P1)                         P1 exponent
//   ParetoEVP   y = 1 - (1 - P2)^(ln x / ln P1)         P1 reference x, P2 response there
//
//   The expected-value forms read params[2] and write dyda[2]. All fail on a range or domain error, and:
//     Power       x <= 0 on the derivative path alone: dyda[1] is marked, y[1] stands; the value needs no
//                 more of x than that its power exists
//     PowerEVP    x <= 0, P1 <= 0, P2 <= 0; P1 == 1 with P2 != 1
//     Pareto      x <= 0
//     ParetoEVP   x <= 0, P1 <= 0, P2 >= 1
//   At the reference x = 1 every curve passes through one point and the response there says nothing: PowerEVP
//   gives 1 (for P2 == 1), ParetoEVP 0. The status is 0 there although derivative slots are marked: both in
//   PowerEVP, dyda[2] in ParetoEVP, whose dyda[1] is 0.

#include "protocol/handbook_law.h"

namespace ansatz {
namespace {
namespace power {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    y[1] = safe_pow(x[1], P[1]);
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const double w = safe_pow(x[1], P[1]);
    if (math_error()) return fail(at, 1);
    y[1] = w;
    if (x[1] <= 0) return fail_slots(at, 1);
    dyda[1] = log(x[1]) * w; // cannot err: x is positive
    return success;
}

} // namespace power

namespace power_evp {

bool parameters_fail(const double* P, double x) {
    return x <= 0 || P[1] <= 0 || P[2] <= 0 || (P[1] == 1 && P[2] != 1);
}

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (parameters_fail(P, x[1])) return fail(at);
    if (P[1] == 1) {
        y[1] = 1;
        return success;
    }
    y[1] = safe_pow(P[2], log(x[1]) / of_parameters<log>(P[1]));
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (parameters_fail(P, x[1])) return fail(at, 1, 2);
    if (P[1] == 1) {
        y[1] = 1;
        dyda[1] = dyda[2] = MISSING_VALUE;
        return success;
    }
    const double log_reference = of_parameters<log>(P[1]);
    const double r = log(x[1]) / log_reference;
    const double w = safe_pow(P[2], r);
    const double log_response = of_parameters<log>(P[2]);
    if (math_error()) return fail(at, 1, 2);
    dyda[1] = -w * r * log_response / P[1] / log_reference;
    dyda[2] = w * r / P[2];
    y[1] = w;
    return success;
}

} // namespace power_evp

namespace pareto {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (x[1] <= 0) return fail(at);
    y[1] = 1 - safe_pow(x[1], -P[1]);
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (x[1] <= 0) return fail(at, 1);
    const double w = safe_pow(x[1], -P[1]);
    dyda[1] = log(x[1]) * w;
    y[1] = 1 - w;
    return math_error() ? fail(at, 1) : success;
}

} // namespace pareto

namespace pareto_evp {

bool parameters_fail(const double* P, double x) {
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
    const double a = 1 - P[2];
    const double log_reference = of_parameters<log>(P[1]);
    const double r = log(x[1]) / log_reference;
    const double w = safe_pow(a, r);
    if (math_error()) return fail(at, 1, 2);
    y[1] = 1 - w;
    dyda[2] = w * r / a;
    dyda[1] = of_parameters<log>(a) * w * r / P[1] / log_reference;
    return math_error() ? fail_slots(at, 1) : success;
}

} // namespace pareto_evp
} // namespace

ANSATZ_MODEL(Power, HandbookLaw<power::value, power::derivatives>)

ANSATZ_PAGE(Power, .title = "", .formula = "y = x^a", .parameters = {{"a", "exponent", Trait::exponent}},
            .notes = "For x <= 0 there is a value where the power exists, but no derivative, and so no fit.")

ANSATZ_MODEL(PowerEVP, HandbookLaw<power_evp::value, power_evp::derivatives>)

ANSATZ_PAGE(PowerEVP, .title = "", .formula = "y = y1^(ln(x)/ln(x1))",
            .parameters = {{"x1", "reference x, your choice", Trait::reference},
                           {"y1", "y expected at x1", Trait::constant}},
            .notes = "Fails for x <= 0, x1 <= 0 and y1 <= 0. Choose x1 other than 1, where every curve is 1.")

ANSATZ_MODEL(Pareto, HandbookLaw<pareto::value, pareto::derivatives>)

ANSATZ_PAGE(Pareto, .title = "", .formula = "y = 1 - x^(-a)",
            .parameters = {{"a", "exponent", Trait::exponent}},
            .notes = "Fails for x <= 0. Every curve is 0 at x = 1.")

ANSATZ_MODEL(ParetoEVP, HandbookLaw<pareto_evp::value, pareto_evp::derivatives>)

ANSATZ_PAGE(ParetoEVP, .title = "", .formula = "y = 1 - (1 - y1)^(ln(x)/ln(x1))",
            .parameters = {{"x1", "reference x, your choice", Trait::reference},
                           {"y1", "y expected at x1", Trait::constant}},
            .notes = "Fails for x <= 0, x1 <= 0 and y1 >= 1. Choose x1 other than 1, where every curve is 0.")

} // namespace ansatz
