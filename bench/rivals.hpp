// The laws of a dozen models as a user would write them down: for a type that differentiates automatically, and
// as text for a parser of formulas.
#pragma once

#include "special/gamma.h"

#include <ceres/jet.h>
#include <muParser.h>

#include <cmath>
#include <string>
#include <vector>

namespace bench {

/// A step for a central difference.
inline double difference_step(double at) {
    return 6e-6 * std::fmax(std::fabs(at), 1e-3);
}

/// The gamma function, in the accuracy of "PearsonVII", for both kinds of numbers.
inline double gamma_of(double z) {
    return ansatz::gamma_fn(z);
}
template <int n> ceres::Jet<double, n> gamma_of(const ceres::Jet<double, n>& z) {
    return {ansatz::gamma_fn(z.a), ansatz::gamma_prime(z.a) * z.v};
}

/// The part of a number that is compared.
inline double plain(double v) {
    return v;
}
template <int n> double plain(const ceres::Jet<double, n>& v) {
    return v.a;
}

namespace law {

using std::exp, std::pow, std::sqrt, std::fabs;

struct Gauss {
    static constexpr int params = 4;
    template <class T> static T at(const T* P, double x, double) {
        const T u = (x - P[2]) / P[3];
        return P[1] + P[4] / (P[3] * 1.2533141373155003) * exp(-2.0 * u * u);
    }
};
struct Lorentz {
    static constexpr int params = 4;
    template <class T> static T at(const T* P, double x, double) {
        const T d = x - P[2];
        return P[1] + 2.0 * P[4] / 3.141592653589793 * P[3] / (4.0 * d * d + P[3] * P[3]);
    }
};
struct Voigt5 {
    static constexpr int params = 5;
    static constexpr int nodes = 6;
    static constexpr double T6[nodes] = {0.314240376, 0.947788391, 1.59768264,
                                         2.27950708,  3.02063703,  3.8897249};
    static constexpr double C[nodes] = {1.01172805,   -0.75197147,     0.012557727,
                                        0.0100220082, -0.000242068135, 5.00848061e-07};
    static constexpr double S[nodes] = {1.39323,       0.231152406,    -0.155351466,
                                        0.00621836624, 9.19082986e-05, -6.27525958e-07};
    template <class T> static T at(const T* P, double x, double) {
        const T X = (x - P[2]) * 1.665109222 / P[4], Y = P[5] * 0.832554611 / P[4];
        const T Y1 = Y + 1.5, Y2 = Y1 * Y1;
        T K = T(0.0);
        const double size = std::fabs(plain(X));
        if (plain(Y) > 0.85 || size < 18.1 * plain(Y) + 1.65) {
            for (int i = 0; i < nodes; ++i) {
                const T R = X - T6[i], D = 1.0 / (R * R + Y2), Rp = X + T6[i], Dp = 1.0 / (Rp * Rp + Y2);
                K += C[i] * Y1 * (D + Dp) - S[i] * (R * D - Rp * Dp);
            }
        } else {
            if (size < 12) K = exp(-X * X);
            for (int i = 0; i < nodes; ++i) {
                const T R = X - T6[i], D = 1.0 / (R * R + Y2), Rp = X + T6[i], Dp = 1.0 / (Rp * Rp + Y2);
                K += Y * (C[i] * (R * R * D - 1.5 * Y1 * D) + S[i] * (Y + 3.0) * R * D) / (R * R + 2.25);
                K +=
                    Y * (C[i] * (Rp * Rp * Dp - 1.5 * Y1 * Dp) - S[i] * (Y + 3.0) * Rp * Dp) / (Rp * Rp + 2.25);
            }
        }
        return P[1] + P[3] * K * 0.939437278 / P[4];
    }
};
struct PearsonVII {
    static constexpr int params = 5;
    template <class T> static T at(const T* P, double x, double) {
        const T &m = P[5], a = pow(2.0, 1.0 / m), u = (x - P[2]) / P[4];
        const T height =
            2.0 * P[3] * sqrt(a - 1.0) * gamma_of(m) / (gamma_of(m - 0.5) * P[4] * 1.77245385090551);
        return P[1] + height * pow(1.0 + 4.0 * (a - 1.0) * u * u, -m);
    }
};
struct ExpDec2 {
    static constexpr int params = 5;
    template <class T> static T at(const T* P, double x, double) {
        return P[1] + P[2] * exp(-x / P[3]) + P[4] * exp(-x / P[5]);
    }
};
struct Logistic {
    static constexpr int params = 4;
    template <class T> static T at(const T* P, double x, double) {
        return P[2] + (P[1] - P[2]) / (1.0 + pow(x / P[3], P[4]));
    }
};
struct Boltzman {
    static constexpr int params = 4;
    template <class T> static T at(const T* P, double x, double) {
        return P[2] + (P[1] - P[2]) / (1.0 + exp((x - P[3]) / P[4]));
    }
};
struct Hill {
    static constexpr int params = 3;
    template <class T> static T at(const T* P, double x, double) { return P[1] / (1.0 + pow(P[2] / x, P[3])); }
};
struct SRichards1 {
    static constexpr int params = 4;
    template <class T> static T at(const T* P, double x, double) {
        const double sign = plain(P[3]) < 1 ? 1 : -1;
        return pow(pow(P[1], 1.0 - P[3]) - sign * exp(-(x - P[2]) * P[4]), 1.0 / (1.0 - P[3]));
    }
};
struct Allometric1 {
    static constexpr int params = 2;
    template <class T> static T at(const T* P, double x, double) { return P[1] * pow(T(x), P[2]); }
};
struct Poly5 {
    static constexpr int params = 6;
    template <class T> static T at(const T* P, double x, double) {
        return P[1] + x * (P[2] + x * (P[3] + x * (P[4] + x * (P[5] + x * P[6]))));
    }
};
struct Gauss2D {
    static constexpr int params = 6;
    template <class T> static T at(const T* P, double x1, double x2) {
        const T u = (x1 - P[3]) / P[4], v = (x2 - P[5]) / P[6];
        return P[1] + P[2] * exp(-0.5 * (u * u + v * v));
    }
};
struct Lanczos3 {
    static constexpr int params = 6;
    template <class T> static T at(const T* P, double x, double) {
        return P[1] * exp(-P[2] * x) + P[3] * exp(-P[4] * x) + P[5] * exp(-P[6] * x);
    }
};
struct BoxLucas1 {
    static constexpr int params = 2;
    template <class T> static T at(const T* P, double x, double) { return P[1] * (1.0 - exp(-P[2] * x)); }
};

} // namespace law

/// The formula of a law as a user would type it. The parameters are P1, P2, ..; the variables x and x2.
inline std::string formula_of(const std::string& name) {
    if (name == "Gauss") return "P1 + P4/(P3*1.2533141373155003)*exp(-2*((x-P2)/P3)^2)";
    if (name == "Lorentz") return "P1 + 2*P4/3.141592653589793*P3/(4*(x-P2)^2 + P3^2)";
    if (name == "PearsonVII") {
        return "P1 + 2*P3*sqrt(2^(1/P5)-1)*gamma(P5)/(gamma(P5-0.5)*P4*1.77245385090551)"
               "*(1 + 4*(2^(1/P5)-1)*((x-P2)/P4)^2)^(-P5)";
    }
    if (name == "ExpDec2") return "P1 + P2*exp(-x/P3) + P4*exp(-x/P5)";
    if (name == "Logistic") return "P2 + (P1-P2)/(1 + (x/P3)^P4)";
    if (name == "Boltzman") return "P2 + (P1-P2)/(1 + exp((x-P3)/P4))";
    if (name == "Hill") return "P1/(1 + (P2/x)^P3)";
    if (name == "SRichards1") return "(P1^(1-P3) - (P3<1 ? 1 : -1)*exp(-(x-P2)*P4))^(1/(1-P3))";
    if (name == "Allometric1") return "P1*x^P2";
    if (name == "Poly5") return "P1 + P2*x + P3*x^2 + P4*x^3 + P5*x^4 + P6*x^5";
    if (name == "Gauss2D") return "P1 + P2*exp(-0.5*(((x-P3)/P4)^2 + ((x2-P5)/P6)^2))";
    if (name == "Lanczos3") return "P1*exp(-P2*x) + P3*exp(-P4*x) + P5*exp(-P6*x)";
    if (name == "BoxLucas1") return "P1*(1-exp(-P2*x))";
    if (name == "Voigt5") {
        std::string near, far;
        const auto number = [](double v) {
            char text[40];
            std::snprintf(text, sizeof text, "(%.17g)", v);
            return std::string(text);
        };
        for (int i = 0; i < law::Voigt5::nodes; ++i) {
            for (const int side : {-1, 1}) {
                const std::string R = "(X+" + number(side * law::Voigt5::T6[i]) + ")";
                const std::string D = "(" + R + "^2+(Y+1.5)^2)", c = number(law::Voigt5::C[i]);
                const std::string s = number(-side * law::Voigt5::S[i]);
                near += "+(" + c + "*(Y+1.5)-" + s + "*" + R + ")/" + D;
                far += "+Y*(" + c + "*(" + R + "^2-1.5*(Y+1.5))+" + s + "*(Y+3)*" + R + ")/" + D + "/(" + R +
                       "^2+2.25)";
            }
        }
        return "X=(x-P2)*1.665109222/P4, Y=P5*0.832554611/P4, "
               "P1+P3*0.939437278/P4*(Y>0.85||abs(X)<18.1*Y+1.65?0" +
               near + ":(abs(X)<12?exp(-X^2):0)" + far + ")";
    }
    return {};
}

/// A formula that was read at run time, with derivatives by central differences.
class Parsed {
public:
    Parsed(const std::string& formula, int params) : P_(static_cast<std::size_t>(params)) {
        for (std::size_t k = 0; k < P_.size(); ++k) parser_.DefineVar("P" + std::to_string(k + 1), &P_[k]);
        parser_.DefineVar("x", &x_);
        parser_.DefineVar("x2", &x2_);
        parser_.DefineVar("X", &scratch_[0]);
        parser_.DefineVar("Y", &scratch_[1]);
        parser_.DefineFun(
            "gamma", +[](double z) { return std::tgamma(z); });
        parser_.SetExpr(formula);
    }
    Parsed(const Parsed&) = delete;
    Parsed& operator=(const Parsed&) = delete;

    void set_parameters(const double* values) { std::copy_n(values, P_.size(), P_.begin()); }
    double value(double x, double x2) {
        x_ = x;
        x2_ = x2;
        return parser_.Eval();
    }
    double gradient(double x, double x2, double* row) {
        const double y = value(x, x2);
        for (double& parameter : P_) {
            const double at = parameter, step = difference_step(at), up = at + step, down = at - step;
            parameter = up;
            const double above = parser_.Eval();
            parameter = down;
            *row++ = (above - parser_.Eval()) / (up - down);
            parameter = at;
        }
        return y;
    }

private:
    std::vector<double> P_;
    double x_ = 0, x2_ = 0, scratch_[2] = {};
    mu::Parser parser_;
};

} // namespace bench
