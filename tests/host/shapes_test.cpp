// Fits of the models that are not one curve over one x column, and of the distributions: exact data give their
// parameters back, and noisy data give what linear regression gives.

#include <ansatz/host/fit.hpp>

#include <Eigen/LU>
#include <gtest/gtest.h>

#include <cmath>
#include <ostream>

using namespace ansatz::host;

namespace {

Eigen::VectorXd vector(const std::vector<double>& values) {
    return Eigen::Map<const Eigen::VectorXd>(values.data(), std::ssize(values));
}

/// Points of a range: 61 of a curve, a grid of 15 x 15 of a surface.
Eigen::MatrixXd points(int inputs, double low, double high) {
    if (inputs == 1) return Eigen::VectorXd::LinSpaced(61, low, high);
    const Eigen::VectorXd line = Eigen::VectorXd::LinSpaced(15, low, high);
    Eigen::MatrixXd x(225, 2);
    x << line.replicate(15, 1), line.transpose().replicate(15, 1).reshaped();
    return x;
}

/// Scatter without a pattern, the same on every machine.
double scatter(Eigen::Index i) {
    const double r = 43758.5453 * std::fmod(0.6180339887498949 * static_cast<double>(i + 1), 1.0);
    return r - std::floor(r) - 0.5;
}

Fit fit_from(const char* name, const Data& data, const std::vector<double>& guess,
             const std::vector<std::size_t>& fixed = {}) {
    const Model model = Model::find(name);
    auto start = starts(model, guess);
    for (const std::size_t k : fixed) start[k].fixed = true;
    return fit(model, data, start);
}

struct Exact {
    const char* name;
    std::vector<double> truth, guess;
    double low, high;
    std::vector<std::size_t> fixed = {};
};

std::ostream& operator<<(std::ostream& out, const Exact& exact) {
    return out << exact.name;
}

const Exact exact_fits[] = {
    {"SchulzFlory", {0.2, 1, 0.7, 5}, {0, 0.8, 0.5, 3}, 0, 1.6},
    {"Laplace", {1, 2.03, 0.8}, {0, 2.2, 1}, 0, 5},
    {"Poisson", {0.1, 4}, {0, 3}, 0, 12},
    {"Rayleigh", {1.5}, {1}, 0, 6},
    {"Gumbel", {2, 0.7}, {1.5, 1}, 0, 5},
    {"Pareto2", {1.8, 0.6}, {1, 1}, 1, 8},
    // The middle point lies on the centre, where the model's own derivatives are not numbers.
    {"Langevin", {1, 0, 2}, {0.5, 0.3, 1}, -8, 8},
    {"Weibull", {0.5, 2, 1.8, 0.3}, {0, 1.5, 1.5, 0.1}, 0.5, 6},
    {"Goldman", {0.04, 140, 12, 150, 300}, {0.1, 140, 12, 120, 300}, 2, 100, {1, 2, 4}},
    {"Gauss2D", {1, 5, 1, 0.6, 2, 0.9, 3, 3, 0.5, 1, 0.7}, {0, 4, 1.2, 0.8, 2.2, 1, 2, 2.8, 0.6, 1, 1}, 0, 4},
    {"Gaussian2D", {1, 5, 2, 1.2, 1.8, 0.5, 0.6}, {0, 4, 2, 1.1, 2, 0.6, 0.5}, 0, 4},
    {"Lorentz2D", {1, 5, 2, 0.6, 1.8, 0.9}, {0, 4, 2.2, 0.8, 2, 1}, 0, 4},
    {"Voigt2D", {1, 5, 2, 0.6, 1.8, 0.9, 0.3}, {0, 4, 2.2, 0.8, 2, 1, 0.5}, 0, 4},
    {"LogNormal2D", {1, 3, 1.5, 0.5, 2, 2, 0.4, 1}, {0, 2, 1.3, 0.6, 2, 1.8, 0.5, 0}, 0.2, 4},
    {"Extreme2D", {1, 0.4, -0.2, 5, 1.6, 0.5}, {0, 0, 0, 4, 1.8, 0.6}, 0, 4},
    {"GaussLog", {1, 5, 2, 0.6, 1.5, 0.5}, {0, 4, 2.2, 0.8, 1.3, 0.6}, 0.2, 4},
    {"LogisticPeak", {1, 0.4, 5, 2, 0.4}, {0, 0, 4, 2.2, 0.5}, 0, 4},
    {"Plane", {1, 2, -3}, {0, 0, 0}, 0, 4},
    {"Parabola2D", {1, 2, -3, 0.5, 0.4}, {0, 0, 0, 0, 0}, 0, 4},
    {"Poly2D", {1, 2, -3, 0.5, 0.4, -0.6}, {0, 0, 0, 0, 0, 0}, 0, 4},
    {"Fourier2D", {1, 2, -3, 0.5, 1.4, 0.6, 0.9}, {0, 1, -1, 1, 1, 0.65, 1}, 0, 4},
    {"Polynomial2D", {1, 2, -3, 1, 2, -1, 1, 3, 1, -2, 2}, std::vector<double>(11, 0), -1, 1},
    {"Chebyshev2D", {1, 2, -3, 0.5, 0.4, -0.6}, {0, 0, 0, 0, 0, 0}, -0.9, 0.9},
    {"Cosine", {1, 2, -3, 0.5, 0.4, -0.6}, {0, 0, 0, 0, 0, 0}, 0, 4},
    {"Rational2D", {3, 1, 0.5, 0.2, 0.1, 0.3, 0.2, 0.05, 0.4, 0.1}, {1, 0, 0, 0, 0, 0, 0, 0, 0, 0}, 0, 2},
    {"RationalTaylor", {3, 1, 0.5, 0.2, 0.1, 0.3, 0.2, 0.4, 0.1, 0.2}, {1, 0, 0, 0, 0, 0, 0, 0, 0, 0}, 0, 2},
    {"GaussCum", {1, 5, 2, 0.6, 1.8, 0.9}, {0, 4, 2.2, 0.8, 2, 1}, 0, 4},
    {"LogisticCum", {1, 5, 2, 0.3, 1.8, 0.4}, {0, 4, 2.2, 0.5, 2, 0.5}, 0, 4},
    {"ExtremeCum", {1, 2, 1.5, 0.4, 3, 2, 0.5, 1}, {0, 1, 1.7, 0.5, 2, 2.2, 0.5, 0}, 0, 4},
    {"DoseResp", {1, 5, 1, 2, 1.5, 1.2}, {0, 4, 1.5, 1, 1, 1}, 0.1, 6},
    {"Exponential2D", {1, 5, 1.5, 2.5}, {0, 4, 1, 2}, 0, 4},
    {"Power2D", {1, 2, 1.5, 3, 0.6, -1}, {0, 1, 1.2, 2, 0.8, 0}, 0.2, 4},
    {"LineExp", {1, 2, 3, 4, -1.5}, {0, 0, 0, 3, -1}, 0, 6},
    {"GaussianLorentz", {1, 3, 5, 6, 1.2, 1.5}, {0, 2.8, 4, 4, 1, 1}, 0, 6},
    {"HillBurk", {5, 1.5, 2, 0.8}, {4, 1, 1, 1}, 0.1, 6},
};

class ExactData : public testing::TestWithParam<Exact> {};

} // namespace

TEST_P(ExactData, GiveTheParametersBack) {
    const auto& [name, truth, guess, low, high, fixed] = GetParam();
    const Model model = Model::find(name);
    const Eigen::MatrixXd x = points(model.inputs(), low, high);
    const Evaluation values = evaluate(model, vector(truth), x);
    ASSERT_TRUE(values.all_ok());
    const Fit result = fit_from(name, {.x = x, .y = values.y}, guess, fixed);
    EXPECT_TRUE(result.converged) << result.termination;
    EXPECT_TRUE(result.undetermined.empty());
    for (std::size_t k = 0; k < truth.size(); ++k) {
        EXPECT_NEAR(result.parameters[k].value, truth[k], 1e-6 * std::max(1.0, std::fabs(truth[k])))
            << result.parameters[k].slot.symbol;
    }
}

INSTANTIATE_TEST_SUITE_P(Shapes, ExactData, testing::ValuesIn(exact_fits),
                         [](const auto& test) { return std::string(test.param.name); });

TEST(Implicit, CurvesAndAPlaneAreFoundFromTheirPoints) {
    const Eigen::ArrayXd angle = Eigen::ArrayXd::LinSpaced(40, 0.3, 4);
    Eigen::MatrixXd ellipse(40, 2), plane(36, 3);
    ellipse << (2 + 5 * angle.cos()).matrix(), (-1 + 3 * angle.sin()).matrix();
    for (Eigen::Index i = 0; i < plane.rows(); ++i) {
        const double x1 = static_cast<double>(i % 6), x2 = static_cast<double>(i / 6);
        plane.row(i) << x1, x2,
            -(std::sin(0.7) * std::cos(0.4) * x1 + std::sin(0.7) * std::sin(0.4) * x2 - 2) / std::cos(0.7);
    }
    Eigen::MatrixXd circle = ellipse;
    circle.col(1) = (-1 + 5 * angle.sin()).matrix();
    const struct {
        const char* name;
        const Eigen::MatrixXd& x;
        std::vector<double> truth, guess;
    } cases[] = {{"Ellipse", ellipse, {2, -1, 5, 3}, {1, 0, 4, 4}},
                 {"Circle", circle, {2, -1, 5}, {0, 0, 1}},
                 {"PlaneMod", plane, {0.7, 0.4, -2}, {0.5, 0.5, -1}}};
    for (const auto& [name, x, truth, guess] : cases) {
        const Fit result = fit_from(name, {.x = x}, guess);
        EXPECT_TRUE(result.converged) << name << ": " << result.termination;
        EXPECT_FALSE(result.r_squared);
        for (std::size_t k = 0; k < truth.size(); ++k) {
            EXPECT_NEAR(result.parameters[k].value, truth[k], 1e-8) << name << " P" << k + 1;
        }
    }
}

TEST(Surfaces, APlaneIsThatOfLinearRegression) {
    const Eigen::MatrixXd x = points(2, 0, 4);
    Eigen::MatrixXd design(x.rows(), 3), y(x.rows(), 1);
    for (Eigen::Index i = 0; i < x.rows(); ++i) {
        design.row(i) << 1, x(i, 0), x(i, 1);
        y(i, 0) = 1 + 2 * x(i, 0) - 3 * x(i, 1) + scatter(i);
    }
    const Eigen::Matrix3d inverse = (design.transpose() * design).inverse();
    const Eigen::Vector3d expected = inverse * (design.transpose() * y);
    const double variance = (y - design * expected).squaredNorm() / static_cast<double>(x.rows() - 3);
    const Fit result = fit_from("Plane", {.x = x, .y = y}, {0, 0, 0});
    for (std::size_t k = 0; k < 3; ++k) {
        const auto i = static_cast<Eigen::Index>(k);
        EXPECT_NEAR(result.parameters[k].value, expected[i], 1e-10);
        ASSERT_TRUE(result.parameters[k].error);
        EXPECT_NEAR(*result.parameters[k].error, std::sqrt(variance * inverse(i, i)), 1e-10);
    }
}

TEST(TwoOutputs, AreFittedJointlyWithOneVariance) {
    // The straight line of LineExp shares no parameter with the exponential, only the scatter.
    const Eigen::VectorXd x = Eigen::VectorXd::LinSpaced(31, 0, 6);
    Eigen::MatrixXd y(31, 2), design(31, 2);
    for (Eigen::Index i = 0; i < 31; ++i) {
        design.row(i) << 1, x[i];
        y.row(i) << 1 + 2 * x[i] + scatter(i), 5 + 10 * std::exp(-x[i] / 1.5) + scatter(i + 100);
    }
    const Fit result = fit_from("LineExp", {.x = x, .y = y}, {0, 0, 0, 8, -1});
    ASSERT_TRUE(result.converged);
    EXPECT_EQ(result.degrees_of_freedom, 57);
    const Eigen::Matrix2d inverse = (design.transpose() * design).inverse();
    const Eigen::Vector2d expected = inverse * (design.transpose() * y.col(0));
    EXPECT_NEAR(result.parameters[0].value, expected[0], 1e-8);
    EXPECT_NEAR(result.parameters[2].value, expected[1], 1e-8);
    const double variance = (y - result.fitted).squaredNorm() / 57;
    const double total = (y.rowwise() - y.colwise().mean()).squaredNorm(); // each column about its own mean
    EXPECT_NEAR(*result.r_squared, 1 - 57 * variance / total, 1e-12);
    EXPECT_NEAR(*result.parameters[0].error, std::sqrt(variance * inverse(0, 0)), 1e-8);
    EXPECT_NEAR(*result.parameters[2].error, std::sqrt(variance * inverse(1, 1)), 1e-8);
}

TEST(Derivatives, ThatAreNotExactAreNotUsed) {
    EXPECT_FALSE(Model::find("SchulzFlory").analytic());
    EXPECT_FALSE(Model::find("Langevin").analytic());
    EXPECT_TRUE(Model::find("Pareto2").analytic());
    EXPECT_FALSE(Model::find("RationalTaylor").analytic());
}
