// PearsonVII. The gamma functions are good to 2e-10 and overflow for m above 171; the derivatives do not test
// for that and report what the arithmetic yields, with the error indicator left set. Every failure marks y[1]
// alone. A negative width is accepted and turns the peak upside down.
//
// The query is answered 0, but derivatives are computed on request. The one by the shape is no derivative: two
// of its terms are added that should be factors, and constants are short. Hosts rely on these numbers.
// FF_PROBE is answered with a code of the shape.

#include "protocol/forms.h"
#include "special/gamma.h"

namespace ansatz::pearson_vii {
namespace {

constexpr Scalar sqrt_pi = 1.77245385090551;
constexpr Scalar ln_2 = 0.693147;
constexpr Scalar four_ln_2 = 2.77259;

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Scalar w = P[4], m = P[5];
    if (w == 0 || m <= 0.5) return fail(at);
    const Scalar a = of_parameters<safe_pow>(2.0, 1 / m);
    if (math_error()) return fail(at);
    const Scalar g = of_parameters<gamma_fn>(m) / of_parameters<gamma_fn>(m - 0.5);
    const Scalar s = sqrt(a - 1);
    const Scalar height = 2 * P[3] * s * g / (w * sqrt_pi);
    if (math_error()) return fail(at);
    const Real u = (x[1] - P[2]) / w;
    const Real q = 4 * (a - 1) * (u * u) + 1;
    const Real p = safe_pow(q, -m);
    if (math_error()) return fail(at);
    y[1] = P[1] + p * height;
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Scalar A = P[3], w = P[4], m = P[5];
    if (w == 0 || m <= 0.5) return fail(at);
    const Scalar a = of_parameters<safe_pow>(2.0, 1 / m);
    if (math_error()) return fail(at);
    const Real u = (x[1] - P[2]) / w;
    const Real q = 4 * (a - 1) * (u * u) + 1;
    const Real p = safe_pow(q, -m);
    if (math_error()) return fail(at);

    const Scalar s = sqrt(a - 1);
    const Scalar Gm = of_parameters<gamma_fn>(m), Gh = of_parameters<gamma_fn>(m - 0.5);
    const Scalar slope_m = of_parameters<gamma_prime>(m), slope_h = of_parameters<gamma_prime>(m - 0.5);
    const Scalar g = Gm / Gh;
    const Real by_centre = 16 * (s * s * s) * A * m * (p / q) * u * g / (w * sqrt_pi * w);
    const Real by_area = 2 * s * p * g / (w * sqrt_pi);
    const Scalar N = w * sqrt_pi * Gh;
    dyda[1] = 1;
    dyda[2] = by_centre;
    dyda[3] = by_area;
    dyda[4] = by_centre * u - A / w * by_area;
    dyda[5] = 2 * s * A * p * slope_m / N + 2 * s * A * p / N -
              a * ln_2 * A * p * g / (m * s * m * sqrt_pi * w) +
              (a * four_ln_2 * (u * u) / (m * q) - log(q)) * Gm - 2 * s * A * p * g * slope_h / N;
    y[1] = A * by_area + P[1];
    return success;
}

/// One bit for each threshold that the shape exceeds.
std::int32_t code(Scalar m) {
    return (m > 0.5) | (m > 1) << 1 | (m > 1.5) << 2 | (m > 2) << 3 | (m > 2.5) << 4;
}

/// BothPaths, but for the probe.
struct Form {
    static Status serve(unsigned flags, const Point& at) {
        if (flags & FF_PROBE) return answer_probe(at, code(at.P[5]), PROBE_MASK_ANSWER);
        return BothPaths<value, derivatives, Answers{.query = 0}>::serve(flags, at);
    }
};

} // namespace

ANSATZ_MODEL(PearsonVII, Form)

ANSATZ_PAGE(
    PearsonVII, .title = "A symmetric peak between a Lorentzian and a Gaussian on an offset, by its area",
    .formula = "y = y0 + A N (1 + 4 (2^(1/m) - 1) ((x - xc)/w)^2)^(-m),  N = 2 gamma(m) sqrt(2^(1/m) - "
               "1)/(sqrt(pi) gamma(m - 1/2) w)",
    .parameters = {{"y0", "offset", Trait::offset},
                   {"xc", "centre", Trait::position},
                   {"A", "area", Trait::area},
                   {"w", "width, full at half maximum", Trait::width, positive},
                   {"m", "shape: 1 is a Lorentzian, large values approach a Gaussian", Trait::shape,
                    between(0.5, 171)}},
    .typical = {{0.2, 5, 4, 1.5, 2}, 0, 10}, .departures = {{5}}, .known_as = "Pearson type VII distribution",
    .source = "Pearson, 1916",
    .notes =
        "Fails for w = 0, m <= 0.5 and m > 171; a negative w turns the peak upside down. Above m = 20 or so "
        "the data hardly tell the peak from a Gaussian. The model has derivatives of its own, which it "
        "denies; the one by m is wrong, and a fit does not use them.")

} // namespace ansatz::pearson_vii
