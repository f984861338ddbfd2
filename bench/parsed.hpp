// A formula that is read at run time, with derivatives by central differences.
#pragma once

#include "special/bessel.h"

#include <muParser.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <string_view>
#include <vector>

namespace bench {

/// A step for a central difference.
inline double difference_step(double at) {
    return 6e-6 * std::fmax(std::fabs(at), 1e-3);
}

class Parsed {
public:
    Parsed(std::string_view formula, int params) : P_(static_cast<std::size_t>(params)) {
        for (std::size_t k = 0; k < P_.size(); ++k) parser_.DefineVar("P" + std::to_string(k + 1), &P_[k]);
        parser_.DefineVar("x", &x_);
        parser_.DefineVar("x2", &x2_);
        parser_.DefineFun(
            "gamma", +[](double z) { return std::tgamma(z); });
        parser_.DefineFun(
            "lgamma", +[](double z) { return std::lgamma(z); });
        parser_.DefineFun(
            "i1e", +[](double t) { return ansatz::scaled_bessel_i1(t); });
        parser_.SetExpr(std::string(formula));
    }
    Parsed(const Parsed&) = delete;
    Parsed& operator=(const Parsed&) = delete;

    void set_parameters(const double* values) { std::copy_n(values, P_.size(), P_.begin()); }

    /// The values of all expressions of the formula, which commas separate.
    const double* values(double x, double x2) {
        int count = 0;
        x_ = x;
        x2_ = x2;
        return parser_.Eval(count);
    }
    double gradient(double x, double x2, double* row) {
        const double y = *values(x, x2);
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
    double x_ = 0, x2_ = 0;
    mu::Parser parser_;
};

} // namespace bench
