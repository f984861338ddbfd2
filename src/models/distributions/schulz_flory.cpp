// SchulzFlory. Fails for nParams < 1 and on a range or domain error of a peak. A peak of amplitude 0 is
// skipped: its component and its derivatives keep what they held. Two bounds shape the tails: where the base
// and the exponent of (w/M)^(M/s) both exceed 140, both count as 140; and e^((M - w)/s) counts as zero beyond
// e^300.
//
// The derivative by the centre is the law's for s = 1 only: with L = ln(w/M) it has the factor 1 + (L - 1)/s
// where the law has L/s. Hosts rely on it.

#include "protocol/blocks.h"
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

Peak peak_at(const Point& at, const Scalar* p) {
    const Real w = bounded_pow(10, at.x[1]);
    const Scalar M = of_parameters<bounded_pow<Scalar>>(10.0, p[1]);
    const Scalar s = of_parameters<bounded_pow<Scalar>>(10.0, p[2]);
    const Real e = clamped_exp((M - w) / s);
    const Real power = bounded_pow(w / M, M / s);
    return {w, M, s, power * e};
}

Status value(const Point& at) {
    if (at.n < 1) return fail(at);
    return add_blocks<3>(at, (at.n - 1) / 3, [&](const Scalar* p, int) -> Outcome {
        const Scalar A = p[3];
        if (A == 0) return skipped;
        const Real peak = peak_at(at, p).height * A;
        if (math_error()) return fail(at);
        return peak;
    });
}

Status derivatives(const Point& at) {
    if (at.n < 1) return fail(at);
    at.dyda[1] = 1;
    return add_blocks<3>(at, (at.n - 1) / 3, [&](const Scalar* p, int k) -> Outcome {
        const int centre = k + 1, scale = k + 2, amplitude = k + 3;
        const Scalar A = p[3];
        if (A == 0) return skipped;
        const auto [w, M, s, g] = peak_at(at, p);
        if (math_error()) return fail(at, 1, centre, scale, amplitude);
        const Real Ag = A * g, L = log(w / M);
        at.dyda[amplitude] = g;
        at.dyda[centre] = (Ag + (L - 1) * Ag / s) * M * ln_10;
        at.dyda[scale] = ln_10 * s * (-(Ag * (M - w) / (s * s)) - L * Ag * M / (s * s));
        return Ag;
    });
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
