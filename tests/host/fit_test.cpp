// Fits with known answers: certified values, closed forms, exact data.

#include "custom_models.hpp"
#include "eckerle4.hpp"
#include "source.hpp"

#include <ansatz/host/fit.hpp>

#include <gtest/gtest.h>

using namespace ansatz::host;

namespace {

Eigen::VectorXd vector(std::initializer_list<double> values) {
    return Eigen::Map<const Eigen::VectorXd>(values.begin(), std::ssize(values));
}

void expect_relative(double actual, double expected, double tolerance, const char* what) {
    EXPECT_NEAR(actual, expected, tolerance * std::fabs(expected)) << what;
}

Data eckerle4() {
    return {.x = Eigen::Map<const Eigen::VectorXd>(eckerle4_x.data(), std::ssize(eckerle4_x)),
            .y = Eigen::Map<const Eigen::VectorXd>(eckerle4_y.data(), std::ssize(eckerle4_y))};
}

/// The certified fit of (b1/b2) exp(-0.5 ((x - b3)/b2)^2), in the terms of "Gauss" with its offset held at 0.
void expect_certified(const Fit& fit) {
    const double area = std::sqrt(2 * M_PI);
    const auto& P = fit.parameters;
    EXPECT_TRUE(fit.converged) << fit.termination;
    expect_relative(P[1].value, 451.54121844, 1e-10, "centre");
    expect_relative(P[2].value, 2 * 4.0888321754, 2e-10, "width");
    expect_relative(P[3].value, area * 1.5543827178, 2e-10, "area");
    ASSERT_TRUE(P[1].error && P[2].error && P[3].error);
    EXPECT_FALSE(P[0].error);
    expect_relative(*P[1].error, 4.6800518816e-2, 1e-9, "error of the centre");
    expect_relative(*P[2].error, 2 * 4.6803020753e-2, 1e-9, "error of the width");
    expect_relative(*P[3].error, area * 1.5408051163e-2, 1e-9, "error of the area");
    expect_relative(fit.rss, 1.4635887487e-3, 1e-10, "residual sum of squares");
    EXPECT_EQ(fit.degrees_of_freedom, 32);
    expect_relative(std::sqrt(*fit.reduced_chi_square), 6.7629245447e-3, 1e-10, "residual standard deviation");
}

/// y against x at four points, with weights; the line through them by the textbook's sums.
struct Regression {
    Data data{.x = vector({1, 2, 3, 5}), .y = vector({1.5, 2, 4, 5}), .weights = vector({1, 2, 3, 0.5})};
    double Sw = 0, Sx = 0, Sy = 0, Sxx = 0, Sxy = 0;
    double a, b, D;

    Regression() {
        for (Eigen::Index i = 0; i < 4; ++i) {
            const double w = data.weights(i, 0), x = data.x(i, 0), y = data.y(i, 0);
            Sw += w, Sx += w * x, Sy += w * y, Sxx += w * x * x, Sxy += w * x * y;
        }
        D = Sw * Sxx - Sx * Sx;
        a = (Sxx * Sy - Sx * Sxy) / D;
        b = (Sw * Sxy - Sx * Sy) / D;
    }

    /// The weighted sum of squares about a line.
    double about(double intercept, double slope) const {
        const auto left = data.y.array() - intercept - slope * data.x.array();
        return (data.weights.array() * left.square()).sum();
    }
};

} // namespace

TEST(Certified, Eckerle4FromTwoStarts) {
    const Model gauss = Model::find("Gauss");
    // What one reads off the plot, and NIST's remote start: b = (1, 10, 500).
    for (const auto& guess : {std::vector{0.0, 450.0, 10.0, 4.0}, {0.0, 500.0, 20.0, 2.5}}) {
        auto start = starts(gauss, guess);
        start[0].fixed = true;
        expect_certified(fit(gauss, eckerle4(), start));
    }
}

TEST(Certified, Eckerle4WithNumericalDerivatives) {
    const Model gauss = Model::find("Gauss");
    auto start = starts(gauss, {0, 450, 10, 4});
    start[0].fixed = true;
    const Fit result = fit(gauss, eckerle4(), start, {.derivatives = Derivatives::numerical});
    EXPECT_TRUE(result.numerical);
    expect_certified(result);
}

TEST(Weights, GiveTheClosedFormOfAWeightedLine) {
    const Regression line;
    const Fit result = fit(custom::line(), line.data, starts(custom::line(), {0, 0}));
    const double rss = line.about(line.a, line.b), scale = rss / 2;
    expect_relative(result.rss, rss, 1e-12, "residual sum of squares");
    expect_relative(*result.reduced_chi_square, scale, 1e-12, "reduced chi-square");
    expect_relative(*result.r_squared, 1 - rss / line.about(line.Sy / line.Sw, 0), 1e-12, "R squared");
    expect_relative(result.parameters[0].value, line.a, 1e-13, "intercept");
    expect_relative(result.parameters[1].value, line.b, 1e-13, "slope");
    expect_relative(*result.parameters[0].error, std::sqrt(scale * line.Sxx / line.D), 1e-12,
                    "error of intercept");
    expect_relative(*result.parameters[1].error, std::sqrt(scale * line.Sw / line.D), 1e-12, "error of slope");
    expect_relative(result.correlation(0, 1), -line.Sx / std::sqrt(line.Sw * line.Sxx), 1e-12, "correlation");

    const Fit known = fit(custom::line(), line.data, starts(custom::line(), {0, 0}), {.known_errors = true});
    expect_relative(*known.parameters[1].error, std::sqrt(line.Sw / line.D), 1e-12, "error from known errors");
}

TEST(Weights, OfZeroRemoveAPoint) {
    Regression line;
    line.data.weights(3, 0) = 0;
    EXPECT_EQ(fit(custom::line(), line.data, starts(custom::line(), {0, 0})).degrees_of_freedom, 1);
    line.data.weights(3, 0) = -1;
    EXPECT_THROW(fit(custom::line(), line.data, starts(custom::line(), {0, 0})), Error);
}

TEST(Weights, OfEachOutputAreItsOwn) {
    // Exact data but for one value in each column, which its own weight takes out.
    const Eigen::VectorXd x = Eigen::VectorXd::LinSpaced(9, 0, 4);
    Eigen::MatrixXd y(9, 2), weights = Eigen::MatrixXd::Ones(9, 2);
    y << (1 + 0.5 * x.array()).matrix(), (3 * (-0.5 * x.array()).exp()).matrix();
    y(5, 0) = -7, weights(5, 0) = 0;
    y(2, 1) = 1000, weights(2, 1) = 0;
    const Fit result =
        fit(custom::pair(), {.x = x, .y = y, .weights = weights}, starts(custom::pair(), {0, 0.1, 1}));
    EXPECT_EQ(result.degrees_of_freedom, 13);
    EXPECT_LT((result.values() - vector({1, 0.5, 3})).norm(), 1e-9);
}

TEST(Bounds, AreNotPassedByTheLastSteps) {
    // Bounds so close before the slope sought that the search stands still there.
    const Regression line;
    for (int k = 0; k < 60; ++k) {
        const double gap = line.b * std::pow(10, -6 - 0.1 * k);
        auto below = starts(custom::line(), {0, 0}), above = starts(custom::line(), {0, 2});
        below[1].upper = line.b - gap;
        above[1].lower = line.b + gap;
        EXPECT_LE(fit(custom::line(), line.data, below).parameters[1].value, below[1].upper) << k;
        EXPECT_GE(fit(custom::line(), line.data, above).parameters[1].value, above[1].lower) << k;
    }
}

TEST(Bounds, HoldAParameterAndLeaveItsErrorOut) {
    const Regression line; // its slope is above 0.9
    auto start = starts(custom::line(), {0, 0});
    start[1].upper = 0.5;
    const Fit result = fit(custom::line(), line.data, start);
    EXPECT_EQ(result.parameters[1].value, 0.5);
    EXPECT_TRUE(result.parameters[1].at_upper);
    EXPECT_FALSE(result.parameters[1].error);
    expect_relative(result.parameters[0].value, (line.Sy - 0.5 * line.Sx) / line.Sw, 1e-12, "intercept");
    EXPECT_TRUE(result.parameters[0].error);

    auto above = starts(custom::line(), {2, 0});
    above[0].lower = 1;
    const Fit lifted = fit(custom::line(), line.data, above);
    EXPECT_EQ(lifted.parameters[0].value, 1);
    EXPECT_TRUE(lifted.parameters[0].at_lower);
    EXPECT_FALSE(lifted.parameters[0].at_upper || lifted.parameters[1].at_lower);
    expect_relative(lifted.parameters[1].value, (line.Sxy - line.Sx) / line.Sxx, 1e-12, "slope");
    expect_relative(*lifted.parameters[1].error, std::sqrt(*lifted.reduced_chi_square / line.Sxx), 1e-12,
                    "error");
}

TEST(Bounds, ThatNothingReachesChangeNothing) {
    const Model gauss = Model::find("Gauss");
    auto start = starts(gauss, {0, 450, 10, 4});
    start[0].fixed = true;
    start[2].lower = 1;
    start[3].upper = 10;
    expect_certified(fit(gauss, eckerle4(), start));
}

TEST(ReferencePositions, StayWhereTheyAreSet) {
    const Regression line;
    const Fit result =
        fit(custom::expected(), {.x = line.data.x, .y = line.data.y, .weights = line.data.weights},
            starts(custom::expected(), {2, 0, 0}));
    EXPECT_EQ(result.parameters[0].value, 2);
    EXPECT_TRUE(result.parameters[0].fixed);
    expect_relative(result.parameters[1].value, line.a + 2 * line.b, 1e-11, "expected response");
}

TEST(Covariance, OfARedundantModelIsRefusedByName) {
    const Regression line;
    const Fit result = fit(custom::redundant(), line.data, starts(custom::redundant(), {0, 0, 0}));
    EXPECT_EQ(result.undetermined, (std::vector<int>{0, 1}));
    for (const Estimate& parameter : result.parameters) EXPECT_FALSE(parameter.error);
}

// The farther the data of a line lie from 0, the less its slope can be told from its intercept. The smallest
// singular value is about the spread of x over its distance.
TEST(Covariance, IsRefusedOnlyWhereRoundingDecides) {
    const struct {
        double distance;
        Derivatives derivatives;
        bool determined;
    } cases[] = {{1e6, Derivatives::numerical, true},
                 {1e10, Derivatives::numerical, false},
                 {1e10, Derivatives::best, true},
                 {4e15, Derivatives::best, false}};
    for (const auto& [distance, derivatives, determined] : cases) {
        const Data data{.x = vector({distance, distance + 1, distance + 2, distance + 3}),
                        .y = vector({1, 3, 2, 4})};
        const Fit result =
            fit(custom::line(), data, starts(custom::line(), {0, 0}), {.derivatives = derivatives});
        EXPECT_EQ(result.undetermined.empty(), determined) << distance;
        EXPECT_EQ(result.parameters[1].error.has_value(), determined) << distance;
        // By the textbook: slope 0.8, residual sum of squares 1.8, spread of x 5.
        if (determined) expect_relative(*result.parameters[1].error, std::sqrt(0.9 / 5), 1e-4, "error");
    }
}

TEST(Runaway, FromABoldFirstStepIsTriedAgainWithCare) {
    // From here the first full step makes the rate so high that every point lies on the plateau.
    const Data data{.x = vector({1, 2, 3, 5, 7, 10}), .y = vector({109, 149, 149, 191, 213, 224})};
    const Model model = Model::find("BoxLucas1");
    std::vector<int> seen;
    const auto watch = [&](const Progress& progress) {
        seen.push_back(progress.iteration);
        return true;
    };
    const Fit result = fit(model, data, starts(model, {1, 1}), {.progress = watch});
    EXPECT_TRUE(result.converged);
    expect_relative(result.parameters[1].value, 5.4723748542e-1, 1e-9, "rate");
    EXPECT_TRUE(std::ranges::is_sorted(seen)) << "iterations count on through the second attempt";
    EXPECT_EQ(seen.back(), result.iterations);

    // The limit of iterations is one for both attempts.
    const Fit limited = fit(model, data, starts(model, {1, 1}), {.max_iterations = result.iterations - 1});
    EXPECT_LT(limited.iterations, result.iterations);
    // Where the plateau is what the data show, its level is their mean.
    const Data level{.x = data.x, .y = vector({5, 5.1, 4.9, 5, 5.1, 4.9})};
    EXPECT_NEAR(fit(model, level, starts(model, {1, 1})).rss, 0.04, 1e-9);
}

TEST(Runaway, IsNotSoughtInARedundantModel) {
    const Regression line;
    int restarts = -1; // every attempt begins with an iteration that has taken no step
    int last = -1;
    const auto watch = [&](const Progress& progress) {
        restarts += progress.iteration <= last || last < 0;
        last = progress.iteration;
        return true;
    };
    const Fit result =
        fit(custom::redundant(), line.data, starts(custom::redundant(), {0, 0, 0}), {.progress = watch});
    EXPECT_TRUE(result.converged);
    EXPECT_EQ(restarts, 0);
}

TEST(Bounds, ThatTheWayComesUponAreLeftAgain) {
    const Model shah = Model::find("Shah");
    Data data{.x = Eigen::VectorXd::LinSpaced(11, 0, 10), .y = Eigen::VectorXd(11)};
    for (int i = 0; i < 11; ++i) data.y(i) = 1 + 0.5 * i + 3 * std::pow(0.5, i) + (i % 3 - 1) / 8.0;
    const Fit free = fit(shah, data, starts(shah, {1, 0.5, 3, 0.5}));
    ASSERT_TRUE(free.converged);
    // All within these bounds, and yet a full step from here leads out of them, where its rest points uphill.
    for (const auto& guess :
         {std::vector{5.0, 0.0, 0.0, 0.99}, {0.0, -5.0, -5.0, 0.99}, {5.0, 3.0, -5.0, 0.99}}) {
        auto start = starts(shah, guess);
        const double lower[] = {-5, -5, -5, 0.01}, upper[] = {5, 3, 8, 0.99};
        for (std::size_t k = 0; k < 4; ++k) start[k].lower = lower[k], start[k].upper = upper[k];
        const Fit bounded = fit(shah, data, start);
        EXPECT_TRUE(bounded.converged) << bounded.termination;
        for (std::size_t k = 0; k < 4; ++k) {
            expect_relative(bounded.parameters[k].value, free.parameters[k].value, 1e-9, "parameter");
        }
    }
}

// The columns of the Jacobian are so short here that the inverse of its square overflows.
TEST(Covariance, OfAnAllButFlatModelIsRefused) {
    const Model model = Model::find("Freundlich");
    const Data data{.x = vector({0.1, 0.101, 0.102}), .y = vector({1, 2, 4})};
    const Fit result = fit(model, data, starts(model, {1, 158}), {.max_iterations = 0});
    EXPECT_EQ(result.covariance.size(), 0);
    EXPECT_EQ(result.undetermined, (std::vector<int>{0, 1}));
    for (const Estimate& parameter : result.parameters) EXPECT_FALSE(parameter.error);
}

// The routine's own derivatives are those of the law times the distance of the references: with them the
// standard errors would be that much too small, and descending references would lead every step uphill.
TEST(UntrueDerivatives, AreReplacedByDifferences) {
    const Model line = Model::find("Log2P2"), expected = Model::find("Log2P2EVP");
    const Data data{.x = vector({0, 1, 2, 4, 7, 8}), .y = vector({0.75, 1.2, 1.65, 2.05, 2.55, 2.6})};
    EXPECT_TRUE(line.analytic());
    EXPECT_FALSE(expected.analytic());
    const Fit plain = fit(line, data, starts(line, {1, 1}));
    const double a = plain.parameters[0].value;
    for (const auto& guess : {std::vector{0.0, 1.0, 8.0, 3.0}, {8.0, 3.0, 0.0, 1.0}}) {
        const Fit result = fit(expected, data, starts(expected, guess));
        const Estimate& at_zero = result.parameters[guess[0] == 0 ? 1 : 3]; // the response at x = 0 is ln a
        EXPECT_TRUE(result.converged) << result.termination;
        expect_relative(result.rss, plain.rss, 1e-10, "residual sum of squares");
        expect_relative(at_zero.value, std::log(a), 1e-8, "response at 0");
        ASSERT_TRUE(at_zero.error && plain.parameters[0].error);
        expect_relative(*at_zero.error, *plain.parameters[0].error / a, 1e-6, "its error");
    }
}

TEST(Failure, AtTheStartNamesThePoint) {
    Eigen::MatrixXd x(3, 2);
    x << 1, 1, -4, 2, 3, 5;
    try {
        fit(custom::surface(), {.x = x, .y = vector({1, 2, 3})}, starts(custom::surface(), {1, 1}));
        FAIL();
    } catch (const FitError& error) {
        EXPECT_NE(std::string(error.what()).find("x = -4, 2 (data point 2)"), std::string::npos)
            << error.what();
    }
}

TEST(Failure, OfTheWeightsAloneNamesNoPoint) {
    Data data{.x = vector({1, 2, 3}), .y = vector({1, 2, 4}), .weights = vector({1, 1, 1})};
    data.weights(1) = std::numeric_limits<double>::infinity(); // the inverse square of a deviation of 1e-200
    try {
        fit(custom::line(), data, starts(custom::line(), {0, 0}));
        FAIL();
    } catch (const FitError& error) {
        EXPECT_NE(std::string(error.what()).find("weighted residuals of line"), std::string::npos)
            << error.what();
    }
}

TEST(Failure, WithoutConvergenceIsSaid) {
    const Model gauss = Model::find("Gauss");
    EXPECT_FALSE(fit(gauss, eckerle4(), starts(gauss, {0, 450, 10, 4}), {.max_iterations = 2}).converged);
    const auto stop = [](const Progress& progress) { return progress.iteration < 3; };
    const Fit stopped = fit(gauss, eckerle4(), starts(gauss, {0, 450, 10, 4}), {.progress = stop});
    EXPECT_FALSE(stopped.converged);
    EXPECT_EQ(stopped.termination, "stopped on request");
}

TEST(Failure, ShortOfAMinimumIsNoConvergence) {
    const Data data{.x = vector({1, 2, 3}), .y = vector({1, 2.1, 2.9})};
    const Fit stuck = fit(custom::misleading(), data, starts(custom::misleading(), {0}));
    EXPECT_FALSE(stuck.converged);
    EXPECT_NEAR(stuck.relative_offset, 1, 0.01);
    EXPECT_NE(stuck.termination.find("numerical"), std::string::npos) << stuck.termination;
    auto start = starts(custom::misleading(), {0});
    start[0].upper = 0; // going on from the bound leads nowhere either, and is not tried for ever
    EXPECT_EQ(fit(custom::misleading(), data, start).termination, stuck.termination);
    start = starts(custom::misleading(), {0});
    EXPECT_TRUE(fit(custom::misleading(), data, start, {.derivatives = Derivatives::numerical}).converged);
    // Exact data leave nothing but rounding in the residuals, in whatever direction, from near and from far.
    const Data exact{.x = vector({1, 2, 3}), .y = vector({1.1, 2.2, 3.3})};
    const Data zero{.x = exact.x, .y = vector({0, 0, 0})};
    for (const auto& guess : {std::vector{0.0, 0.0}, {5.0, 3.0}, {1e-9, 1.1}}) {
        EXPECT_TRUE(fit(custom::line(), exact, starts(custom::line(), guess)).converged) << guess[0];
        EXPECT_TRUE(fit(custom::line(), zero, starts(custom::line(), guess)).converged) << guess[0];
    }
    EXPECT_EQ(fit(custom::line(), zero, starts(custom::line(), {0, 0})).relative_offset, 0);
}

TEST(Failure, OfTheRequestIsAnError) {
    const Regression line;
    const Model model = custom::line();
    auto fixed = starts(model, {0, 0});
    fixed[0].fixed = fixed[1].fixed = true;
    EXPECT_THROW(fit(model, line.data, fixed), Error);
    auto outside = starts(model, {0, 0});
    outside[0].lower = 1;
    EXPECT_THROW(fit(model, line.data, outside), Error);
    EXPECT_THROW(fit(model, {.x = vector({1}), .y = vector({1})}, starts(model, {0, 0})), Error);
    EXPECT_THROW(fit(model, {.x = vector({1, 2}), .y = vector({1})}, starts(model, {0, 0})), Error);
    EXPECT_THROW(fit(model, line.data, starts(model, {0, 0, 0, 0, std::nan("")})), Error);
}

TEST(Columns, GiveTheFitThatSingleCallsGive) {
    // A routine of the caller's own is called point by point, a model of the catalogue for whole columns.
    for (const auto& [name, guess] : {std::pair{"Gauss", std::vector{0.0, 450.0, 10.0, 4.0}},
                                      std::pair{"GaussAmp", std::vector{0.0, 452.0, 5.0, 0.4}}}) {
        const Model model = Model::find(name);
        const Model custom = Model::custom(name, model.function(), 1, 1, 4, model.page());
        ASSERT_TRUE(ColumnSource::serves(model, 4, Derivatives::best));
        ASSERT_FALSE(ColumnSource::serves(custom, 4, Derivatives::best));
        const Fit together = fit(model, eckerle4(), starts(model, guess));
        const Fit singly = fit(custom, eckerle4(), starts(custom, guess));
        EXPECT_TRUE(together.converged);
        EXPECT_EQ(together.rss, singly.rss);
        EXPECT_EQ(together.evaluations, singly.evaluations);
        EXPECT_EQ(together.values(), singly.values());
        EXPECT_EQ(together.fitted, singly.fitted);
    }
}

TEST(Columns, LookCloserWhereADerivativeIsMissing) {
    // At its centre the derivatives of Power0 by centre and exponent are marked, with status 0, and the host
    // takes differences there.
    const Model model = Model::find("Power0");
    const Eigen::MatrixXd x = vector({-1, 0.5, 2});
    const Eigen::VectorXd P = vector({1, 0.5, 2, 3});
    ColumnSource columns(model, x, 4);
    EXPECT_EQ(columns.compute(P), -1);
    Evaluator by_point(model, P);
    for (Eigen::Index i = 0; i < 3; ++i) {
        ASSERT_TRUE(by_point.derivatives(x, i));
        EXPECT_EQ(columns.y()(i, 0), by_point.y(0));
        for (int k = 0; k < 4; ++k)
            EXPECT_EQ(columns.jacobian()(i, k), by_point.derivative(0, k)) << i << ", P" << k + 1;
    }
}

TEST(Columns, NameTheFirstPointThatFails) {
    const Eigen::MatrixXd x = vector({1, 2, -1, 3, -2}); // Hill fails for x < 0
    ColumnSource columns(Model::find("Hill"), x, 3);
    EXPECT_EQ(columns.compute(vector({1, 2, 1.5})), 2);
}

TEST(Columns, KeepNothingOfTheEvaluationBefore) {
    // A peak of amplitude 0 writes none of its derivatives.
    const Model model = Model::find("InvsPoly");
    const Eigen::MatrixXd x = vector({-1, 0.5, 2});
    const Eigen::VectorXd peak = vector({1, 0, 2, 3, 1, 0.5, 0.2}), none = vector({1, 0, 2, 0, 1, 0.5, 0.2});
    ColumnSource columns(model, x, 7);
    Evaluator by_point(model, peak);
    EXPECT_EQ(columns.compute(peak), -1);
    ASSERT_TRUE(by_point.derivatives(x, 1));
    EXPECT_NE(columns.jacobian()(1, 3), 0);
    by_point.set_parameters(none);
    EXPECT_EQ(columns.compute(none), -1);
    ASSERT_TRUE(by_point.derivatives(x, 1));
    for (int k = 0; k < 7; ++k) {
        EXPECT_EQ(columns.jacobian()(1, k), k == 0) << "P" << k + 1;
        EXPECT_EQ(by_point.derivative(0, k), k == 0) << "P" << k + 1;
    }
}
