// SchulzFlory: molar-mass distributions of polymers on a logarithmic axis, a common offset and any number of
// peaks.
//
//   y = P1 + sum over the peaks of  A (w/M)^(M/s) e^((M - w)/s),   w = 10^x, M = 10^c, s = 10^b
//
//   x is the decimal logarithm of the molar mass w. P1 offset; then per peak three parameters: c, the decimal
//   logarithm of the mass M at the top of the peak; b, the decimal logarithm of the scale s; amplitude A, the
//   height of the top. The number of peaks is (nParams - 1) / 3. y[i+1] is peak i alone, without the offset.
//
//   Fails for nParams < 1 and on a range or domain error of a peak. A peak of amplitude 0 is skipped: its
//   component and its derivatives keep what they held. Two bounds shape the tails: where the base and the
//   exponent of (w/M)^(M/s) both exceed 140, both count as 140; and e^((M - w)/s) counts as zero beyond e^300,
//   which cuts the lower flank of a very narrow peak (M/s of ten thousand and more) 300 scales below its top.
//   The derivative by c is the law's for s = 1 only: with L = ln(w/M) it has the factor 1 + (L - 1)/s where the
//   law has L/s. The other derivatives are the law's.

#include "protocol/forms.h"
#include "special/bounded_pow.h"

namespace ansatz::schulz_flory {
namespace {

constexpr double ln_10 = 2.302585092994046;

/// One peak of unit amplitude at one point.
struct Peak {
    double w, M, s, height;
};

Peak peak_at(const Point& at, int centre, int scale) {
    const double w = bounded_pow(10, at.x[1]);
    const double M = of_parameters<bounded_pow>(10.0, at.P[centre]);
    const double s = of_parameters<bounded_pow>(10.0, at.P[scale]);
    const double e = clamped_exp((M - w) / s);
    const double p = bounded_pow(w / M, M / s);
    return {w, M, s, p * e};
}

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (n < 1) return fail(at);
    double sum = P[1];
    const int peaks = (n - 1) / 3;
    for (int i = 1; i <= peaks; ++i) {
        const int centre = 3 * i - 1, scale = 3 * i, amplitude = 3 * i + 1;
        const double A = P[amplitude];
        if (A == 0) continue;
        const double peak = peak_at(at, centre, scale).height * A;
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
    double sum = P[1];
    const int peaks = (n - 1) / 3;
    for (int i = 1; i <= peaks; ++i) {
        const int centre = 3 * i - 1, scale = 3 * i, amplitude = 3 * i + 1;
        const double A = P[amplitude];
        if (A == 0) continue;
        const auto [w, M, s, g] = peak_at(at, centre, scale);
        if (math_error()) return fail(at, 1, centre, scale, amplitude);
        const double Ag = A * g, L = log(w / M);
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

ANSATZ_PAGE(
    SchulzFlory, .title = "",
    .formula = "y = y0 + sum A (w/M)^(M/s) exp((M - w)/s),  w = 10^x,  M = 10^m,  s = 10^b",
    .parameters = {{"y0", "offset", Trait::offset}},
    .block = {{"m", "decimal logarithm of the mass at the top of the peak (as x)", Trait::constant},
              {"b", "decimal logarithm of the scale s, in the unit of the mass", Trait::constant},
              {"A", "height of the peak", Trait::amplitude}},
    .true_derivatives = false,
    .notes = "A molar-mass distribution; x is the decimal logarithm of the mass. Very narrow peaks, M/s above "
             "10000, lose their lower flank. A peak of height 0 has no derivatives: do not start a fit there.")

} // namespace ansatz::schulz_flory
