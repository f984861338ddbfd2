// Sigmoidal and exponential curves, polynomials, powers and waves.
#include "limits/limit.hpp"

using std::exp, std::log, std::pow, std::sin, std::cos;

constexpr double pi = 3.141592653589793, ln10 = 2.302585093;

LIMIT1(Hill, 3) {
    const double ratio = P[2] / x, t = pow(ratio, P[3]), share = 1 / (1 + t), y = P[1] * share;
    if (d) {
        const double q = -t * y * share;
        d[1] = share;
        d[2] = P[3] / P[2] * q;
        d[3] = q * log(ratio);
    }
    return y;
}
LIMIT1(Hill1, 4) {
    const double ratio = P[3] / x, t = pow(ratio, P[4]), share = 1 / (1 + t), span = P[2] - P[1];
    if (d) {
        const double q = -t * span * share * share;
        d[1] = 1 - share;
        d[2] = share;
        d[3] = P[4] / P[3] * q;
        d[4] = q * log(ratio);
    }
    return P[1] + span * share;
}
LIMIT1(Richards, 4) {
    const double u = (P[3] * x + P[2]) / P[4], t = exp(-u), s = 1 + t, share = pow(s, -P[4]), y = P[1] * share;
    if (d) {
        const double q = t / s;
        d[1] = share;
        d[2] = y * q;
        d[3] = d[2] * x;
        d[4] = -(log(s) + u * q) * y;
    }
    return y;
}
LIMIT1(MnMolecular, 3) {
    const double v = x - P[2], e = exp(-v * P[3]), w = P[1] * e;
    if (d) {
        d[1] = 1 - e;
        d[2] = -w * P[3];
        d[3] = v * w;
    }
    return P[1] - w;
}
LIMIT1(MnMolecular1, 3) {
    const double e = exp(-P[3] * x), w = P[2] * e;
    if (d) {
        d[1] = 1;
        d[2] = -e;
        d[3] = w * x;
    }
    return P[1] - w;
}
LIMIT1(SLogistic1, 3) {
    const double v = x - P[2], t = exp(-v * P[3]), share = 1 / (1 + t), y = P[1] * share;
    if (d) {
        const double w = t * y * share;
        d[1] = share;
        d[2] = -w * P[3];
        d[3] = v * w;
    }
    return y;
}
LIMIT1(SLogistic2, 3) {
    const double a = 1 / P[1], c = 1 / P[2], k = P[3] * 4 * c, left = P[2] - P[1];
    const double t = exp(-k * x), r = 1 / (left * t * a + 1), y = P[2] * r;
    if (d) {
        const double ta = t * a, q = y * r;
        d[1] = (left * a + 1) * ta * q;
        d[2] = r - (left * k * x * c + 1) * ta * q;
        d[3] = 4 * ta * left * x * r * r;
    }
    return y;
}
LIMIT1(SLogistic3, 3) {
    const double t = exp(-x * P[3]), share = 1 / (t * P[2] + 1), y = P[1] * share;
    if (d) {
        d[1] = share;
        d[2] = -t * y * share;
        d[3] = -d[2] * P[2] * x;
    }
    return y;
}
LIMIT1(Slogistic4, 4) {
    const double v = x - P[3], t = exp(-v * P[4]), share = 1 / (1 + t), span = P[1] - P[2];
    if (d) {
        const double w = t * span * share * share;
        d[1] = share;
        d[2] = 1 - share;
        d[3] = -w * P[4];
        d[4] = v * w;
    }
    return P[2] + span * share;
}
LIMIT1(SGompertz, 3) {
    const double v = x - P[2], t = exp(-v * P[3]), g = exp(-t), y = P[1] * g;
    if (d) {
        const double w = y * t;
        d[1] = g;
        d[2] = -w * P[3];
        d[3] = w * v;
    }
    return y;
}
LIMIT1(SRichards1, 4) {
    const double c = 1 - P[3], r = 1 / c, v = x - P[2], e = exp(-v * P[4]), term = P[3] < 1 ? e : -e;
    const double a = pow(P[1], c), b = a - term, y = pow(b, r);
    if (d) {
        const double q = y / b, w = q * term * r;
        d[1] = a / P[1] * q;
        d[2] = -P[4] * w;
        d[3] = y * r * (log(b) * r - log(P[1]) * a / b);
        d[4] = v * w;
    }
    return y;
}
LIMIT1(SRichards2, 4) {
    const double r = 1 / (1 - P[3]), v = x - P[2], e = exp(-v * P[4]), b = 1 - e * (1 - P[3]), w = pow(b, r);
    if (d) {
        const double y = P[1] * w, q = e / b;
        d[1] = w;
        d[2] = -P[4] * y * q;
        d[3] = (log(b) * r + q) * r * y;
        d[4] = v * y * q;
    }
    return P[1] * w;
}
LIMIT1(SWeibull1, 4) {
    const double v = x - P[2], z = v * P[4], p = pow(z, P[3]), e = exp(-p);
    if (d) {
        const double w = e * P[1] * p;
        d[1] = 1 - e;
        d[2] = -w * P[3] / v;
        d[3] = log(z) * w;
        d[4] = w * P[3] / P[4];
    }
    return P[1] * (1 - e);
}
LIMIT1(SWeibull2, 4) {
    const double z = P[4] * x, p = pow(z, P[3]), e = exp(-p), span = P[1] - P[2];
    if (d) {
        const double w = span * e * p;
        d[1] = 1 - e;
        d[2] = e;
        d[3] = w * log(z);
        d[4] = P[3] / P[4] * w;
    }
    return P[1] - span * e;
}
LIMIT1(Logistic, 4) {
    const double u = x / P[3], t = pow(u, P[4]), share = 1 / (1 + t), span = P[1] - P[2], A = span * share;
    if (d) {
        const double w = A * (1 - share);
        d[1] = share;
        d[2] = 1 - share;
        d[3] = w * P[4] / P[3];
        d[4] = -w * log(u);
    }
    return P[2] + A;
}
LIMIT1(Logistic5, 5) {
    const double ratio = P[3] / x, u = pow(ratio, P[4]), s = 1 + u, g = pow(s, -P[5]), fall = P[1] - P[2];
    if (d) {
        const double w = fall * P[5] * u * g / s;
        d[1] = 1 - g;
        d[2] = g;
        d[3] = w * P[4] / P[3];
        d[4] = log(ratio) * w;
        d[5] = log(s) * fall * g;
    }
    return P[1] - fall * g;
}
LIMIT1(Boltzman, 4) {
    const double r = 1 / P[4], u = (x - P[3]) * r, share = 1 / (1 + exp(u)), span = P[1] - P[2],
                 A = span * share;
    if (d) {
        const double rest = 1 - share, slope = A * rest * r;
        d[1] = share;
        d[2] = rest;
        d[3] = slope;
        d[4] = slope * u;
    }
    return P[2] + A;
}
LIMIT1(BoltzIV, 4) {
    const double w = 1 / P[2], v = (x - P[1]) * w, t = exp(v), r = 1 / (1 + t), z = x - P[4];
    if (d) {
        const double slope = z * P[3] * t * r * r * w;
        d[1] = slope;
        d[2] = slope * v;
        d[3] = z * r;
        d[4] = -P[3] * r;
    }
    return z * P[3] * r;
}
LIMIT1(Response1, 4) {
    const double u = P[3] - x, share = 1 / (1 + pow(10, u * P[4])), rest = 1 - share, span = P[2] - P[1];
    if (d) {
        const double common = -ln10 * span * rest * share;
        d[1] = rest;
        d[2] = share;
        d[3] = common * P[4];
        d[4] = common * u;
    }
    return P[1] + span * share;
}
LIMIT1(Competition1, 3) {
    const double share = 1 / (1 + pow(10, x - P[3])), rest = 1 - share, A = (P[1] - P[2]) * share;
    if (d) {
        d[1] = share;
        d[2] = rest;
        d[3] = A * rest * ln10;
    }
    return P[2] + A;
}
LIMIT1(Competition2, 5) {
    const double d1 = 1 / (1 + pow(10, x - P[3])), d2 = 1 / (1 + pow(10, x - P[4])), span = P[1] - P[2];
    const double f = P[5] * d1 + (1 - P[5]) * d2;
    if (d) {
        d[1] = f;
        d[2] = 1 - f;
        d[3] = span * P[5] * (1 - d1) * d1 * ln10;
        d[4] = span * (1 - P[5]) * (1 - d2) * d2 * ln10;
        d[5] = (d1 - d2) * span;
    }
    return P[2] + span * f;
}
LIMIT1(Binding1, 2) {
    const double r = 1 / (P[2] + x), share = x * r, y = P[1] * share;
    if (d) {
        d[1] = share;
        d[2] = -y * r;
    }
    return y;
}
LIMIT1(Binding2, 4) {
    const double r1 = 1 / (P[3] + x), r2 = 1 / (P[4] + x), share1 = x * r1, share2 = x * r2;
    const double y1 = P[1] * share1, y2 = P[2] * share2;
    if (d) {
        d[1] = share1;
        d[2] = share2;
        d[3] = -y1 * r1;
        d[4] = -y2 * r2;
    }
    return y1 + y2;
}
LIMIT1(Response2, 7) {
    const double u1 = x - P[4], u2 = P[5] - x, t1 = pow(10, u1 * P[6]), t2 = pow(10, u2 * P[7]);
    const double d1 = 1 / (1 + t1), d2 = 1 / (1 + t2), left = P[2] - P[1], right = P[3] - P[1];
    if (d) {
        const double c1 = left * d1 * d1 * ln10 * t1, c2 = -right * d2 * d2 * ln10 * t2;
        d[1] = 1 - d1 - d2;
        d[2] = d1;
        d[3] = d2;
        d[4] = c1 * P[6];
        d[5] = c2 * P[7];
        d[6] = -c1 * u1;
        d[7] = c2 * u2;
    }
    return P[1] + left * d1 + right * d2;
}
LIMIT1(BiDoseResp, 7) {
    const double u1 = P[3] - x, u2 = P[4] - x, t1 = pow(10, u1 * P[5]), t2 = pow(10, u2 * P[6]);
    const double d1 = 1 / (1 + t1), d2 = 1 / (1 + t2), span = P[2] - P[1], first = P[7], second = 1 - P[7];
    const double f = first * d1 + second * d2;
    if (d) {
        const double c1 = -t1 * span * first * ln10 * d1 * d1, c2 = -t2 * span * second * ln10 * d2 * d2;
        d[1] = 1 - f;
        d[2] = f;
        d[3] = c1 * P[5];
        d[4] = c2 * P[6];
        d[5] = u1 * c1;
        d[6] = u2 * c2;
        d[7] = (d1 - d2) * span;
    }
    return P[1] + span * f;
}
LIMIT1(DoubleBoltzmann, 7) {
    const double r1 = 1 / P[6], r2 = 1 / P[7], u1 = (x - P[4]) * r1, u2 = (x - P[5]) * r2;
    const double t1 = exp(u1), t2 = exp(u2), d1 = 1 / (1 + t1), d2 = 1 / (1 + t2);
    const double f = P[3] * d1 + (1 - P[3]) * d2;
    if (d) {
        const double c1 = t1 * P[2] * P[3] * d1 * d1 * r1, c2 = t2 * P[2] * (1 - P[3]) * d2 * d2 * r2;
        d[1] = 1;
        d[2] = f;
        d[3] = (d1 - d2) * P[2];
        d[4] = c1;
        d[5] = c2;
        d[6] = u1 * c1;
        d[7] = u2 * c2;
    }
    return P[1] + P[2] * f;
}

// Exponentials.
template <int terms, int direction>
[[gnu::always_inline]] static inline double from_zero(const double* P, double x, double* d) {
    double y = P[1];
    if (d) d[1] = 1;
    for (int k = 2; k <= 2 * terms; k += 2) {
        const double r = 1 / P[k + 1], u = direction * x * r, e = exp(u), term = P[k] * e;
        if (d) {
            d[k] = e;
            d[k + 1] = -u * term * r;
        }
        y += term;
    }
    return y;
}
LIMIT1(ExpDec1, 3) {
    return from_zero<1, -1>(P, x, d);
}
LIMIT1(ExpDec2, 5) {
    return from_zero<2, -1>(P, x, d);
}
LIMIT1(ExpDec3, 7) {
    return from_zero<3, -1>(P, x, d);
}
LIMIT1(ExpGro1, 3) {
    return from_zero<1, 1>(P, x, d);
}
LIMIT1(ExpGro2, 5) {
    return from_zero<2, 1>(P, x, d);
}
LIMIT1(ExpGro3, 7) {
    return from_zero<3, 1>(P, x, d);
}
template <int terms, int direction>
[[gnu::always_inline]] static inline double from_start(const double* P, double x, double* d) {
    const double v = direction * (x - P[2]);
    double y = P[1], by_start = 0;
    for (int k = 3; k <= 2 * terms + 1; k += 2) {
        const double r = 1 / P[k + 1], u = v * r, e = exp(u), term = P[k] * e, slope = term * r;
        if (d) {
            d[k] = e;
            d[k + 1] = -u * slope;
            by_start -= direction * slope;
        }
        y += term;
    }
    if (d) {
        d[1] = 1;
        d[2] = by_start;
    }
    return y;
}
LIMIT1(ExpDecay1, 4) {
    return from_start<1, -1>(P, x, d);
}
LIMIT1(ExpDecay2, 6) {
    return from_start<2, -1>(P, x, d);
}
LIMIT1(ExpDecay3, 8) {
    return from_start<3, -1>(P, x, d);
}
LIMIT1(ExpGrow1, 4) {
    return from_start<1, 1>(P, x, d);
}
LIMIT1(ExpGrow2, 6) {
    return from_start<2, 1>(P, x, d);
}
LIMIT1(Kinetic, 8) {
    return x < P[2] ? P[1] : from_start<3, -1>(P, x, nullptr);
}
[[gnu::always_inline]] static inline double association(const double* P, double x, double* d) {
    const double r1 = 1 / P[3], r2 = 1 / P[5], e1 = exp(-x * r1), e2 = exp(-x * r2);
    if (d) {
        d[1] = 1;
        d[2] = 1 - e1;
        d[3] = -x * r1 * r1 * P[2] * e1;
        d[4] = 1 - e2;
        d[5] = -x * r2 * r2 * P[4] * e2;
    }
    return P[1] + P[2] * (1 - e1) + P[4] * (1 - e2);
}
LIMIT1(ExpAssoc, 5) {
    return association(P, x, d);
}
LIMIT1(ExpAssoc2, 5) {
    return association(P, x, d);
}
LIMIT1(Exponential, 3) {
    const double e = exp(P[3] * x), term = P[2] * e;
    if (d) {
        d[1] = 1;
        d[2] = e;
        d[3] = term * x;
    }
    return P[1] + term;
}
/// From the slot of the start on.
[[gnu::always_inline]] static inline double pulse(const double* p, double x, double* d) {
    const double v = x - p[0], rise = 1 / p[2], decay = 1 / p[4];
    if (v < 0) {
        if (d) d[0] = d[1] = d[2] = d[3] = d[4] = 0;
        return 0;
    }
    const double e1 = exp(-v * rise), g = 1 - e1, shape = pow(g, p[3]) * exp(-v * decay), y = p[1] * shape;
    if (d) {
        const double c = e1 * p[3] * rise / g;
        d[0] = (decay - c) * y;
        d[1] = shape;
        d[2] = -y * v * rise * c;
        d[3] = log(g) * y;
        d[4] = y * v * decay * decay;
    }
    return y;
}
LIMIT1(Pulse, 6) {
    if (d) d[1] = 1;
    return P[1] + pulse(P + 2, x, d ? d + 2 : nullptr);
}
LIMIT1(Pulse1, 5) {
    return pulse(P + 1, x, d ? d + 1 : nullptr);
}
LIMIT1(Lanczos3, 6) {
    double y = 0;
    for (int k = 1; k <= 5; k += 2) {
        const double e = exp(-P[k + 1] * x), term = P[k] * e;
        if (d) {
            d[k] = e;
            d[k + 1] = -x * term;
        }
        y += term;
    }
    return y;
}

// Polynomials and quotients of them.
template <int n> [[gnu::always_inline]] static inline double polynomial(const double* P, double x, double* d) {
    if (d) {
        d[1] = 1;
        double y = P[1], power = 1;
        for (int k = 2; k <= n; ++k) {
            power *= x;
            d[k] = power;
            y += P[k] * power;
        }
        return y;
    }
    double y = P[n];
    for (int k = n - 1; k >= 1; --k) y = y * x + P[k];
    return y;
}
LIMIT1(PolyN, 10) {
    return polynomial<10>(P, x, d);
}
LIMIT1(Constant, 1) {
    static_cast<void>(x);
    return polynomial<1>(P, 0, d);
}
LIMIT1(Line, 2) {
    return polynomial<2>(P, x, d);
}
LIMIT1(Parabola, 3) {
    return polynomial<3>(P, x, d);
}
LIMIT1(Cubic, 4) {
    return polynomial<4>(P, x, d);
}
LIMIT1(Poly4, 5) {
    return polynomial<5>(P, x, d);
}
LIMIT1(Poly5, 6) {
    return polynomial<6>(P, x, d);
}
LIMIT1(PolyCtr5, 7) {
    const double t = x - P[2];
    return P[1] + t * (P[3] + t * (P[4] + t * (P[5] + t * (P[6] + t * P[7]))));
}
LIMIT1(Rational, 4) {
    const double r = 1 / (P[3] + P[4] * x), y = (P[1] + P[2] * x) * r;
    if (d) {
        d[1] = r;
        d[2] = x * r;
        d[3] = -y * r;
        d[4] = d[3] * x;
    }
    return y;
}
LIMIT1(InvsPoly, 7) {
    const double v = x - P[2], w = 1 / P[3], u = 2 * v * w, z = u * u;
    const double r = 1 / (1 + z * (P[5] + z * (P[6] + z * P[7])));
    if (d) {
        const double q = -P[4] * r * r * z, slope = -q * (2 * P[5] + z * (4 * P[6] + 6 * P[7] * z));
        d[1] = 1;
        d[2] = v == 0 ? 0 : slope / v;
        d[3] = slope * w;
        d[4] = r;
        d[5] = q;
        d[6] = q * z;
        d[7] = q * z * z;
    }
    return P[1] + P[4] * r;
}
LIMIT1(Hyperbl, 2) {
    const double r = 1 / (P[2] + x), share = x * r, y = P[1] * share;
    if (d) {
        d[1] = share;
        d[2] = -y * r;
    }
    return y;
}
LIMIT1(Dhyperbl, 5) {
    const double r1 = 1 / (P[2] + x), r2 = 1 / (P[4] + x), share1 = x * r1, share2 = x * r2;
    const double y1 = P[1] * share1, y2 = P[3] * share2;
    if (d) {
        d[1] = share1;
        d[2] = -y1 * r1;
        d[3] = share2;
        d[4] = -y2 * r2;
        d[5] = x;
    }
    return y1 + y2 + P[5] * x;
}
LIMIT1(Power0, 4) {
    const double v = x - P[2], r = std::fabs(v), q = pow(r, P[4]), rise = P[3] * q;
    if (d) {
        d[1] = 1;
        d[2] = -P[4] * rise / v;
        d[3] = q;
        d[4] = log(r) * rise;
    }
    return P[1] + rise;
}
LIMIT1(Power1, 3) {
    const double v = x - P[1], r = std::fabs(v), q = pow(r, P[3]), y = P[2] * q;
    if (d) {
        d[1] = -P[3] * y / v;
        d[2] = q;
        d[3] = log(r) * y;
    }
    return y;
}
LIMIT1(Power2, 4) {
    const double v = x - P[1], r = std::fabs(v), E = v < 0 ? P[3] : P[4], q = pow(r, E), y = P[2] * q;
    if (d) {
        const double by_power = log(r) * y;
        d[1] = -E * y / v;
        d[2] = q;
        d[3] = v < 0 ? by_power : 0;
        d[4] = v < 0 ? 0 : by_power;
    }
    return y;
}
LIMIT1(Sine, 4) {
    const double r = pi / P[3], v = x - P[2], t = v * r, s = sin(t);
    if (d) {
        const double slope = -cos(t) * P[4] * r;
        d[1] = 1;
        d[2] = slope;
        d[3] = slope * v / P[3];
        d[4] = s;
    }
    return P[1] + P[4] * s;
}
LIMIT1(SineSqr, 4) {
    const double r = pi / P[3], v = x - P[2], t = v * r, s = sin(t), square = s * s;
    if (d) {
        const double slope = -2 * cos(t) * P[4] * r * s;
        d[1] = 1;
        d[2] = slope;
        d[3] = slope * v / P[3];
        d[4] = square;
    }
    return P[1] + P[4] * square;
}
LIMIT1(SineDamp, 5) {
    const double r = pi / P[3], v = x - P[2], t = v * r, decay = 1 / P[4], e = exp(-x * decay),
                 wave = sin(t) * e;
    if (d) {
        const double slope = -cos(t) * P[5] * e * r;
        d[1] = 1;
        d[2] = slope;
        d[3] = slope * v / P[3];
        d[4] = wave * P[5] * x * decay * decay;
        d[5] = wave;
    }
    return P[1] + P[5] * wave;
}
