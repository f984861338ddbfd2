// Peaks, one of each.
#include "limits/limit.hpp"
#include "special/bessel.h"
#include "special/erfcx.h"
#include "special/gamma.h"
#include "special/pearson_iv.h"

using std::exp, std::log, std::pow, std::sqrt;

constexpr double pi = 3.141592653589793, sqrt_pi = 1.7724538509055161, sqrt_2 = 1.4142135623730951;
constexpr double sqrt_half_pi = 1.2533141373155003, sqrt_2_pi = 2.5066282746310002;
constexpr double ln_2 = 0.6931471805599453, four_ln_2 = 2.772588722239781;

LIMIT1(Gauss, 4) {
    const double r = 1 / P[3], u = (x - P[2]) * r, s = u * u, g = exp(-2 * s) * (r / sqrt_half_pi),
                 y = P[4] * g;
    if (d) {
        const double slope = y * r;
        d[1] = 1;
        d[2] = 4 * u * slope;
        d[3] = (4 * s - 1) * slope;
        d[4] = g;
    }
    return P[1] + y;
}
LIMIT1(GaussAmp, 4) {
    const double r = 1 / P[3], u = (x - P[2]) * r, e = exp(-0.5 * u * u), y = P[4] * e;
    if (d) {
        const double slope = y * u * r;
        d[1] = 1;
        d[2] = slope;
        d[3] = slope * u;
        d[4] = e;
    }
    return P[1] + y;
}
LIMIT1(Gaussian, 4) {
    constexpr double unit_area = 1.06446701943122;
    const double r = 1 / P[4], u = 2 * (x - P[2]) * r, s = u * u * ln_2, g = exp(-s) * (r / unit_area);
    const double y = P[3] * g;
    if (d) {
        const double slope = y * r;
        d[1] = 1;
        d[2] = four_ln_2 * u * slope;
        d[3] = g;
        d[4] = (2 * s - 1) * slope;
    }
    return P[1] + y;
}
LIMIT1(BiGaussian, 5) {
    const double v = x - P[2], w = v < 0 ? P[4] : P[5], r = 1 / w, t = v * r, e = exp(-0.5 * t * t),
                 y = P[3] * e;
    if (d) {
        const double slope = y * t * r, by_width = slope * t;
        d[1] = 1;
        d[2] = slope;
        d[3] = e;
        d[4] = v < 0 ? by_width : 0;
        d[5] = v < 0 ? 0 : by_width;
    }
    return P[1] + y;
}
LIMIT1(Lorentz, 4) {
    const double r = 1 / P[3], u = 2 * (x - P[2]) * r, q = 2 / pi * r / (1 + u * u), y = P[4] * q;
    if (d) {
        const double slope = 2 * pi * y * q;
        d[1] = 1;
        d[2] = u * slope;
        d[3] = (0.5 * u * u * slope - y * r);
        d[4] = q;
    }
    return P[1] + y;
}
LIMIT1(Giddings, 4) {
    if (x <= 0) {
        if (d) {
            d[1] = 1;
            d[2] = d[3] = d[4] = 0;
        }
        return P[1];
    }
    const double c = P[2], w = P[3], A = P[4], r = 1 / w;
    const double rx = sqrt(x), rc = sqrt(c), h = (x - c) / (rx + rc), e = exp(-h * h * r), t = 2 * rx * rc * r;
    const double i1 = ansatz::scaled_bessel_i1(t), unit = rc / rx * i1 * e * r;
    if (d) {
        const double i01 = ansatz::scaled_bessel_i0_minus_i1(t), s = A * e * r * r;
        d[1] = 1;
        d[2] = s * (i01 + h / rx * i1);
        d[3] = s * r * (rc / rx) * (h * h * i1 - 2 * rx * rc * i01);
        d[4] = unit;
    }
    return P[1] + A * unit;
}
LIMIT1(Extreme, 4) {
    const double r = 1 / P[3], t = (x - P[2]) * r, u = 1 - exp(-t), e = exp(u - t), y = P[4] * e;
    if (d) {
        const double slope = u * y * r;
        d[1] = 1;
        d[2] = slope;
        d[3] = slope * t;
        d[4] = e;
    }
    return P[1] + y;
}
LIMIT1(Beta, 6) {
    const double c = P[2], A = P[3], w = P[4], p = P[5] - 1, q = P[6] - 1, n = p + q;
    const double z = (x - c) / w, u = n / p * z, v = n / q * z, left = 1 + u, right = 1 - v;
    if (left <= 0 || right <= 0) {
        if (d) {
            d[1] = 1;
            d[2] = d[3] = d[4] = d[5] = d[6] = 0;
        }
        return P[1];
    }
    const double L = std::log1p(u), R = std::log1p(-v), unit = exp(p * L + q * R), y = A * unit;
    if (d) {
        const double a = 1 / (p * left), b = 1 / (q * right), slope = y * z * n * n * n * a * b / w;
        d[1] = 1;
        d[2] = slope;
        d[3] = unit;
        d[4] = slope * z;
        d[5] = y * (L - u + z * (u * q * a - v * q * b));
        d[6] = y * (R + v + z * (v * p * b - u * p * a));
    }
    return P[1] + y;
}
LIMIT1(LogistPK, 4) {
    const double e = exp((P[2] - x) / P[3]), r = 1 / (1 + e);
    return P[1] + 4 * P[4] * e * r * r;
}
LIMIT1(asymptgauss, 5) {
    const double c = P[2], A = P[3], a = P[5], r = 0.5 / P[4], v = x - c, e = exp(-a * v), s = 1 + e,
                 u = v * s * r;
    const double g = exp(-four_ln_2 * u * u), y = A * g;
    if (d) {
        const double by_u = -2 * four_ln_2 * u * y * r;
        d[1] = 1;
        d[2] = by_u * (a * v * e - s);
        d[3] = g;
        d[4] = -2 * by_u * u;
        d[5] = -by_u * v * v * e;
    }
    return P[1] + y;
}
LIMIT1(GaussMod, 5) {
    const double A = P[2], v = x - P[3], z = v / P[4], r = 1 / P[5], ratio = P[4] * r, b = (ratio - z) / sqrt_2;
    if (b < 0) return P[1] + 0.5 * A * r * exp(0.5 * ratio * ratio - v * r) * std::erfc(b);
    return P[1] + 0.5 * A * r * exp(-0.5 * z * z) * ansatz::erfcx(b);
}
template <bool edgeworth> [[gnu::always_inline]] static inline double series_peak(const double* P, double x) {
    const double r = 1 / P[4], z = (x - P[3]) * r, z2 = z * z;
    double series = 1 + P[5] / 6 * z * (z2 - 3) + P[6] / 24 * (z2 * (z2 - 6) + 3);
    if (edgeworth) series += P[5] * P[5] / 72 * (((z2 - 15) * z2 + 45) * z2 - 15);
    return P[1] + P[2] * r / sqrt_2_pi * exp(-0.5 * z2) * series;
}
LIMIT1(GCAS, 6) {
    return series_peak<false>(P, x);
}
LIMIT1(ECS, 6) {
    return series_peak<true>(P, x);
}
LIMIT1(CCE, 9) {
    const double v = x - P[2], late = std::fmax(x - P[9], 0);
    const double rise = 1 / (1 + exp(-2 * P[6] * (x - P[7])));
    return P[1] + P[3] * (exp(-0.5 * v * v / P[4]) + P[5] * rise * exp(-P[8] * late));
}
LIMIT1(LogNormal, 4) {
    if (x <= 0) {
        if (d) {
            d[1] = 1;
            d[2] = d[3] = d[4] = 0;
        }
        return P[1];
    }
    const double c = P[2], r = 1 / P[3], L = log(x / c) * r, unit = exp(-0.5 * L * L) * r / (sqrt_2_pi * x);
    const double y = P[4] * unit;
    if (d) {
        const double slope = y * r;
        d[1] = 1;
        d[2] = slope * L / c;
        d[3] = slope * (L * L - 1);
        d[4] = unit;
    }
    return P[1] + y;
}
LIMIT1(Asym2Sig, 6) {
    const double v = x - P[2], half = 0.5 * P[4];
    return P[1] + P[3] / ((1 + exp(-(v + half) / P[5])) * (1 + exp((v - half) / P[6])));
}
LIMIT1(Weibull3, 5) {
    const double k = P[5], q = (k - 1) / k, s0 = pow(q, 1 / k), S = (x - P[2]) / P[4] + s0;
    if (S <= 0) return P[1];
    const double L = log(S / s0);
    return P[1] + P[3] * exp((k - 1) * L - q * (exp(k * L) - 1));
}
LIMIT1(Voigt5, 5) {
    constexpr double T[6] = {0.314240376, 0.947788391, 1.59768264, 2.27950708, 3.02063703, 3.8897249};
    constexpr double C[6] = {1.01172805,   -0.75197147,     0.012557727,
                             0.0100220082, -0.000242068135, 5.00848061e-07};
    constexpr double S[6] = {1.39323,       0.231152406,    -0.155351466,
                             0.00621836624, 9.19082986e-05, -6.27525958e-07};
    const double r = 1 / P[4], X = (x - P[2]) * 1.665109222 * r, Y = P[5] * 0.832554611 * r;
    const double Y1 = Y + 1.5, Y2 = Y1 * Y1;
    double K = 0;
    if (Y > 0.85 || std::fabs(X) < 18.1 * Y + 1.65) {
        for (int i = 0; i < 6; ++i) {
            const double R = X - T[i], Rp = X + T[i], D = 1 / (R * R + Y2), Dp = 1 / (Rp * Rp + Y2);
            K += C[i] * Y1 * (D + Dp) - S[i] * (R * D - Rp * Dp);
        }
    } else {
        if (std::fabs(X) < 12) K = exp(-X * X);
        for (int i = 0; i < 6; ++i) {
            const double R = X - T[i], Rp = X + T[i], D = 1 / (R * R + Y2), Dp = 1 / (Rp * Rp + Y2);
            K += Y * (C[i] * (R * R * D - 1.5 * Y1 * D) + S[i] * (Y + 3) * R * D) / (R * R + 2.25);
            K += Y * (C[i] * (Rp * Rp * Dp - 1.5 * Y1 * Dp) - S[i] * (Y + 3) * Rp * Dp) / (Rp * Rp + 2.25);
        }
    }
    return P[1] + P[3] * K * 0.939437278 * r;
}
[[gnu::always_inline]] static inline double mixture(double v, double wG, double wL, double m) {
    const double z = v / wG;
    return (1 - m) * 0.939437278 / wG * exp(-2.77258872 * z * z) + m * 0.636619772 * wL / (4 * v * v + wL * wL);
}
LIMIT1(PsdVoigt1, 5) {
    return P[1] + P[3] * mixture(x - P[2], P[4], P[4], P[5]);
}
LIMIT1(PsdVoigt2, 6) {
    return P[1] + P[3] * mixture(x - P[2], P[4], P[5], P[6]);
}
LIMIT1(PearsonVII, 5) {
    const double A = P[3], r = 1 / P[4], m = P[5], a = pow(2, 1 / m), u = (x - P[2]) * r;
    const double q = 4 * (a - 1) * u * u + 1, p = pow(q, -m), s = sqrt(a - 1);
    const double Gm = ansatz::gamma_fn(m), Gh = ansatz::gamma_fn(m - 0.5);
    const double by_area = 2 * s * p * Gm / Gh * r / 1.77245385090551;
    if (d) {
        // By the shape the model has a formula of its own.
        const double N = r / (1.77245385090551 * Gh), half = 2 * s * A * p * N;
        d[1] = 1;
        d[2] = 8 * (a - 1) * A * m * by_area / q * u * r;
        d[3] = by_area;
        d[4] = d[2] * u - A * r * by_area;
        d[5] = half * ansatz::gamma_prime(m) + half - a * 0.693147 * A * p * Gm * N / (m * s * m) +
               (a * 2.77259 * u * u / (m * q) - log(q)) * Gm - half * Gm / Gh * ansatz::gamma_prime(m - 0.5);
    }
    return P[1] + A * by_area;
}
LIMIT1(PearsonIV, 6) {
    return ansatz::pearson_iv(P[1], P[2], P[3], P[4], P[5], P[6], x);
}
