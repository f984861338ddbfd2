// The constant k of the density, with y = nu/2, is
//
//   k = |Gamma(m + iy) / Gamma(m)|^2  Gamma(m) / (sqrt(pi) Gamma(m - 1/2))
//
// (the duplication formula has removed Gamma(2m - 1)). Below m = 10 the recurrences of the gamma function lead
// from m to M = m + n: k(m) = k(M) Q with a rational Q. At M both quotients are taken from Stirling's series,
// the large parts of numerator and denominator being cancelled by hand, so that no digits are lost for large m:
//
//   ln |Gamma(M + iy) / Gamma(M)|^2 = (M - 1/2) ln(1 + (y/M)^2) - 2 y atan(y/M) + 2 Re [S(M + iy) - S(M)]
//   ln Gamma(M) / Gamma(M - 1/2) = ln sqrt(v) + 1/(64 v^2) - 5/(2048 v^4) + ..,   v = M - 3/4
//
// where S(z) = 1/(12 z) - 1/(360 z^3) + .. . The angle 2 y atan(y/M) and the density's own nu atan z, large
// and of opposite sign near the maximum, are added as angles, in one arc tangent.

#include "special/pearson_iv.h"

#include "protocol/errors.h"

namespace ansatz {
namespace {

constexpr Scalar sqrt_pi = 1.7724538509055161;

// Stirling's series S(z), in z^-1, z^-3, ..: B(2j) / (2j (2j - 1)).
constexpr int stirling_terms = 7;
constexpr Scalar stirling[stirling_terms] = {1.0 / 12,   -1.0 / 360,        1.0 / 1260, -1.0 / 1680,
                                             1.0 / 1188, -691.0 / 360360.0, 1.0 / 156};

// The series of ln Gamma(v + 3/4) / Gamma(v + 1/4) - ln sqrt(v), in v^-2, v^-4, ..: -E(2j) / (4^(2j+1) j).
constexpr Scalar half_step[] = {1.0 / 64,
                                -5.0 / 2048,
                                61.0 / 49152,
                                -1385.0 / 1048576,
                                50521.0 / 20971520,
                                -2702765.0 / 402653184,
                                199360981.0 / 7516192768.0};

/// c1 t + c2 t^2 + ..
template <int count> Scalar series(const Scalar (&c)[count], Scalar t) {
    Scalar sum = 0;
    for (int j = count - 1; j >= 0; --j) sum = (sum + c[j]) * t;
    return sum;
}

/// Re S(M + iy)
Scalar stirling_real(Scalar M, Scalar y) {
    const Scalar size = M * M + y * y;
    const Scalar re = M / size, im = -y / size; // 1 / (M + iy)
    const Scalar re2 = re * re - im * im, im2 = 2 * re * im;
    Scalar sum_re = 0, sum_im = 0;
    for (int j = stirling_terms - 1; j >= 0; --j) {
        const Scalar r = sum_re * re2 - sum_im * im2 + stirling[j];
        sum_im = sum_re * im2 + sum_im * re2;
        sum_re = r;
    }
    return sum_re * re - sum_im * im;
}

/// The density at z, by z.
Real density(Real z, Scalar m, Scalar nu) {
    const Scalar y = 0.5 * nu;
    Scalar M = m, above = 1, below = 1;
    for (; M < 10; ++M) {
        above *= (M - 0.5) * M;
        below *= M * M + y * y;
    }
    const Scalar v = M - 0.75, slope = y / M;
    const Real angle = std::atan2(y + M * z, M - y * z); // atan(y/M) + atan z
    const Real exponent = (M - 0.5) * std::log1p(slope * slope) - m * std::log1p(z * z) - nu * angle +
                          2 * (stirling_real(M, y) - M * series(stirling, 1 / (M * M))) +
                          series(half_step, 1 / (v * v)) + std::log(above / below);
    return std::sqrt(v) / sqrt_pi * std::exp(exponent);
}

} // namespace

Real pearson_iv(Scalar offset, Scalar location, Scalar area, Scalar width, Scalar nu, Scalar m, Real x) {
    if (m <= 0.5 || width <= 0) return MISSING_VALUE;
    const int before = indicator();
    const Real y = offset + area * density((x - location) / width, m, nu) / width;
    indicator() = before;
    return y;
}

} // namespace ansatz
