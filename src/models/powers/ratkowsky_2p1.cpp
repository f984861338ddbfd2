// Pow2P3 (routine Ratkowsky2P1): a rise from 0 to 1 whose gap to 1 shrinks as a power.
//
//   Pow2P3            y = 1 - (1 + P1 x)^(-P2)
//                     P1 rate (1/unit of x); P2 exponent
//                     fails: 1 + P1 x <= 0, overflow
//   Ratkowsky2P1EVP   y = 1 - (1 - P2)^(ln(1 + P3 x) / ln(1 + P3 P1))
//                     P1 reference position; P2 response expected there, below 1; P3 rate
//                     fails: 1 - P2 <= 0, 1 + P3 x <= 0, 1 + P3 P1 <= 0, 1 + P3 P1 == 1 (P1 or P3 is 0, or so
//                     small that it counts as 0), overflow
//
//   The expected-value form is Pow2P3 with the rate P3 and the exponent -ln(1 - P2) / ln(1 + P3 P1).

#include "protocol/handbook_law.h"

namespace ansatz::ratkowsky_2p1 {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const double s = 1 + P[1] * x[1];
    if (s <= 0) return fail(at);
    y[1] = 1 - safe_pow(s, -P[2]);
    return math_error() ? fail(at) : success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const double s = 1 + P[1] * x[1];
    if (s <= 0) return fail(at, 1, 2);
    const double W = safe_pow(s, -P[2]);
    if (math_error()) return fail(at, 1, 2);
    dyda[1] = P[2] * W * x[1] / s;
    y[1] = 1 - W;
    dyda[2] = log(s) * W;
    return math_error() ? fail_slots(at, 2) : success;
}

} // namespace
} // namespace ansatz::ratkowsky_2p1

namespace ansatz::ratkowsky_2p1_evp {
namespace {

/// The three numbers whose logarithms the law takes.
struct Arguments {
    double a, u, w;

    explicit Arguments(const Point& at) : a(1 - at.P[2]), u(1 + at.P[3] * at.x[1]), w(1 + at.P[3] * at.P[1]) {}

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
    const auto [a, u, w] = args;
    const double Lu = log(u), Lw = of_parameters<log>(w);
    const double W = safe_pow(a, Lu / Lw);
    if (math_error()) return fail(at, 1, 2, 3);
    dyda[2] = W * Lu / Lw / a;
    y[1] = 1 - W;
    const double La = of_parameters<log>(a);
    if (math_error()) return fail_slots(at, 1, 3);
    dyda[1] = La * Lu * P[3] * W / w / (Lw * Lw);
    dyda[3] = -La * W * (x[1] / u / Lw - Lu * P[1] / w / (Lw * Lw));
    return success;
}

} // namespace

ANSATZ_MODEL(Pow2P3, HandbookLaw<ratkowsky_2p1::value, ratkowsky_2p1::derivatives>)

ANSATZ_PAGE(Pow2P3, .title = "", .formula = "y = 1 - (1 + a x)^(-b)",
            .parameters = {{"a", "rate, 1/(unit of x)", Trait::rate}, {"b", "exponent", Trait::exponent}},
            .notes = "Fails where 1 + a x <= 0. For small a x the curve depends on the product a b alone.")

ANSATZ_MODEL(Ratkowsky2P1EVP, HandbookLaw<value, derivatives>)

ANSATZ_PAGE(Ratkowsky2P1EVP, .title = "", .formula = "y = 1 - (1 - y1)^(ln(1 + a x)/ln(1 + a x1))",
            .parameters = {{"x1", "x of the response y1", Trait::reference},
                           {"y1", "response at x1, below 1", Trait::response},
                           {"a", "rate, 1/(unit of x), not 0", Trait::rate}},
            .notes = "Pow2P3 through the point (x1, y1). Fails for y1 >= 1, for x1 = 0 or a = 0, and where 1 + "
                     "a x or 1 + a x1 is not positive.")

} // namespace ansatz::ratkowsky_2p1_evp
