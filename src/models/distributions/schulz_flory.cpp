// SchulzFlory. Fails for nParams < 1 and on a range or domain error of a peak. A peak of amplitude 0 is
// skipped: its component and its derivatives keep what they held. Two bounds shape the tails: where the base
// and the exponent of (w/M)^(M/s) both exceed 140, both count as 140; and e^((M - w)/s) counts as zero beyond
// e^300.
//
// The derivative by the centre is the law's for s = 1 only: with L = ln(w/M) it has the factor 1 + (L - 1)/s
// where the law has L/s. Hosts rely on it.

#include "protocol/forms.h"
#include "special/bounded_pow.h"

namespace ansatz::schulz_flory {
namespace {

constexpr Scalar ln_10 = 2.302585092994046;

/// One peak of unit amplitude at one point.
struct Peak {
    Real w;
    Scalar M, s;
    Real height;
};

Peak peak_at(const Point& at, int centre, int scale) {
    const Real w = bounded_pow(10, at.x[1]);
    const Scalar M = of_parameters<bounded_pow<Scalar>>(10.0, at.P[centre]);
    const Scalar s = of_parameters<bounded_pow<Scalar>>(10.0, at.P[scale]);
    const Real e = clamped_exp((M - w) / s);
    const Real p = bounded_pow(w / M, M / s);
    return {w, M, s, p * e};
}

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (n < 1) return fail(at);
    Real sum = P[1];
    const int peaks = (n - 1) / 3;
    for (int i = 1; i <= peaks; ++i) {
        const int centre = 3 * i - 1, scale = 3 * i, amplitude = 3 * i + 1;
        const Scalar A = P[amplitude];
        if (A == 0) continue;
        const Real peak = peak_at(at, centre, scale).height * A;
        if (math_error()) return fail(at);
        y[i + 1] = peak;
        sum += peak;
    }
    y[1] = sum;
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (n < 1) return fail(at);
    dyda[1] = 1;
    Real sum = P[1];
    const int peaks = (n - 1) / 3;
    for (int i = 1; i <= peaks; ++i) {
        const int centre = 3 * i - 1, scale = 3 * i, amplitude = 3 * i + 1;
        const Scalar A = P[amplitude];
        if (A == 0) continue;
        const auto [w, M, s, g] = peak_at(at, centre, scale);
        if (math_error()) return fail(at, 1, centre, scale, amplitude);
        const Real Ag = A * g, L = log(w / M);
        dyda[amplitude] = g;
        dyda[centre] = (Ag + (L - 1) * Ag / s) * M * ln_10;
        dyda[scale] = ln_10 * s * (-(Ag * (M - w) / (s * s)) - L * Ag * M / (s * s));
        y[i + 1] = Ag;
        sum += Ag;
    }
    y[1] = sum;
    return success;
}

} // namespace

ANSATZ_MODEL(SchulzFlory, BothPaths<value, derivatives>)

ANSATZ_PAGE(SchulzFlory, .title = "Molar-mass distributions of polymers, as peaks on a logarithmic axis",
            .formula = "y = y0 + sum A (w/M)^(M/s) exp((M - w)/s),  w = 10^x,  M = 10^m,  s = 10^b",
            .parameters = {{"y0", "offset", Trait::offset}},
            .block = {{"m", "decimal logarithm of the mass at the top of the peak (as x)", Trait::log_position},
                      {"b", "decimal logarithm of the scale s, in the unit of the mass", Trait::log_position},
                      {"A", "height of the peak", Trait::amplitude}},
            .typical = {{0.1, 4, 3.5, 2, 5.5, 4.5, 1}, 2, 7}, .scales = Scales::y_only,
            .departures = {{2}, {3, "A = 0"}, {4, "A = 0"}}, .true_derivatives = false,
            .known_as = "Schulz distribution, Schulz-Flory distribution, Schulz-Zimm distribution",
            .source = "Flory, 1936; Schulz, 1939",
            .notes =
                "x is the decimal logarithm of the molar mass. Very narrow peaks, M/s above 10000, lose their "
                "lower flank. A peak of height 0 has no derivatives: do not start a fit there.")

} // namespace ansatz::schulz_flory
