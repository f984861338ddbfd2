// Surfaces, distributions, and the models of several outputs or none.
#include "limits/limit.hpp"
#include "special/log_gamma.h"

using std::exp, std::log, std::pow, std::sin, std::cos, std::acos, std::erf;

constexpr double pi = 3.141592653589793, sqrt_2 = 1.4142135623730951;

/// The part that the peaks with a width per axis have in common: slopes by the centres and widths.
[[gnu::always_inline]] static inline void axes(double* d, double along_u, double along_v, double u, double v,
                                               double wx, double wy) {
    d[2] = along_u * wx;
    d[3] = d[2] * u;
    d[4] = along_v * wy;
    d[5] = d[4] * v;
}
LIMIT2(Gauss2D, 6) {
    const double wx = 1 / P[4], wy = 1 / P[6], u = (x1 - P[3]) * wx, v = (x2 - P[5]) * wy;
    const double G = exp(-0.5 * (u * u + v * v)), y = P[2] * G;
    if (d) {
        d[1] = 1;
        d[2] = G;
        axes(d + 1, y * u, y * v, u, v, wx, wy);
    }
    return P[1] + y;
}
LIMIT2(Gaussian2D, 7) {
    const double s = sin(P[7]), c = cos(P[7]), dx = x1 - P[3], dy = x2 - P[5], wx = 1 / P[4], wy = 1 / P[6];
    const double u = (dx * c + dy * s) * wx, v = (dy * c - dx * s) * wy;
    const double G = exp(-0.5 * (u * u + v * v)), y = P[2] * G;
    if (d) {
        const double a = u * wx, b = v * wy;
        d[1] = 1;
        d[2] = G;
        d[3] = y * (c * a - s * b);
        d[4] = y * u * a;
        d[5] = y * (s * a + c * b);
        d[6] = y * v * b;
        d[7] = y * (wy * wy - wx * wx) * u * v * P[4] * P[6];
    }
    return P[1] + y;
}
LIMIT2(Lorentz2D, 6) {
    const double wx = 1 / P[4], wy = 1 / P[6], u = (x1 - P[3]) * wx, v = (x2 - P[5]) * wy;
    const double qu = 1 / (1 + u * u), qv = 1 / (1 + v * v), L = qu * qv, y = P[2] * L;
    if (d) {
        d[1] = 1;
        d[2] = L;
        axes(d + 1, 2 * y * u * qu, 2 * y * v * qv, u, v, wx, wy);
    }
    return P[1] + y;
}
LIMIT2(Voigt2D, 7) {
    const double wx = 1 / P[4], wy = 1 / P[6], f = P[7], u = (x1 - P[3]) * wx, v = (x2 - P[5]) * wy;
    const double uu = u * u, vv = v * v, G = exp(-0.5 * (uu + vv));
    const double qu = 1 / (1 + uu), qv = 1 / (1 + vv), L = qu * qv, mixed = (1 - f) * G + f * L;
    if (d) {
        const double gauss = (1 - f) * P[2] * G, lorentz = 2 * f * P[2] * L;
        d[1] = 1;
        d[2] = mixed;
        axes(d + 1, (lorentz * qu + gauss) * u, (lorentz * qv + gauss) * v, u, v, wx, wy);
        d[7] = P[2] * (L - G);
    }
    return P[1] + P[2] * mixed;
}
LIMIT2(Plane, 3) {
    if (d) {
        d[1] = 1;
        d[2] = x1;
        d[3] = x2;
    }
    return P[1] + P[2] * x1 + P[3] * x2;
}
/// A linear combination of functions: they are the derivatives.
template <class... F> [[gnu::always_inline]] static inline double combine(const double* P, double* d, F... f) {
    double y = P[1];
    int k = 1;
    ((++k, y += P[k] * f), ...);
    if (d) {
        d[1] = 1;
        k = 1;
        ((d[++k] = f), ...);
    }
    return y;
}
LIMIT2(Parabola2D, 5) {
    return combine(P, d, x1, x2, x1 * x1, x2 * x2);
}
LIMIT2(Poly2D, 6) {
    return combine(P, d, x1, x2, x1 * x1, x2 * x2, x1 * x2);
}
LIMIT2(Polynomial2D, 11) {
    const double a2 = x1 * x1, a3 = a2 * x1, b2 = x2 * x2, b3 = b2 * x2;
    return combine(P, d, x1, a2, a3, a2 * a2, a2 * a3, x2, b2, b3, b2 * b2, b2 * b3);
}
LIMIT2(Chebyshev2D, 6) { // T2(s) = 2 s^2 - 1
    return combine(P, d, x1, 2 * x1 * x1 - 1, x2, 2 * x2 * x2 - 1, x1 * x2);
}
LIMIT2(Cosine, 6) { // cos 2 t = 2 cos^2 t - 1
    const double c1 = cos(x1), c2 = cos(x2);
    return combine(P, d, c1, 2 * c1 * c1 - 1, c2, 2 * c2 * c2 - 1, c1 * c2);
}
LIMIT2(Fourier2D, 7) {
    const double rx = 1 / P[6], ry = 1 / P[7], t = x1 * rx, s = x2 * ry;
    const double ct = cos(t), st = sin(t), cs = cos(s), ss = sin(s);
    if (d) {
        d[1] = 1;
        d[2] = ct;
        d[3] = st;
        d[4] = cs;
        d[5] = ss;
        d[6] = (st * P[2] - ct * P[3]) * t * rx;
        d[7] = (ss * P[4] - cs * P[5]) * s * ry;
    }
    return P[1] + P[2] * ct + P[3] * st + P[4] * cs + P[5] * ss;
}
LIMIT2(Rational2D, 10) {
    const double b2 = x2 * x2, b3 = b2 * x2, a2 = x1 * x1;
    const double r = 1 / (1 + P[6] * x1 + P[7] * a2 + P[8] * a2 * x1 + P[9] * x2 + P[10] * b2);
    const double y = (P[1] + P[2] * x1 + P[3] * x2 + P[4] * b2 + P[5] * b3) * r;
    if (d) {
        const double g = -y * r;
        d[1] = r;
        d[2] = x1 * r;
        d[3] = x2 * r;
        d[4] = b2 * r;
        d[5] = b3 * r;
        d[6] = g * x1;
        d[7] = g * a2;
        d[8] = g * a2 * x1;
        d[9] = g * x2;
        d[10] = g * b2;
    }
    return y;
}
LIMIT2(RationalTaylor, 10) {
    const double a2 = x1 * x1, b2 = x2 * x2, ab = x1 * x2;
    const double r = 1 / (1 + P[6] * x1 + P[7] * a2 + P[8] * x2 + P[9] * b2 + P[10] * ab);
    const double N = P[1] + P[2] * x1 + P[3] * x2 + P[4] * b2, y = (N + P[5] * ab) * r;
    if (d) {
        const double g = -y * r;
        d[1] = r;
        d[2] = x1 * r;
        d[3] = x2 * r;
        d[4] = b2 * r;
        d[5] = ab * r;
        d[6] = g * x1;
        d[7] = g * a2;
        d[8] = g * x2;
        d[9] = g * b2;
        d[10] = g * ab;
        return (N + P[5] * b2) * r; // what the model reports beside its derivatives
    }
    return y;
}
LIMIT2(LogNormal2D, 8) {
    const double u = log(x1 / P[3]) / P[4], v = log(x2 / P[6]) / P[7];
    const double e1 = exp(-0.5 * u * u), e2 = exp(-0.5 * v * v);
    return P[1] + P[2] * e1 + P[5] * e2 + P[8] * e1 * e2;
}
LIMIT2(Extreme2D, 6) {
    const double r = 1 / P[6], t = (x1 - P[5]) * r, u = 1 - exp(-t), e = exp(u - t), y = P[4] * e,
                 square = x2 * x2;
    if (d) {
        const double slope = u * y * r;
        d[1] = 1;
        d[2] = x2;
        d[3] = square;
        d[4] = e;
        d[5] = slope;
        d[6] = slope * t;
    }
    return P[1] + P[2] * x2 + P[3] * square + y;
}
LIMIT2(GaussCum, 6) {
    const double u = (x1 - P[3]) / (sqrt_2 * P[4]), v = (x2 - P[5]) / (sqrt_2 * P[6]);
    return P[1] + 0.25 * P[2] * (1 + erf(u)) * (1 + erf(v));
}
LIMIT2(LogisticCum, 6) {
    const double wx = 1 / P[4], wy = 1 / P[6], u = (x1 - P[3]) * wx, v = (x2 - P[5]) * wy;
    const double e1 = exp(-u), e2 = exp(-v), q1 = 1 / (1 + e1), q2 = 1 / (1 + e2), f = q1 * q2, y = P[2] * f;
    if (d) {
        d[1] = 1;
        d[2] = f;
        d[3] = -e1 * y * q1 * wx;
        d[4] = d[3] * u;
        d[5] = -e2 * y * q2 * wy;
        d[6] = d[5] * v;
    }
    return P[1] + y;
}
LIMIT2(ExtremeCum, 8) {
    const double F1 = exp(-exp((P[3] - x1) / P[4])), F2 = exp(-exp((P[6] - x2) / P[7]));
    return P[1] + P[2] * F1 + P[5] * F2 + P[8] * F1 * F2;
}
LIMIT2(DoseResp, 6) {
    const double r1 = x1 / P[3], r2 = x2 / P[5], p1 = pow(r1, -P[4]), p2 = pow(r2, -P[6]);
    const double q1 = 1 / (1 + p1), q2 = 1 / (1 + p2), f = q1 * q2, y = P[2] * f;
    if (d) {
        const double w1 = y * q1 * p1, w2 = y * q2 * p2;
        d[1] = 1;
        d[2] = f;
        d[3] = -w1 * P[4] / P[3];
        d[4] = w1 * log(r1);
        d[5] = -w2 * P[6] / P[5];
        d[6] = w2 * log(r2);
    }
    return P[1] + y;
}
LIMIT2(Exponential2D, 4) {
    const double r1 = 1 / P[3], r2 = 1 / P[4], e = exp(-x1 * r1 - x2 * r2), y = P[2] * e;
    if (d) {
        d[1] = 1;
        d[2] = e;
        d[3] = y * x1 * r1 * r1;
        d[4] = y * x2 * r2 * r2;
    }
    return P[1] + y;
}
LIMIT2(Power2D, 6) {
    const double A = pow(x1, P[3]), B = pow(x2, P[5]), a = P[2] * A, b = P[4] * B, AB = A * B, c = P[6] * AB;
    if (d) {
        d[1] = 1;
        d[2] = A;
        d[3] = (a + c) * log(std::fabs(x1));
        d[4] = B;
        d[5] = (b + c) * log(x2);
        d[6] = AB;
    }
    return P[1] + a + b + c;
}
LIMIT2(GaussLog, 6) {
    const double u = (x1 - P[3]) / P[4], v = log(x2 / P[5]) / P[6];
    return P[1] + P[2] * exp(-0.5 * (u * u + v * v));
}
LIMIT2(LogisticPeak, 5) {
    const double e = exp((P[4] - x1) / P[5]), r = 1 / (1 + e);
    return P[1] + 4 * P[3] * e * r * r + P[2] * x2;
}

// Distributions.
LIMIT1(Laplace, 3) {
    const double r = 1 / P[3];
    return P[1] + 0.5 * r * exp(-std::fabs(x - P[2]) * r);
}
LIMIT1(Poisson, 2) {
    return P[1] + exp(x * log(P[2]) - ansatz::log_gamma(x + 1) - P[2]);
}
LIMIT1(Rayleigh, 1) {
    const double r = 1 / P[1], u = x * r, e = exp(-0.5 * u * u);
    if (d) d[1] = -e * u * u * r;
    return 1 - e;
}
LIMIT1(Gumbel, 2) {
    return 1 - exp(-exp((x - P[1]) / P[2]));
}
LIMIT1(Pareto2, 2) {
    const double r = P[2] / x, p = pow(r, P[1]);
    if (d) {
        d[1] = -log(r) * p;
        d[2] = -P[1] / P[2] * p;
    }
    return 1 - p;
}
LIMIT1(Weibull, 4) {
    const double r = 1 / P[2], L = log((x - P[4]) * r);
    return P[1] + exp((P[3] - 1) * L - exp(P[3] * L)) * P[3] * r;
}
LIMIT1(Langevin, 3) {
    const double t = x - P[2], r = 1 / t, E = exp(2 * t), q = 1 / (E - 1), L = 2 * q + 1 - r;
    if (d) {
        d[1] = 1;
        d[2] = (4 * E * q * q - r * r) * P[3];
        d[3] = L;
    }
    return P[1] + P[3] * L;
}
LIMIT1(Goldman, 5) {
    constexpr double R = 8.314, F = 96485.0;
    const double num = P[2] * P[1] + x, den = P[3] * P[1] + P[4], k = R * P[5] / F, L = log(num / den);
    if (d) {
        const double a = k / num, b = -k / den;
        d[1] = a * P[2] + b * P[3];
        d[2] = a * P[1];
        d[3] = b * P[1];
        d[4] = b;
        d[5] = L * (R / F);
    }
    return k * L;
}
LIMIT1(SchulzFlory, 4) {
    constexpr double ln_10 = 2.302585092994046;
    const double w = exp(ln_10 * x), M = exp(ln_10 * P[2]), r = exp(-ln_10 * P[3]), L = ln_10 * (x - P[2]);
    const double k = M * r, e = (M - w) * r, g = exp(k * L + e), y = P[4] * g;
    if (d) { // by the mass the model has a formula of its own
        d[1] = 1;
        d[2] = (1 + (L - 1) * r) * y * M * ln_10;
        d[3] = -ln_10 * y * (e + L * k);
        d[4] = g;
    }
    return P[1] + y;
}

// Two dependent variables.
LIMIT_PAIR(LineExp, 5) {
    return {P[1] + P[3] * x1, P[2] + P[4] * exp(x1 / P[5])};
}
LIMIT_PAIR(GaussianLorentz, 6) {
    constexpr double sqrt_half_pi = 1.2533141373155003;
    const double v = x1 - P[2], u = v / P[5];
    return {P[1] + P[3] / (sqrt_half_pi * P[5]) * exp(-2 * u * u),
            P[1] + 2 / pi * P[4] * P[6] / (4 * v * v + P[6] * P[6])};
}
LIMIT_PAIR(HillBurk, 4) {
    return {P[1] * x1 / (P[2] + x1), (P[4] * x2 + 1) / P[3]};
}

// Implicit curves.
LIMIT2(Ellipse, 4) {
    const double u = (x1 - P[1]) / P[3], v = (x2 - P[2]) / P[4];
    return u * u + v * v - 1;
}
LIMIT2(Circle, 3) {
    const double r = 1 / P[3], u = (x1 - P[1]) * r, v = (x2 - P[2]) * r;
    return u * u + v * v - 1;
}
LIMIT3(PlaneMod, 3) {
    const double s = sin(P[1]);
    return cos(P[1]) * x3 + s * (cos(P[2]) * x1 + sin(P[2]) * x2) + P[3];
}
