// Two dozen models across the classes of what a model costs, each stated once: as a formula that a user would
// write by hand, for plain numbers and for Ceres' Jets, and as text for a parser.
//
// P and d count from 1, as in the library. The formula keeps what value and derivatives have in common,
// multiplies by reciprocals and merges powers as its author likes, and handles no error: what it costs is what
// a call can be compared with. With a d that is a pointer it writes the derivatives there. Special functions
// that C++ does not have are the library's own on both sides.
#pragma once

#include "special/bessel.h"
#include "special/gamma.h"
#include "special/log_gamma.h"

#include <ceres/jet.h>

#include <cmath>
#include <string_view>
#include <type_traits>
#include <utility>

namespace bench {

/// Stands for d where the value alone is wanted.
struct NoRow {};
template <class D> constexpr bool wanted = std::is_pointer_v<D>;

inline double gamma_of(double z) {
    return ansatz::gamma_fn(z);
}
template <int n> ceres::Jet<double, n> gamma_of(const ceres::Jet<double, n>& z) {
    return {ansatz::gamma_fn(z.a), ansatz::gamma_prime(z.a) * z.v};
}

/// e^-t I1(t)
inline double bessel_of(double t) {
    return ansatz::scaled_bessel_i1(t);
}
template <int n> ceres::Jet<double, n> bessel_of(const ceres::Jet<double, n>& t) {
    const double i1 = ansatz::scaled_bessel_i1(t.a);
    return {i1, (ansatz::scaled_bessel_i0_minus_i1(t.a) - i1 / t.a) * t.v};
}

/// What all laws have: the text has parameters P1, P2, .. and variables x, x2.
template <int n, int m = 1> struct Law { static constexpr int params = n, outputs = m; };

namespace law {

using std::exp, std::log, std::pow, std::sin, std::cos, std::sqrt;

inline constexpr double pi = 3.141592653589793, sqrt_half_pi = 1.2533141373155003;

// Without a call of the C library.
struct Line : Law<2> {
    static constexpr const char *name = "Line", *text = "P1 + P2*x";
    template <class T, class D = NoRow> static T at(const T* P, double x, double, D d = {}) {
        if constexpr (wanted<D>) {
            d[1] = 1;
            d[2] = x;
        }
        return P[1] + P[2] * x;
    }
};
struct Poly5 : Law<6> {
    static constexpr const char *name = "Poly5", *text = "P1 + x*(P2 + x*(P3 + x*(P4 + x*(P5 + x*P6))))";
    template <class T, class D = NoRow> static T at(const T* P, double x, double, D d = {}) {
        if constexpr (wanted<D>) {
            d[1] = 1;
            for (int k = 2; k <= params; ++k) d[k] = d[k - 1] * x;
        }
        return P[1] + x * (P[2] + x * (P[3] + x * (P[4] + x * (P[5] + x * P[6]))));
    }
};
struct MicMent : Law<2> {
    static constexpr const char *name = "MicMent", *text = "P1*x/(P2 + x)";
    template <class T, class D = NoRow> static T at(const T* P, double x, double, D d = {}) {
        const T r = 1.0 / (P[2] + x), share = x * r, y = P[1] * share;
        if constexpr (wanted<D>) {
            d[1] = share;
            d[2] = -y * r;
        }
        return y;
    }
};
struct Lorentz : Law<4> {
    static constexpr const char *name = "Lorentz", *text = "P1 + 2*P4/3.141592653589793*P3/(4*(x-P2)^2 + P3^2)";
    template <class T, class D = NoRow> static T at(const T* P, double x, double, D d = {}) {
        const T r = 1.0 / P[3], u = 2.0 * (x - P[2]) * r, q = 2.0 / pi * r / (1.0 + u * u), y = P[4] * q;
        if constexpr (wanted<D>) {
            const double slope = 2 * pi * y * q;
            d[1] = 1;
            d[2] = u * slope;
            d[3] = 0.5 * u * u * slope - y * r;
            d[4] = q;
        }
        return P[1] + y;
    }
};
struct Polynomial2D : Law<11> {
    static constexpr const char *name = "Polynomial2D",
                                *text = "P1 + x*(P2 + x*(P3 + x*(P4 + x*(P5 + x*P6))))"
                                        " + x2*(P7 + x2*(P8 + x2*(P9 + x2*(P10 + x2*P11))))";
    template <class T, class D = NoRow> static T at(const T* P, double x, double x2, D d = {}) {
        const double a2 = x * x, a3 = a2 * x, b2 = x2 * x2, b3 = b2 * x2;
        const double terms[] = {1, x, a2, a3, a2 * a2, a2 * a3, x2, b2, b3, b2 * b2, b2 * b3};
        T y = P[1];
        for (int k = 2; k <= params; ++k) y += P[k] * terms[k - 1];
        if constexpr (wanted<D>) {
            for (int k = 1; k <= params; ++k) d[k] = terms[k - 1];
        }
        return y;
    }
};
/// A series of rational functions, in the form for the centre of the peak. The library has another one for the
/// tails of narrow profiles, which is not met here. Nobody types it: no text.
struct Voigt5 : Law<5> {
    static constexpr const char *name = "Voigt5", *text = "";
    template <class T, class D = NoRow> static T at(const T* P, double x, double, D = {}) {
        constexpr double nodes[] = {0.314240376, 0.947788391, 1.59768264, 2.27950708, 3.02063703, 3.8897249};
        constexpr double C[] = {1.01172805,   -0.75197147,     0.012557727,
                                0.0100220082, -0.000242068135, 5.00848061e-07};
        constexpr double S[] = {1.39323,       0.231152406,    -0.155351466,
                                0.00621836624, 9.19082986e-05, -6.27525958e-07};
        const T r = 1.0 / P[4], X = (x - P[2]) * 1.665109222 * r, Y = P[5] * 0.832554611 * r + 1.5, Y2 = Y * Y;
        T K(0.0);
        for (int i = 0; i < 6; ++i) {
            const T R = X - nodes[i], Rp = X + nodes[i], q = 1.0 / (R * R + Y2), qp = 1.0 / (Rp * Rp + Y2);
            K += C[i] * Y * (q + qp) - S[i] * (R * q - Rp * qp);
        }
        return P[1] + P[3] * K * 0.939437278 * r;
    }
};

// One exponential, or a wave.
struct Exp1P1 : Law<1> {
    static constexpr const char *name = "Exp1P1", *text = "exp(x-P1)";
    template <class T, class D = NoRow> static T at(const T* P, double x, double, D d = {}) {
        const T e = exp(x - P[1]);
        if constexpr (wanted<D>) d[1] = -e;
        return e;
    }
};
struct BoxLucas1 : Law<2> {
    static constexpr const char *name = "BoxLucas1", *text = "P1*(1-exp(-P2*x))";
    template <class T, class D = NoRow> static T at(const T* P, double x, double, D d = {}) {
        const T e = exp(-P[2] * x);
        if constexpr (wanted<D>) {
            d[1] = 1 - e;
            d[2] = P[1] * x * e;
        }
        return P[1] * (1.0 - e);
    }
};
struct Gauss : Law<4> {
    static constexpr const char *name = "Gauss",
                                *text = "P1 + P4/(P3*1.2533141373155003)*exp(-2*((x-P2)/P3)^2)";
    template <class T, class D = NoRow> static T at(const T* P, double x, double, D d = {}) {
        const T r = 1.0 / P[3], u = (x - P[2]) * r, s = u * u, g = exp(-2.0 * s) * (r * (1 / sqrt_half_pi)),
                y = P[4] * g;
        if constexpr (wanted<D>) {
            const double slope = y * r;
            d[1] = 1;
            d[2] = 4 * u * slope;
            d[3] = (4 * s - 1) * slope;
            d[4] = g;
        }
        return P[1] + y;
    }
};
struct Boltzman : Law<4> {
    static constexpr const char *name = "Boltzman", *text = "P2 + (P1-P2)/(1 + exp((x-P3)/P4))";
    template <class T, class D = NoRow> static T at(const T* P, double x, double, D d = {}) {
        const T r = 1.0 / P[4], u = (x - P[3]) * r, share = 1.0 / (1.0 + exp(u)), A = (P[1] - P[2]) * share;
        if constexpr (wanted<D>) {
            const double rest = 1 - share, slope = A * rest * r;
            d[1] = share;
            d[2] = rest;
            d[3] = slope;
            d[4] = slope * u;
        }
        return P[2] + A;
    }
};
struct Sine : Law<4> {
    static constexpr const char *name = "Sine", *text = "P1 + P4*sin(3.141592653589793*(x-P2)/P3)";
    template <class T, class D = NoRow> static T at(const T* P, double x, double, D d = {}) {
        const T r = pi / P[3], v = x - P[2], t = v * r, s = sin(t);
        if constexpr (wanted<D>) {
            const double slope = -cos(t) * P[4] * r;
            d[1] = 1;
            d[2] = slope;
            d[3] = slope * v / P[3];
            d[4] = s;
        }
        return P[1] + P[4] * s;
    }
};
struct Gauss2D : Law<6> {
    static constexpr const char *name = "Gauss2D", *text = "P1 + P2*exp(-0.5*(((x-P3)/P4)^2 + ((x2-P5)/P6)^2))";
    template <class T, class D = NoRow> static T at(const T* P, double x, double x2, D d = {}) {
        const T r = 1.0 / P[4], s = 1.0 / P[6], u = (x - P[3]) * r, v = (x2 - P[5]) * s;
        const T G = exp(-0.5 * (u * u + v * v)), y = P[2] * G;
        if constexpr (wanted<D>) {
            d[1] = 1;
            d[2] = G;
            d[3] = y * u * r;
            d[4] = d[3] * u;
            d[5] = y * v * s;
            d[6] = d[5] * v;
        }
        return P[1] + y;
    }
};
struct GaussianLorentz : Law<6, 2> {
    static constexpr const char *name = "GaussianLorentz",
                                *text = "P1 + P3/(P5*1.2533141373155003)*exp(-2*((x-P2)/P5)^2),"
                                        "P1 + 2*P4/3.141592653589793*P6/(4*(x-P2)^2 + P6^2)";
    static std::pair<double, double> at(const double* P, double x, double, NoRow = {}) {
        const double v = x - P[2], u = v / P[5];
        return {P[1] + P[3] / (sqrt_half_pi * P[5]) * exp(-2 * u * u),
                P[1] + 2 / pi * P[4] * P[6] / (4 * v * v + P[6] * P[6])};
    }
};

// Several exponentials.
struct ExpDec2 : Law<5> {
    static constexpr const char *name = "ExpDec2", *text = "P1 + P2*exp(-x/P3) + P4*exp(-x/P5)";
    template <class T, class D = NoRow> static T at(const T* P, double x, double, D d = {}) {
        T y = P[1];
        if constexpr (wanted<D>) d[1] = 1;
        for (int k = 2; k <= 4; k += 2) {
            const T r = 1.0 / P[k + 1], u = -x * r, e = exp(u), term = P[k] * e;
            if constexpr (wanted<D>) {
                d[k] = e;
                d[k + 1] = -u * term * r;
            }
            y += term;
        }
        return y;
    }
};
struct Lanczos3 : Law<6> {
    static constexpr const char *name = "Lanczos3", *text = "P1*exp(-P2*x) + P3*exp(-P4*x) + P5*exp(-P6*x)";
    template <class T, class D = NoRow> static T at(const T* P, double x, double, D d = {}) {
        T y(0.0);
        for (int k = 1; k <= 5; k += 2) {
            const T e = exp(-P[k + 1] * x), term = P[k] * e;
            if constexpr (wanted<D>) {
                d[k] = e;
                d[k + 1] = -x * term;
            }
            y += term;
        }
        return y;
    }
};
struct SGompertz : Law<3> {
    static constexpr const char *name = "SGompertz", *text = "P1*exp(-exp(-(x-P2)*P3))";
    template <class T, class D = NoRow> static T at(const T* P, double x, double, D d = {}) {
        const T v = x - P[2], t = exp(-v * P[3]), g = exp(-t), y = P[1] * g;
        if constexpr (wanted<D>) {
            const double w = y * t;
            d[1] = g;
            d[2] = -w * P[3];
            d[3] = w * v;
        }
        return y;
    }
};
/// With two peaks, as any model that repeats a block can have them.
struct GaussAmp : Law<7> {
    static constexpr const char *name = "GaussAmp",
                                *text = "P1 + P4*exp(-0.5*((x-P2)/P3)^2) + P7*exp(-0.5*((x-P5)/P6)^2)";
    template <class T, class D = NoRow> static T at(const T* P, double x, double, D d = {}) {
        T y = P[1];
        if constexpr (wanted<D>) d[1] = 1;
        for (int k = 2; k <= 5; k += 3) {
            const T r = 1.0 / P[k + 1], u = (x - P[k]) * r, e = exp(-0.5 * u * u), peak = P[k + 2] * e;
            if constexpr (wanted<D>) {
                d[k] = peak * u * r;
                d[k + 1] = d[k] * u;
                d[k + 2] = e;
            }
            y += peak;
        }
        return y;
    }
};

// Powers and logarithms.
struct Allometric1 : Law<2> {
    static constexpr const char *name = "Allometric1", *text = "P1*x^P2";
    template <class T, class D = NoRow> static T at(const T* P, double x, double, D d = {}) {
        const T w = pow(x, P[2]), y = P[1] * w;
        if constexpr (wanted<D>) {
            d[1] = w;
            d[2] = y * log(x);
        }
        return y;
    }
};
struct Hill : Law<3> {
    static constexpr const char *name = "Hill", *text = "P1/(1 + (P2/x)^P3)";
    template <class T, class D = NoRow> static T at(const T* P, double x, double, D d = {}) {
        const T ratio = P[2] / x, t = pow(ratio, P[3]), share = 1.0 / (1.0 + t), y = P[1] * share;
        if constexpr (wanted<D>) {
            const double q = -t * y * share;
            d[1] = share;
            d[2] = P[3] / P[2] * q;
            d[3] = q * log(ratio);
        }
        return y;
    }
};
struct Logistic : Law<4> {
    static constexpr const char *name = "Logistic", *text = "P2 + (P1-P2)/(1 + (x/P3)^P4)";
    template <class T, class D = NoRow> static T at(const T* P, double x, double, D d = {}) {
        const T u = x / P[3], share = 1.0 / (1.0 + pow(u, P[4])), A = (P[1] - P[2]) * share;
        if constexpr (wanted<D>) {
            const double rest = 1 - share, w = A * rest;
            d[1] = share;
            d[2] = rest;
            d[3] = w * P[4] / P[3];
            d[4] = -w * log(u);
        }
        return P[2] + A;
    }
};
struct SRichards1 : Law<4> {
    static constexpr const char *name = "SRichards1",
                                *text = "(P1^(1-P3) - sign(1-P3)*exp(-(x-P2)*P4))^(1/(1-P3))";
    template <class T, class D = NoRow> static T at(const T* P, double x, double, D d = {}) {
        const T c = 1.0 - P[3], r = 1.0 / c, v = x - P[2], e = exp(-v * P[4]), term = P[3] < 1.0 ? e : -e;
        const T a = pow(P[1], c), b = a - term, y = pow(b, r);
        if constexpr (wanted<D>) {
            const double q = y / b, w = q * term * r;
            d[1] = a / P[1] * q;
            d[2] = -P[4] * w;
            d[3] = y * r * (log(b) * r - log(P[1]) * a / b);
            d[4] = v * w;
        }
        return y;
    }
};

// Special functions.
struct PearsonVII : Law<5> {
    static constexpr const char *name = "PearsonVII",
                                *text =
                                    "P1 + 2*P3*sqrt(2^(1/P5)-1)*gamma(P5)/(gamma(P5-0.5)*P4*1.77245385090551)"
                                    "*(1 + 4*(2^(1/P5)-1)*((x-P2)/P4)^2)^(-P5)";
    template <class T, class D = NoRow> static T at(const T* P, double x, double, D d = {}) {
        const T A = P[3], r = 1.0 / P[4], m = P[5], a = pow(2.0, 1.0 / m), u = (x - P[2]) * r;
        const T q = 4.0 * (a - 1.0) * u * u + 1.0, p = pow(q, -m), s = sqrt(a - 1.0);
        const T Gm = gamma_of(m), Gh = gamma_of(m - 0.5);
        const T by_area = 2.0 * s * p * Gm / Gh * r / 1.77245385090551;
        if constexpr (wanted<D>) {
            // By the shape the model has a formula of its own.
            const double N = r / (1.77245385090551 * Gh), half = 2 * s * A * p * N;
            d[1] = 1;
            d[2] = 8 * (a - 1) * A * m * by_area / q * u * r;
            d[3] = by_area;
            d[4] = d[2] * u - A * r * by_area;
            d[5] = half * ansatz::gamma_prime(m) + half - a * 0.693147 * A * p * Gm * N / (m * s * m) +
                   (a * 2.77259 * u * u / (m * q) - log(q)) * Gm -
                   half * Gm / Gh * ansatz::gamma_prime(m - 0.5);
        }
        return P[1] + A * by_area;
    }
};
struct Giddings : Law<4> { // for x > 0
    static constexpr const char *name = "Giddings",
                                *text =
                                    "P1 + P4/P3*sqrt(P2/x)*i1e(2*sqrt(P2*x)/P3)*exp(-(sqrt(x)-sqrt(P2))^2/P3)";
    template <class T, class D = NoRow> static T at(const T* P, double x, double, D d = {}) {
        const double rx = sqrt(x);
        const T r = 1.0 / P[3], rc = sqrt(P[2]), h = (x - P[2]) / (rx + rc), e = exp(-h * h * r);
        const T t = 2.0 * rx * rc * r, i1 = bessel_of(t), unit = rc / rx * i1 * e * r;
        if constexpr (wanted<D>) {
            const double i01 = ansatz::scaled_bessel_i0_minus_i1(t), s = P[4] * e * r * r;
            d[1] = 1;
            d[2] = s * (i01 + h / rx * i1);
            d[3] = s * r * (rc / rx) * (h * h * i1 - 2 * rx * rc * i01);
            d[4] = unit;
        }
        return P[1] + P[4] * unit;
    }
};
struct Poisson : Law<2> {
    static constexpr const char *name = "Poisson", *text = "P1 + exp(x*log(P2) - lgamma(x+1) - P2)";
    template <class T, class D = NoRow> static T at(const T* P, double x, double, D = {}) {
        return P[1] + exp(x * log(P[2]) - ansatz::log_gamma(x + 1) - P[2]);
    }
};

} // namespace law

/// Calls f with an object of each law.
template <class F> void for_each_law(F f) {
    using namespace law;
    const auto all = [&](auto... laws) { (f(laws), ...); };
    all(Line{}, Poly5{}, MicMent{}, Lorentz{}, Polynomial2D{}, Voigt5{}, Exp1P1{}, BoxLucas1{}, Gauss{},
        Boltzman{}, Sine{}, Gauss2D{}, GaussianLorentz{}, ExpDec2{}, Lanczos3{}, SGompertz{}, GaussAmp{},
        Allometric1{}, Hill{}, Logistic{}, SRichards1{}, PearsonVII{}, Giddings{}, Poisson{});
}

/// The text of a law; empty where there is none.
inline std::string_view formula_of(std::string_view name) {
    std::string_view text;
    for_each_law([&](auto law) {
        if (name == law.name) text = law.text;
    });
    return text;
}

} // namespace bench
