// The expected-value forms of Pow2P3, Pow2P1 and Pow2P2.

#include "protocol/handbook_law.h"

// Fails also where P1 or P3 is so small that 1 + P3 P1 is 1.
namespace ansatz::ratkowsky_2p1_evp {
namespace {

/// The three numbers whose logarithms the law takes.
struct Arguments {
    Scalar a, w;
    Real u;

    explicit Arguments(const Point& at) : a(1 - at.P[2]), w(1 + at.P[3] * at.P[1]), u(1 + at.P[3] * at.x[1]) {}

    bool outside() const { return a <= 0 || u <= 0 || w <= 0 || w == 1; }
};

Status value(const Point& at) {
    if (math_error()) return fail(at); // an error still pending from elsewhere
    const Arguments args(at);
    if (args.outside()) return fail(at);
    at.y[1] = 1 - safe_pow(args.a, log(args.u) / of_parameters<log>(args.w));
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Arguments args(at);
    if (args.outside()) return fail(at, 1, 2, 3);
    const auto [a, w, u] = args;
    const Real Lu = log(u);
    const Scalar Lw = of_parameters<log>(w);
    const Real W = safe_pow(a, Lu / Lw);
    if (math_error()) return fail(at, 1, 2, 3);
    dyda[2] = W * Lu / Lw / a;
    y[1] = 1 - W;
    const Scalar La = of_parameters<log>(a);
    if (math_error()) return fail_slots(at, 1, 3);
    dyda[1] = La * Lu * P[3] * W / w / (Lw * Lw);
    dyda[3] = -La * W * (x[1] / u / Lw - Lu * P[1] / w / (Lw * Lw));
    return success;
}

} // namespace

ANSATZ_MODEL(Ratkowsky2P1EVP, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(Ratkowsky2P1EVP,
            .title = "Rise from 0 to 1 whose gap to 1 shrinks as a power, by the response at one position",
            .formula = "y = 1 - (1 - y1)^(ln(1 + a x)/ln(1 + a x1))",
            .parameters = {{"x1", "x of the response y1", Trait::reference, not_zero},
                           {"y1", "response at x1", Trait::response, below(1)},
                           {"a", "rate", Trait::rate, not_zero}},
            .typical = {{2, 0.7, 0.8}, 0, 10}, .scales = Scales::x_only,
            .same_as = "Pow2P3(a = a, b = -ln(1 - y1)/ln(1 + a x1))",
            .notes = "Pow2P3 through the point (x1, y1). Fails for y1 >= 1, for x1 = 0 or a = 0, and where 1 + "
                     "a x or 1 + a x1 is not positive.")

} // namespace ansatz::ratkowsky_2p1_evp

// The law multiplies by its reference term; hosts rely on it. With a division P2 would be the response at P1.
namespace ansatz::ratkowsky_2p2_evp {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (x[1] <= 0 || P[1] <= 0) return fail(at);
    y[1] = P[2] * (1 - safe_pow(x[1], -P[3])) * (1 - of_parameters<safe_pow>(P[1], -P[3]));
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (x[1] <= 0 || P[1] <= 0) return fail(at, 1, 2, 3);
    const Real W = safe_pow(x[1], -P[3]);
    const Scalar V = of_parameters<safe_pow>(P[1], -P[3]);
    if (math_error()) return fail(at, 1, 2, 3);
    dyda[2] = (1 - V) * (1 - W);
    y[1] = P[2] * dyda[2];
    dyda[3] = (of_parameters<log>(P[1]) * V * (1 - W) + log(x[1]) * (1 - V) * W) * P[2];
    dyda[1] = V * (1 - W) * P[2] * P[3] / P[1];
    return success;
}

} // namespace

ANSATZ_MODEL(Ratkowsky2P2EVP, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(Ratkowsky2P2EVP,
            .title = "Approach to an asymptote as a power of x, the asymptote scaled by a reference position",
            .formula = "y = b (1 - x^(-c)) (1 - x1^(-c))",
            .parameters = {{"x1", "position that scales the level", Trait::reference, positive},
                           {"b", "level: for c > 0 the asymptote is b (1 - x1^(-c))", Trait::level},
                           {"c", "exponent", Trait::exponent}},
            .x = {positive}, .typical = {{3, 6, 0.8}, 1, 12}, .scales = Scales::y_only,
            .same_as = "Pow2P1(a = b (1 - x1^(-c)), b = c)",
            .notes = "Despite its name the response at x1 is not a parameter: y is b (1 - x1^(-c))^2 there. "
                     "Fails for x <= 0 and x1 <= 0.")

} // namespace ansatz::ratkowsky_2p2_evp

// The value does not look at the error indicator: an overflow gives an infinite value with status 0 and leaves
// the indicator set.
namespace ansatz::ratkowsky_2p3_evp {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Scalar d = P[1] + 1;
    if (d == 0) return fail(at);
    const Real r = (x[1] + 1) / d;
    if (r <= 0) return fail(at);
    y[1] = P[2] * safe_pow(r, P[3]);
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Scalar d = P[1] + 1;
    if (d == 0) return fail(at, 1, 2, 3);
    const Real r = (1 + x[1]) / d;
    if (r <= 0) return fail(at, 1, 2, 3);
    const Real W = safe_pow(r, P[3]);
    if (math_error()) return fail(at, 1, 2, 3);
    dyda[2] = W;
    y[1] = P[2] * W;
    dyda[1] = -y[1] * P[3] / d;
    dyda[3] = log(r) * y[1];
    return math_error() ? fail_slots(at, 3) : success;
}

} // namespace

ANSATZ_MODEL(Ratkowsky2P3EVP, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(Ratkowsky2P3EVP, .title = "Power law whose origin lies at x = -1, by the response at one position",
            .formula = "y = y1 ((x + 1)/(x1 + 1))^b",
            .parameters = {{"x1", "x of the response y1", Trait::reference, above(-1)},
                           {"y1", "response at x1", Trait::response},
                           {"b", "exponent", Trait::exponent}},
            .x = {above(-1)}, .typical = {{3, 4, 0.6}, -0.98, 6}, .scales = Scales::y_only,
            .same_as = "Pow2P2(a = y1 (x1 + 1)^(-b), b = b)",
            .notes = "Pow2P2 through the point (x1, y1). Fails for x1 = -1 and where (x + 1)/(x1 + 1) is not "
                     "positive; x and x1 may both lie below -1.")

} // namespace ansatz::ratkowsky_2p3_evp
