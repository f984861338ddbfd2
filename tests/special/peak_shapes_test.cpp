// Area, height and half width of the peaks that have them in closed form, from the values that the models
// compute.

#include <ansatz/ansatz.h>

#include <gtest/gtest.h>

#include <cerrno>
#include <cmath>
#include <string>
#include <vector>

namespace {

constexpr double pi = 3.141592653589793;
constexpr double unknown = -1; // no closed form

struct Shape {
    std::string name;
    std::vector<double> P; ///< from index 0; the offset is 0
    double area = unknown;
    double top = 0, height = unknown;       ///< where the maximum is, and its height
    double left = unknown, right = unknown; ///< from there to half the height
    double error = 1e-9;
};

std::vector<Shape> shapes() {
    const double sigma = std::sqrt(2 * std::log(2.0)); // half width of a Gaussian of standard deviation 1
    const double root = std::sqrt(2 * pi), e = std::exp(1.0);
    const double gauss = 2 * std::sqrt(std::log(2.0) / pi), lorentz = 2 / pi; // heights for area and width 1
    const double voigt = std::exp(std::log(2.0) / 4) * std::erfc(std::sqrt(std::log(2.0)) / 2); // approximated
    const double pearson7 = std::sqrt(std::pow(2, 0.4) - 1) * std::tgamma(2.5) / std::sqrt(pi);
    const double pearson4_half = 0.5 * std::sqrt(std::cbrt(2.0) - 1);
    const double beta = std::pow(9.0 / 4, 4) * std::pow(9.0 / 5, 5) / 1260; // 1/1260 is B(5, 6)
    const double mode = 2 * std::exp(-0.16), log_half = std::exp(0.4 * sigma);
    return {
        {"Gauss", {0, 1, 2, 3}, 3, 1, 3 / root, sigma, sigma},
        {"Lorentz", {0, 1, 2, 3}, 3, 1, 3 * lorentz / 2, 1, 1},
        {"GaussAmp", {0, 1, 0.5, 3}, 1.5 * root, 1, 3, 0.5 * sigma, 0.5 * sigma},
        {"Gaussian", {0, 1, 3, 0.5}, 3, 1, 6 * gauss, 0.25, 0.25},
        {"LogistPK", {0, 1, 0.5, 3}, 6, 1, 3, 0.5 * std::acosh(3.0), 0.5 * std::acosh(3.0)},
        {"Extreme", {0, 1, 0.5, 3}, 1.5 * e, 1, 3},
        {"PsdVoigt1", {0, 1, 3, 0.5, 0.25}, 3, 1, 6 * (0.75 * gauss + 0.25 * lorentz), 0.25, 0.25},
        {"PsdVoigt2", {0, 1, 3, 0.5, 2, 0.25}, 3, 1, 3 * (0.75 / 0.5 * gauss + 0.25 / 2 * lorentz)},
        {"Voigt5", {0, 1, 3, 0.5, 0.25}, 3, 1, 6 * gauss * voigt, unknown, unknown, 2e-6},
        {"PearsonVII", {0, 1, 3, 0.5, 1}, 3, 1, 6 * lorentz, 0.25, 0.25},
        {"PearsonVII", {0, 1, 3, 0.5, 2.5}, 3, 1, 12 * pearson7, 0.25, 0.25},
        {"PearsonIV", {0, 1, 3, 0.5, 0, 3}, 3, 1, 16 / pi, pearson4_half, pearson4_half},
        {"PearsonIV", {0, 1, 3, 0.5, 4, 2}, 3, 0.5},
        {"Giddings", {0, 2, 0.8, 3}, 3 * (1 - std::exp(-2.5)), 0}, // split at 0, where it jumps
        {"Giddings", {0, 2, 0.02, 3}, 3, 2},
        {"Beta", {0, 1, 3, 2, 5, 6}, 6 * beta, 1, 3, unknown, unknown, 1e-7},
        {"asymptgauss", {0, 1, 3, 0.5, 0}, 1.5 / gauss, 1, 3, 0.25, 0.25},
        {"asymptgauss", {0, 1, 3, 0.5, 2}, unknown, 1, 3},
        {"BiGaussian", {0, 1, 3, 0.5, 2}, 1.5 * 2.5 * root, 1, 3, 0.5 * sigma, 2 * sigma},
        {"GaussMod", {0, 3, 1, 0.5, 2}, 3, 1},
        {"GaussMod", {0, 3, 1, 0.5, 0.005}, 3, 1},
        {"GCAS", {0, 3, 1, 0.5, 0.3, 0.2}, 3, 1},
        {"ECS", {0, 3, 1, 0.5, 0.3, 0.2}, 3, 1},
        {"LogNormal",
         {0, 2, 0.4, 3},
         3,
         mode,
         3 / (root * 0.4 * mode) * std::exp(-0.08),
         mode * (1 - 1 / log_half),
         mode * (log_half - 1)},
        {"Asym2Sig", {0, 1, 3, 2, 0.5, 0.5}, 6 / (1 - std::exp(-4.0)), 1, 3 / std::pow(1 + std::exp(-2.0), 2)},
        {"Weibull3", {0, 1, 3, 0.5, 2}, unknown, 1, 3},
        {"Weibull3",
         {0, 1, 3, 0.5, 2},
         0.75 * std::sqrt(2 * e),
         1 - 0.5 * std::sqrt(0.5)}, // split at its beginning
    };
}

double value(const Shape& shape, double x) {
    std::vector<double> P = shape.P;
    P.insert(P.begin(), 0);
    double xs[] = {0, x}, y[8], dyda[1];
    errno = 0;
    const auto n = static_cast<std::int32_t>(shape.P.size());
    EXPECT_EQ(get_funx(shape.name.c_str())(FF_VALUE, 0, n, 0, 0, P.data(), 0, xs, y, dyda), 0);
    return y[1];
}

/// Both half lines from the top by x = top +- e^(pi/2 sinh s), whose steps suit slow and fast decays alike.
double area(const Shape& shape) {
    constexpr double step = 1.0 / 256;
    double sum = 0;
    for (double s = -4.5; s <= 4.5; s += step) {
        const double distance = std::exp(pi / 2 * std::sinh(s));
        sum +=
            (value(shape, shape.top + distance) + value(shape, shape.top - distance)) * std::cosh(s) * distance;
    }
    return sum * pi / 2 * step;
}

TEST(PeakShapes, HaveTheAreaHeightAndWidthOfTheirLaws) {
    for (const Shape& shape : shapes()) {
        SCOPED_TRACE(shape.name);
        const double height = shape.height;
        if (shape.area != unknown) {
            EXPECT_NEAR(area(shape), shape.area, shape.error * shape.area);
        }
        if (height != unknown) {
            EXPECT_NEAR(value(shape, shape.top), height, shape.error * height);
        }
        if (shape.left != unknown) {
            EXPECT_NEAR(value(shape, shape.top - shape.left), height / 2, shape.error * height);
            EXPECT_NEAR(value(shape, shape.top + shape.right), height / 2, shape.error * height);
        }
    }
}

// The mode of a Pearson IV lies at P2 - P4 nu / (2 m).
TEST(PeakShapes, PearsonIVHasItsMaximumWhereThePageSays) {
    const Shape skewed{"PearsonIV", {0, 1, 3, 0.5, 4, 2}};
    const double top = value(skewed, 0.5);
    for (const double step : {1e-6, 1e-3, 0.1}) {
        EXPECT_LT(value(skewed, 0.5 - step), top);
        EXPECT_LT(value(skewed, 0.5 + step), top);
    }
}

// A short decay t shifts the Gaussian by t and widens it to the variance w^2 + t^2; what is left is a skewness
// of 2 t^3.
TEST(PeakShapes, GaussModOfShortDecayIsNearlyTheGaussian) {
    const double width = std::sqrt(1 + 1e-6);
    const Shape modified{"GaussMod", {0, 3, 1, 1, 1e-3}};
    const Shape plain{"GaussAmp", {0, 1.001, width, 3 / (std::sqrt(2 * pi) * width)}};
    for (const double x : {-2.0, 0.0, 1.0, 1.7, 4.0}) {
        EXPECT_NEAR(value(modified, x), value(plain, x), 1e-8 * value(plain, x));
    }
}

} // namespace
