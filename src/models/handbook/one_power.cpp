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

#include "models/handbook/law.h"
#include "protocol/of_parameters.h"

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
    y[1] = safe_pow(P[2], log(x[1]) / of_parameters<log>(0, P[1]));
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
    const double log_reference = of_parameters<log>(0, P[1]);
    const double r = log(x[1]) / log_reference;
    const double w = safe_pow(P[2], r);
    const double log_response = of_parameters<log>(1, P[2]);
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
    y[1] = 1 - safe_pow(1 - P[2], log(x[1]) / of_parameters<log>(0, P[1]));
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
    const double log_reference = of_parameters<log>(0, P[1]);
    const double r = log(x[1]) / log_reference;
    const double w = safe_pow(a, r);
    if (math_error()) return fail(at, 1, 2);
    y[1] = 1 - w;
    dyda[2] = w * r / a;
    dyda[1] = of_parameters<log>(1, a) * w * r / P[1] / log_reference;
    return math_error() ? fail_slots(at, 1) : success;
}

} // namespace pareto_evp
} // namespace
} // namespace ansatz

ANSATZ_MODEL(Power, ansatz::HandbookLaw<ansatz::power::value, ansatz::power::derivatives>)
ANSATZ_MODEL(PowerEVP, ansatz::HandbookLaw<ansatz::power_evp::value, ansatz::power_evp::derivatives>)
ANSATZ_MODEL(Pareto, ansatz::HandbookLaw<ansatz::pareto::value, ansatz::pareto::derivatives>)
ANSATZ_MODEL(ParetoEVP, ansatz::HandbookLaw<ansatz::pareto_evp::value, ansatz::pareto_evp::derivatives>)
