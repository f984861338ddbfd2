// The laws of the handbook, in the order of the catalogue.
#include "limits/limit.hpp"

using std::exp, std::log, std::pow, std::sqrt;

LIMIT1(Shah, 4) {
    const double w = pow(P[4], x);
    if (d) {
        d[1] = 1;
        d[2] = x;
        d[3] = w;
        d[4] = P[3] * w * x / P[4];
    }
    return P[1] + P[2] * x + P[3] * w;
}
LIMIT1(YldFert, 3) {
    const double w = pow(P[3], x);
    if (d) {
        d[1] = 1;
        d[2] = w;
        d[3] = P[2] * w * x / P[3];
    }
    return P[1] + P[2] * w;
}
LIMIT1(Allometric1, 2) {
    const double w = pow(x, P[2]);
    if (d) {
        d[1] = w;
        d[2] = P[1] * w * log(x);
    }
    return P[1] * w;
}
LIMIT1(Allometric2, 3) {
    const double w = pow(x, P[3]), rise = P[2] * w;
    if (d) {
        d[1] = 1;
        d[2] = w;
        d[3] = rise * log(x);
    }
    return P[1] + rise;
}
LIMIT2(Cole, 3) {
    return pow(x1, P[1]) * (P[2] + P[3] * x2);
}
LIMIT1(Holliday, 3) {
    const double y = 1 / (P[1] + x * (P[2] + P[3] * x));
    if (d) {
        d[1] = -y * y;
        d[2] = d[1] * x;
        d[3] = d[2] * x;
    }
    return y;
}
LIMIT1(MicMent, 2) {
    const double r = 1 / (P[2] + x), share = x * r, y = P[1] * share;
    if (d) {
        d[1] = share;
        d[2] = -y * r;
    }
    return y;
}
LIMIT1(BoxLucas1, 2) {
    const double e = exp(-P[2] * x);
    if (d) {
        d[1] = 1 - e;
        d[2] = P[1] * x * e;
    }
    return P[1] * (1 - e);
}
LIMIT1(YldFert1, 3) {
    const double e = exp(-P[3] * x), fall = P[2] * e;
    if (d) {
        d[1] = 1;
        d[2] = e;
        d[3] = -fall * x;
    }
    return P[1] + fall;
}
LIMIT1(Freundlich3PMod, 3) {
    const double w = pow(x, 1 / P[3]), rise = P[2] * w;
    if (d) {
        d[1] = 1;
        d[2] = w;
        d[3] = -rise * log(x) / (P[3] * P[3]);
    }
    return P[1] + rise;
}
LIMIT1(Stirling, 3) {
    const double e = exp(P[3] * x), growth = (e - 1) / P[3];
    if (d) {
        d[1] = 1;
        d[2] = growth;
        d[3] = (e * x - growth) * P[2] / P[3];
    }
    return P[1] + P[2] * growth;
}
LIMIT1(Reich, 4) {
    return P[1] * exp(-P[2] * x) + P[3] * exp(-P[4] * x);
}
LIMIT1(MWChang, 5) {
    const double b = P[3] * x;
    return P[1] * b / (1 + b);
}
LIMIT2(BatesWatts, 3) {
    const double u = P[1] * x1;
    return P[3] * u / (1 + u + P[2] * x2);
}
LIMIT1(BoxLucas2, 2) {
    const double r = 1 / (P[1] - P[2]);
    const double e1 = exp(-P[1] * x), e2 = exp(-P[2] * x), D = e2 - e1, y = P[1] * D * r;
    if (d) {
        d[1] = (D - y + e1 * P[1] * x) * r;
        d[2] = (y - e2 * P[1] * x) * r;
    }
    return y;
}
LIMIT1(Nelder, 4) {
    const double u = x + P[1], r = 1 / (P[2] + u * (P[3] + P[4] * u)), y = u * r;
    if (d) {
        const double slope = -y * r;
        d[1] = (P[2] - P[4] * u * u) * r * r;
        d[2] = slope;
        d[3] = slope * u;
        d[4] = slope * u * u;
    }
    return y;
}
LIMIT1(ExpLinear, 4) {
    const double r = 1 / P[2], e = exp(-x * r), decay = P[1] * e;
    if (d) {
        d[1] = e;
        d[2] = decay * x * r * r;
        d[3] = 1;
        d[4] = x;
    }
    return decay + P[3] + P[4] * x;
}
LIMIT1(MichaelisMenten, 2) {
    const double r = 1 / (P[2] + x), share = x * r, y = P[1] * share;
    if (d) {
        d[1] = share;
        d[2] = -y * r;
    }
    return y;
}

// One parameter; the expected-value forms have their reference position besides.
LIMIT1(Logarithm, 1) {
    const double v = x - P[1];
    if (d) d[1] = -1 / v;
    return log(v);
}
LIMIT1(LogarithmEVP, 2) {
    const double e = exp(P[2]), v = x - P[1] - e;
    if (d) {
        const double r = 1 / v;
        d[1] = -r;
        d[2] = e * r;
    }
    return log(v);
}
LIMIT1(Reciprocal0, 1) {
    const double D = 1 + P[1] * x;
    if (d) d[1] = -P[1] * D * D;
    return 1 / D;
}
LIMIT1(Reciprocal0EVP, 2) {
    const double c = 1 / P[2] - 1, t = x / P[1], y = 1 / (c * t + 1);
    if (d) {
        const double slope = t * y * y;
        d[1] = c * slope / P[1];
        d[2] = slope / (P[2] * P[2]);
    }
    return y;
}
LIMIT1(Exp1P1, 1) {
    const double e = exp(x - P[1]);
    if (d) d[1] = -e;
    return e;
}
LIMIT1(ExponentEVP, 2) {
    const double e = exp(x - P[1]), y = P[2] * e;
    if (d) {
        d[1] = -y;
        d[2] = e;
    }
    return y;
}
LIMIT1(Power, 1) {
    const double w = pow(x, P[1]);
    if (d) d[1] = log(x) * w;
    return w;
}
LIMIT1(PowerEVP, 2) {
    const double reference = log(P[1]), r = log(x) / reference, w = pow(P[2], r);
    if (d) {
        const double wr = w * r;
        d[1] = -wr * log(P[2]) / (P[1] * reference);
        d[2] = wr / P[2];
    }
    return w;
}
LIMIT1(Reciprocal1, 1) {
    const double r = 1 / (P[1] + x);
    if (d) d[1] = -r * r;
    return r;
}
LIMIT1(Reciprocal1EVP, 2) {
    const double r = 1 / ((x - P[1]) * P[2] + 1), y = P[2] * r;
    if (d) {
        d[1] = y * y;
        d[2] = r * r;
    }
    return y;
}
LIMIT1(Pareto, 1) {
    const double w = pow(x, -P[1]);
    if (d) d[1] = log(x) * w;
    return 1 - w;
}
LIMIT1(ParetoEVP, 2) {
    const double a = 1 - P[2], reference = log(P[1]), r = log(x) / reference, w = pow(a, r);
    if (d) {
        const double wr = w * r;
        d[1] = log(a) * wr / (P[1] * reference);
        d[2] = wr / a;
    }
    return 1 - w;
}
LIMIT1(Exp1P3, 1) {
    const double y = P[1] * exp(-P[1] * x);
    if (d) d[1] = (1 / P[1] - x) * y;
    return y;
}
LIMIT1(Exp1P3Md, 1) {
    const double w = pow(P[1], x), y = -log(P[1]) * w;
    if (d) d[1] = (y * x - w) / P[1];
    return y;
}
LIMIT1(Exp1P2, 1) {
    const double e = exp(-P[1] * x);
    if (d) d[1] = -x * e;
    return e;
}
LIMIT1(Exp1P2Md, 1) {
    const double w = pow(P[1], x);
    if (d) d[1] = x * w / P[1];
    return w;
}
LIMIT1(Exponent2EVP, 2) {
    const double t = x / P[1], w = pow(P[2], t);
    if (d) {
        d[1] = -t * w / P[1] * log(P[2]);
        d[2] = t * w / P[2];
    }
    return w;
}
LIMIT1(Exp1P4, 1) {
    const double e = exp(-P[1] * x);
    if (d) d[1] = x * e;
    return 1 - e;
}
LIMIT1(Exp1P4Md, 1) {
    const double w = pow(P[1], x);
    if (d) d[1] = -x * w / P[1];
    return 1 - w;
}
LIMIT1(Exponent3EVP, 2) {
    const double a = 1 - P[2], t = x / P[1], w = pow(a, t);
    if (d) {
        d[1] = log(a) * t * w / P[1];
        d[2] = t * w / a;
    }
    return 1 - w;
}

// Two parameters.
LIMIT1(Log2P1, 2) {
    const double v = x - P[1], L = log(v);
    if (d) {
        d[1] = -P[2] / v;
        d[2] = L;
    }
    return P[2] * L;
}
LIMIT1(Log2P1EVP, 3) {
    const double t = exp(P[2] / P[3]), v = x - P[1] + t, y = P[3] * log(v);
    if (d) {
        const double r = 1 / v;
        d[1] = -P[3] * r;
        d[2] = t * r;
        d[3] = (y - P[2] * d[2]) / P[3];
    }
    return y;
}
LIMIT1(Log2P2, 2) {
    const double s = P[1] + P[2] * x;
    if (d) {
        d[1] = 1 / s;
        d[2] = x * d[1];
    }
    return log(s);
}
LIMIT1(Log2P2EVP, 4) {
    const double r = 1 / (P[3] - P[1]), u = x - P[1], v = P[3] - x;
    const double E2 = exp(P[2]), E4 = exp(P[4]), q = (u * E4 + v * E2) * r;
    if (d) {
        const double a = E2 / q, b = E4 / q;
        d[1] = r - b;
        d[2] = v * a;
        d[3] = a - r;
        d[4] = u * b;
    }
    return log(q);
}
LIMIT1(BoxLucas1Mod, 2) {
    const double w = pow(P[2], x);
    if (d) {
        d[1] = 1 - w;
        d[2] = -P[1] * x / P[2] * w;
    }
    return P[1] * (1 - w);
}
LIMIT1(BoxLucas1EVP, 3) {
    const double W = pow(P[3], x), V = pow(P[3], P[1]), r = 1 / (1 - V), share = (1 - W) * r, y = P[2] * share;
    if (d) {
        d[1] = y * V * log(P[3]) * r;
        d[2] = share;
        d[3] = (V * y * P[1] - P[2] * x * W) / P[3] * r;
    }
    return y;
}
LIMIT1(Exp2P, 2) {
    const double w = pow(P[2], x), y = P[1] * w;
    if (d) {
        d[1] = w;
        d[2] = y * x / P[2];
    }
    return y;
}
LIMIT1(Exp2PMod1, 2) {
    const double e = exp(P[2] * x), y = P[1] * e;
    if (d) {
        d[1] = e;
        d[2] = y * x;
    }
    return y;
}
LIMIT1(Exp2PMod2, 2) {
    const double e = exp(P[1] + P[2] * x);
    if (d) {
        d[1] = e;
        d[2] = e * x;
    }
    return e;
}
LIMIT1(Exp2PEVP, 4) {
    const double r = 1 / (P[1] - P[3]), u = (x - P[3]) * r, v = (P[1] - x) * r;
    const double y = pow(P[2], u) * pow(P[4], v);
    if (d) {
        const double slope = log(P[4] / P[2]) * y * r;
        d[1] = slope * u;
        d[2] = u * y / P[2];
        d[3] = slope * v;
        d[4] = v * y / P[4];
    }
    return y;
}
LIMIT1(Freundlich, 2) {
    const double w = pow(x, P[2]), y = P[1] * w;
    if (d) {
        d[1] = w;
        d[2] = y * log(x);
    }
    return y;
}
LIMIT1(TimePow, 2) {
    const double w = pow(x, P[2]), y = P[1] * w;
    if (d) {
        d[1] = w;
        d[2] = y * log(x);
    }
    return y;
}
LIMIT1(FreundlichMod1, 2) {
    const double r = 1 / P[2], w = pow(x, r), y = P[1] * w;
    if (d) {
        d[1] = w;
        d[2] = -y * log(x) * r * r;
    }
    return y;
}
LIMIT1(FreundlichEVP, 4) {
    const double R = 1 / log(P[3] / P[1]), r = log(x / P[1]) * R, q = P[4] / P[2], y = P[2] * pow(q, r);
    if (d) {
        const double g = log(q) * y * R;
        d[1] = (r - 1) * g / P[1];
        d[2] = (1 - r) * y / P[2];
        d[3] = -g * r / P[3];
        d[4] = r * y / P[4];
    }
    return y;
}
LIMIT1(RectHyperbola, 2) {
    const double u = P[2] * x, share = u / (1 + u), y = P[1] * share;
    if (d) {
        d[1] = share;
        d[2] = y * (1 - share) / P[2];
    }
    return y;
}
LIMIT1(HyperbolaMod, 2) {
    const double r = 1 / (P[1] * x + P[2]), y = x * r;
    if (d) {
        d[1] = -y * y;
        d[2] = -y * r;
    }
    return y;
}
LIMIT1(HyperbolaEVP, 4) {
    const double u = x - P[1], v = P[3] - x, span = P[3] - P[1];
    const double r = 1 / (u * P[3] * P[2] + v * P[1] * P[4]), y = span * x * P[2] * P[4] * r;
    if (d) {
        const double s = 1 / span;
        d[1] = y * ((P[3] * P[2] - P[4] * v) * r - s);
        d[2] = y * (1 / P[2] - u * P[3] * r);
        d[3] = y * (s - (u * P[2] + P[4] * P[1]) * r);
        d[4] = y * (1 / P[4] - v * P[1] * r);
    }
    return y;
}
LIMIT1(Reciprocal, 2) {
    const double y = 1 / (P[1] + P[2] * x);
    if (d) {
        d[1] = -y * y;
        d[2] = d[1] * x;
    }
    return y;
}
LIMIT1(ReciprocalMod, 2) {
    const double r = 1 / (1 + P[2] * x), y = P[1] * r;
    if (d) {
        d[1] = r;
        d[2] = -y * x * r;
    }
    return y;
}
LIMIT1(ReciprocalEVP, 4) {
    const double u = x - P[1], v = P[3] - x, span = P[3] - P[1];
    const double r = 1 / (P[2] * u + P[4] * v), y = span * P[2] * P[4] * r;
    if (d) {
        d[1] = (y - P[4]) * P[2] * r;
        d[2] = (span * P[4] - u * y) * r;
        d[3] = (P[2] - y) * P[4] * r;
        d[4] = (span * P[2] - v * y) * r;
    }
    return y;
}
LIMIT1(LineMod, 2) {
    const double v = x - P[2];
    if (d) {
        d[1] = v;
        d[2] = -P[1];
    }
    return P[1] * v;
}
LIMIT1(Pow2P3, 2) {
    const double s = 1 + P[1] * x, w = pow(s, -P[2]);
    if (d) {
        d[1] = P[2] * w * x / s;
        d[2] = log(s) * w;
    }
    return 1 - w;
}
LIMIT1(Ratkowsky2P1EVP, 3) {
    const double a = 1 - P[2], u = 1 + P[3] * x, w = 1 + P[3] * P[1];
    const double Lu = log(u), r = 1 / log(w), W = pow(a, Lu * r);
    if (d) {
        const double La = log(a) * W * r, v = Lu * r / w;
        d[1] = La * v * P[3];
        d[2] = W * Lu * r / a;
        d[3] = -La * (x / u - v * P[1]);
    }
    return 1 - W;
}
LIMIT1(Bradley, 2) {
    const double L = log(-P[2] * log(x));
    if (d) {
        d[1] = L;
        d[2] = P[1] / P[2];
    }
    return P[1] * L;
}
LIMIT1(BET, 2) {
    const double r = 1 / (1 + x * (P[2] - 2 - (P[2] - 1) * x)), h = P[2] * x * r, y = P[1] * h;
    if (d) {
        d[1] = h;
        d[2] = (P[1] - y * (1 - x)) * x * r;
    }
    return y;
}
LIMIT1(BETMod, 2) {
    const double r = 1 / (P[1] + x * (P[2] - (P[1] + P[2]) * x)), y = x * r;
    if (d) {
        const double h = y * r;
        d[1] = -h * (1 - x * x);
        d[2] = d[1] - (x - 1) * h;
    }
    return y;
}
LIMIT1(Pow2P1, 2) {
    const double w = pow(x, -P[2]), fall = P[1] * w;
    if (d) {
        d[1] = 1 - w;
        d[2] = log(x) * fall;
    }
    return P[1] - fall;
}
LIMIT1(Ratkowsky2P2EVP, 3) {
    const double W = pow(x, -P[3]), V = pow(P[1], -P[3]), rise = (1 - V) * (1 - W);
    if (d) {
        d[1] = V * (1 - W) * P[2] * P[3] / P[1];
        d[2] = rise;
        d[3] = (log(P[1]) * V * (1 - W) + log(x) * (1 - V) * W) * P[2];
    }
    return P[2] * rise;
}
LIMIT1(Pow2P2, 2) {
    const double s = x + 1, w = pow(s, P[2]), y = P[1] * w;
    if (d) {
        d[1] = w;
        d[2] = y * log(s);
    }
    return y;
}
LIMIT1(Ratkowsky2P3EVP, 3) {
    const double c = 1 / (P[1] + 1), r = (x + 1) * c, w = pow(r, P[3]), y = P[2] * w;
    if (d) {
        d[1] = -y * P[3] * c;
        d[2] = w;
        d[3] = log(r) * y;
    }
    return y;
}
LIMIT1(ExpGrowth, 2) {
    const double u = x / P[2], e = exp(u), y = P[1] * e;
    if (d) {
        d[1] = e;
        d[2] = -y * u / P[2];
    }
    return y;
}

// Three parameters and more.
LIMIT1(Asymptotic1, 3) {
    const double w = pow(P[3], x), span = P[2] * w;
    if (d) {
        d[1] = 1;
        d[2] = -w;
        d[3] = -span * x / P[3];
    }
    return P[1] - span;
}
LIMIT1(Asymptotic2, 3) {
    const double e = exp(-x * P[3]), span = P[2] * e;
    if (d) {
        d[1] = 1;
        d[2] = -e;
        d[3] = span * x;
    }
    return P[1] - span;
}
LIMIT1(Asymptotic3, 3) {
    const double v = x - P[2], e = exp(-v * P[3]), span = P[1] * e;
    if (d) {
        d[1] = 1 - e;
        d[2] = -span * P[3];
        d[3] = v * span;
    }
    return P[1] - span;
}
LIMIT1(Asymptotic4, 3) {
    const double w = pow(P[2], x), span = (P[3] - P[1]) * w;
    if (d) {
        d[1] = 1 - w;
        d[2] = x / P[2] * span;
        d[3] = w;
    }
    return P[1] + span;
}
LIMIT1(Asymptotic5, 3) {
    const double e = exp(-x * P[2]), span = (P[3] - P[1]) * e;
    if (d) {
        d[1] = 1 - e;
        d[2] = -x * span;
        d[3] = e;
    }
    return P[1] + span;
}
LIMIT1(Asymptotic6, 3) {
    const double e = exp(-(P[2] + P[3] * x));
    if (d) {
        d[1] = 1;
        d[2] = e;
        d[3] = x * e;
    }
    return P[1] - e;
}
LIMIT1(Asymptotic7, 3) {
    const double e = exp(-x * P[3]), rise = 1 - e;
    if (d) {
        d[1] = 1;
        d[2] = rise;
        d[3] = x * P[2] * e;
    }
    return P[1] + P[2] * rise;
}
LIMIT1(LangmuirEXT1, 3) {
    const double w = pow(x, 1 - P[3]), r = 1 / (1 + P[2] * w), share = P[2] * w * r, y = P[1] * share;
    if (d) {
        d[1] = share;
        d[2] = P[1] * w * r * r;
        d[3] = -y * log(x) * r;
    }
    return y;
}
LIMIT1(LangmuirEXT2, 3) {
    const double w = pow(x, P[3] - 1), y = 1 / (P[1] + P[2] * w);
    if (d) {
        d[1] = -y * y;
        d[2] = d[1] * w;
        d[3] = d[2] * P[2] * log(x);
    }
    return y;
}
LIMIT1(Freundlich3P, 3) {
    const double w = pow(x, P[3]), rise = P[2] * w;
    if (d) {
        d[1] = 1;
        d[2] = w;
        d[3] = rise * log(x);
    }
    return P[1] + rise;
}
LIMIT1(Freundlich3PEVP1, 4) {
    const double r = x / P[1], w = pow(r, P[4]), rise = (P[2] - P[3]) * w;
    if (d) {
        d[1] = -rise * P[4] / P[1];
        d[2] = w;
        d[3] = 1 - w;
        d[4] = rise * log(r);
    }
    return P[3] + rise;
}

/// Where x lies between two references on the scale of a power, with the slopes by the references and the
/// power.
struct Place {
    double place, rest, by_first, by_second, by_power;
};
[[gnu::always_inline]] static inline Place place_of(double x, double first, double second, double b,
                                                    bool slopes) {
    const double X = pow(x, b), F = pow(first, b), S = pow(second, b), r = 1 / (S - F);
    Place at = {(X - F) * r, (S - X) * r, 0, 0, 0};
    if (slopes) {
        const double f = at.rest * F * r, s = at.place * S * r;
        at.by_first = -f * b / first;
        at.by_second = -s * b / second;
        at.by_power = f * log(x / first) + s * log(x / second);
    }
    return at;
}
LIMIT1(Freundlich3PEVP2, 5) {
    const double rise = P[4] - P[2];
    const Place at = place_of(x, P[1], P[3], P[5], d);
    if (d) {
        d[1] = rise * at.by_first;
        d[2] = at.rest;
        d[3] = rise * at.by_second;
        d[4] = at.place;
        d[5] = rise * at.by_power;
    }
    return P[2] + rise * at.place;
}
LIMIT1(FreundlichEXT, 3) {
    const double fall = pow(x, -P[3]), w = pow(x, P[2] * fall), y = P[1] * w;
    if (d) {
        const double L = log(x);
        d[1] = w;
        d[2] = y * L * fall;
        d[3] = -d[2] * P[2] * L;
    }
    return y;
}
LIMIT1(FreundlichEXTEVP, 4) {
    const double fall = pow(x, -P[4]), fall_ref = pow(P[1], -P[4]);
    const double share = pow(x, P[3] * fall) / pow(P[1], P[3] * fall_ref), y = P[2] * share;
    if (d) {
        const double L = log(x), L_ref = log(P[1]), a = fall * L, b = fall_ref * L_ref;
        d[1] = -y * P[3] * fall_ref * (1 - P[4] * L_ref) / P[1];
        d[2] = share;
        d[3] = y * (a - b);
        d[4] = -y * P[3] * (a * L - b * L_ref);
    }
    return y;
}
LIMIT1(Gunary, 3) {
    const double root = sqrt(x), r = 1 / (P[1] + P[2] * x + P[3] * root), y = x * r;
    if (d) {
        d[1] = -y * r;
        d[2] = d[1] * x;
        d[3] = d[1] * root;
    }
    return y;
}
LIMIT1(Holliday1, 3) {
    const double r = 1 / (1 + x * (P[2] + P[3] * x)), y = P[1] * r;
    if (d) {
        d[1] = r;
        d[2] = -y * x * r;
        d[3] = d[2] * x;
    }
    return y;
}
LIMIT1(BlNeldSmp, 3) {
    const double base = P[1] + P[2] * x, r = 1 / P[3], y = pow(base, -r);
    if (d) {
        d[1] = -y * r / base;
        d[2] = d[1] * x;
        d[3] = y * log(base) * r * r;
    }
    return y;
}
LIMIT1(BlNeld, 4) {
    const double w = pow(x, P[4]), base = P[1] + P[2] * w, r = 1 / P[3], y = pow(base, -r);
    if (d) {
        d[1] = -y * r / base;
        d[2] = d[1] * w;
        d[3] = y * log(base) * r * r;
        d[4] = d[2] * P[2] * log(x);
    }
    return y;
}
LIMIT1(BlNeldEVP, 5) {
    const double A = pow(P[2], -P[5]), C = pow(P[4], -P[5]), s = 1 / (P[3] - P[1]), r = 1 / P[5];
    const double u = P[3] - x, v = x - P[1], base = (A * u + C * v) * s, y = pow(base, -r);
    if (d) {
        const double q = s / base, first = A * u * q, second = C * v * q, L = log(base) * r;
        const double by_reference = -y * r * q * (A - C) * s;
        d[1] = by_reference * u;
        d[2] = y * first / P[2];
        d[3] = by_reference * v;
        d[4] = y * second / P[4];
        d[5] = y * r * (first * (log(P[2]) + L) + second * (log(P[4]) + L));
    }
    return y;
}
LIMIT1(errtest, 3) {
    if (d) {
        d[1] = 1;
        d[2] = x;
        d[3] = 0;
    }
    return P[1] + P[2] * x;
}
LIMIT1(Harris, 3) {
    const double w = pow(x, P[3]), y = 1 / (P[1] + P[2] * w);
    if (d) {
        d[1] = -y * y;
        d[2] = d[1] * w;
        d[3] = d[2] * P[2] * log(x);
    }
    return y;
}
LIMIT1(HarrisEVP, 5) {
    const double a = 1 / P[2], c = 1 / P[4], step = c - a;
    const Place at = place_of(x, P[1], P[3], P[5], d);
    const double y = 1 / (a + step * at.place);
    if (d) {
        const double by_place = -step * y * y, ya = y * a, yc = y * c;
        d[1] = by_place * at.by_first;
        d[2] = ya * ya * at.rest;
        d[3] = by_place * at.by_second;
        d[4] = yc * yc * at.place;
        d[5] = by_place * at.by_power;
    }
    return y;
}
LIMIT1(Rational0, 3) {
    const double r = 1 / (1 + P[1] * x), y = (P[2] + P[3] * x) * r;
    if (d) {
        d[1] = -y * x * r;
        d[2] = r;
        d[3] = x * r;
    }
    return y;
}
LIMIT1(Rational1, 3) {
    const double r = 1 / (P[1] + P[2] * x), y = (1 + P[3] * x) * r;
    if (d) {
        d[1] = -y * r;
        d[2] = d[1] * x;
        d[3] = x * r;
    }
    return y;
}
LIMIT1(Rational2, 3) {
    const double r = 1 / (P[1] + x), y = (P[2] + P[3] * x) * r;
    if (d) {
        d[1] = -y * r;
        d[2] = r;
        d[3] = x * r;
    }
    return y;
}
LIMIT1(Rational3, 3) {
    const double r = 1 / (P[1] + P[3] * x), y = (P[2] + x) * r;
    if (d) {
        d[1] = -y * r;
        d[2] = r;
        d[3] = d[1] * x;
    }
    return y;
}
LIMIT1(Rational4, 3) {
    const double r = 1 / (x + P[1]), q = P[2] * r;
    if (d) {
        d[1] = -q * r;
        d[2] = r;
        d[3] = 1;
    }
    return P[3] + q;
}
LIMIT1(Belehradek, 3) {
    const double v = x - P[2], w = pow(v, P[3]), y = P[1] * w;
    if (d) {
        d[1] = w;
        d[2] = -y * P[3] / v;
        d[3] = y * log(v);
    }
    return y;
}
LIMIT1(Log3P1, 3) {
    const double v = x + P[3], L = log(v);
    if (d) {
        d[1] = 1;
        d[2] = -L;
        d[3] = -P[2] / v;
    }
    return P[1] - P[2] * L;
}
LIMIT1(Exp3P1, 3) {
    const double r = 1 / (x + P[3]), u = P[2] * r, e = exp(u), y = P[1] * e;
    if (d) {
        d[1] = e;
        d[2] = y * r;
        d[3] = -d[2] * u;
    }
    return y;
}
LIMIT1(Exp3P1Md, 3) {
    const double r = 1 / (x + P[3]), u = P[2] * r, y = exp(P[1] + u);
    if (d) {
        d[1] = y;
        d[2] = y * r;
        d[3] = -d[2] * u;
    }
    return y;
}
LIMIT1(Chapman, 3) {
    const double e = exp(-P[2] * x), base = 1 - e, w = pow(base, P[3]), y = P[1] * w;
    if (d) {
        d[1] = w;
        d[2] = y * P[3] / base * x * e;
        d[3] = y * log(base);
    }
    return y;
}
LIMIT1(Exp3P2, 3) {
    const double y = exp(P[1] + x * (P[2] + P[3] * x));
    if (d) {
        d[1] = y;
        d[2] = y * x;
        d[3] = d[2] * x;
    }
    return y;
}
LIMIT1(HyperbolaGen, 4) {
    const double base = 1 + P[3] * x, s = 1 / P[4], r = 1 / pow(base, s), rest = P[2] * r;
    if (d) {
        d[1] = 1;
        d[2] = -r;
        d[3] = rest * x * s / base;
        d[4] = -rest * log(base) * s * s;
    }
    return P[1] - rest;
}
