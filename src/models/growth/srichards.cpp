// SRichards1 and SRichards2. In the derivatives every failure marks all slopes, but for two that mark y only:
// an overflow in SRichards1, and in SRichards2 an overflow of the exponential or a base that is not positive.

#include "protocol/forms.h"

namespace ansatz::srichards1 {
namespace {

bool outside_domain(const Scalar* P) {
    return P[3] == 1 || P[1] <= 0 || P[4] <= 0;
}

/// The exponential with the sign it is subtracted with.
Real signed_term(Real e, Scalar shape) {
    return shape < 1 ? e : -e;
}

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (outside_domain(P)) return fail(at);
    const Scalar c = 1 - P[3];
    const Real e = safe_exp(-(x[1] - P[2]) * P[4]);
    if (math_error()) return fail(at);
    const Scalar a = of_parameters<safe_pow>(P[1], c);
    if (math_error()) return fail(at);
    const Real b = a - signed_term(e, P[3]);
    if (b <= 0) return fail(at);
    const Real level = safe_pow(b, 1 / c);
    if (math_error()) return fail(at);
    y[1] = level;
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (outside_domain(P)) return fail(at, 1, 2, 3, 4);
    const Scalar ceiling = P[1], rate = P[4];
    const Scalar c = 1 - P[3];
    const Real d = x[1] - P[2];
    const Real e = safe_exp(-d * rate);
    if (math_error()) return fail(at);
    const Scalar a = of_parameters<safe_pow>(ceiling, c);
    if (math_error()) return fail(at);
    const Real term = signed_term(e, P[3]);
    const Real b = a - term;
    if (b <= 0) return fail(at, 1, 2, 3, 4);
    const Real level = safe_pow(b, 1 / c);
    if (math_error()) return fail(at);
    const Real q = level / b;
    y[1] = level;
    dyda[1] = a / ceiling * q;
    dyda[2] = -rate * q * term / c;
    dyda[4] = d * q * term / c;
    const Real log_b = log(b);
    const Scalar log_ceiling = of_parameters<log>(ceiling);
    if (math_error()) return fail_slots(at, 3);
    dyda[3] = level / c * (log_b / c - log_ceiling * a / b);
    return success;
}

} // namespace

ANSATZ_MODEL(SRichards1, BothPaths<value, derivatives>)

ANSATZ_PAGE(SRichards1, .title = "Sigmoidal growth with a shape, located by its exponential",
            .formula = "y = (a^(1 - d) - s exp(-(x - xc) k))^(1/(1 - d)),  s = 1 for d < 1, -1 for d > 1",
            .parameters = {{"a", "ceiling", Trait::ceiling, positive},
                           {"xc", "location: the exponential is 1 there", Trait::position},
                           {"d", "shape, other than 1; 2 makes it the logistic curve", Trait::exponent},
                           {"k", "rate", Trait::rate, positive}},
            .typical = {{8, 4, 2.5, 2}, 0, 8}, .scales = Scales::x_only,
            .same_as = "Richards(a = a, b = -k xc/(d - 1) - ln(a), k = k/(d - 1), m = 1/(d - 1))",
            .source = "Richards, 1959",
            .notes = "Fails for d = 1, a <= 0 and k <= 0, and for d < 1 where the base of the outer power is "
                     "not positive, before growth sets in: data that begin earlier need d > 1. A fit cannot "
                     "cross d = 1: start on the right side. xc is hard to guess, since it depends on a and d; "
                     "SRichards2 has the same curves for d > 0 with an xc one can see; for d > 1 so has "
                     "Richards, with m = 1/(d - 1).")

} // namespace ansatz::srichards1

namespace ansatz::srichards2 {
namespace {

bool outside_domain(const Scalar* P) {
    return P[3] == 1 || P[1] <= 0 || P[3] <= 0 || P[4] <= 0;
}

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (outside_domain(P)) return fail(at);
    const Real e = safe_exp(-(x[1] - P[2]) * P[4]);
    if (math_error()) return fail(at);
    const Scalar r = 1 / (1 - P[3]);
    const Real b = 1 - e / r;
    if (b <= 0) return fail(at);
    const Real power = safe_pow(b, r);
    if (math_error()) return fail(at);
    y[1] = P[1] * power;
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (outside_domain(P)) return fail(at, 1, 2, 3, 4);
    const Scalar rate = P[4];
    const Real d = x[1] - P[2];
    const Real e = safe_exp(-d * rate);
    if (math_error()) return fail(at);
    const Scalar r = 1 / (1 - P[3]);
    const Real b = 1 - e / r;
    if (b <= 0) return fail(at);
    const Real power = safe_pow(b, r);
    if (math_error()) return fail(at, 1, 2, 3, 4);
    const Real level = power * P[1];
    const Real w = level * e / b;
    y[1] = level;
    dyda[1] = power;
    dyda[2] = -rate * w;
    dyda[4] = w * d;
    const Real log_power = log(b) * r;
    if (math_error()) { // and the indicator stays set
        dyda[3] = MISSING_VALUE;
        return failure;
    }
    dyda[3] = (log_power + e / b) * r * level;
    return success;
}

} // namespace

ANSATZ_MODEL(SRichards2, BothPaths<value, derivatives>)

ANSATZ_PAGE(SRichards2, .title = "Sigmoidal growth with a shape, located by its point of inflection",
            .formula = "y = a (1 - (1 - d) exp(-(x - xc) k))^(1/(1 - d))",
            .parameters = {{"a", "ceiling", Trait::ceiling, positive},
                           {"xc", "centre: x of the fastest growth, where y = a d^(1/(1 - d))",
                            Trait::position},
                           {"d", "shape, other than 1; 2 makes it the logistic curve", Trait::shape, positive},
                           {"k", "rate", Trait::rate, positive}},
            .typical = {{8, 4, 3, 1.5}, 0, 8},
            .same_as = "Richards(a = a, b = -(k xc + ln(d - 1))/(d - 1), k = k/(d - 1), m = 1/(d - 1))",
            .source = "Richards, 1959",
            .notes = "Fails for d = 1, a <= 0, d <= 0 and k <= 0, and for d < 1 where the base of the outer "
                     "power is not positive, before growth sets in: data that begin earlier need d > 1. "
                     "Approaches SGompertz for d near 1, but a fit cannot cross it: start on the right side. "
                     "For d > 1 the curve is that of Richards with m = 1/(d - 1).")

} // namespace ansatz::srichards2
