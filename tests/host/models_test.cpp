// Names, parameters and evaluation.

#include "custom_models.hpp"

#include <ansatz/host/evaluate.hpp>

#include <gtest/gtest.h>

using namespace ansatz::host;

namespace {

/// The message of the Error that a call throws.
template <class Call> std::string error_of(Call call) {
    try {
        call();
    } catch (const Error& error) {
        return error.what();
    }
    return "no error";
}

Eigen::VectorXd vector(std::initializer_list<double> values) {
    return Eigen::Map<const Eigen::VectorXd>(values.begin(), std::ssize(values));
}

std::vector<std::string> symbols(const Model& model, int n) {
    std::vector<std::string> result;
    for (const Slot& slot : model.slots(n)) result.push_back(slot.symbol);
    return result;
}

} // namespace

TEST(Names, AreThoseOfTheCatalogue) {
    EXPECT_EQ(model_names().size(), ansatz::pages().size());
    for (const std::string& name : model_names()) EXPECT_EQ(Model::find(name).name(), name);
}

TEST(Names, IgnoreCase) {
    EXPECT_EQ(Model::find("gAUSS").name(), "Gauss");
    EXPECT_FALSE(Model::lookup("Gauß"));
}

TEST(Names, UnknownOnesComeWithTheNearest) {
    EXPECT_EQ(nearest_names("lorents").front(), "Lorentz");
    EXPECT_EQ(std::ranges::count(nearest_names("wei", 99), "Weibull"), 1) << "which contains it";
    EXPECT_TRUE(nearest_names("zzzzzz").empty());
    try {
        Model::find("gaus");
        FAIL();
    } catch (const UnknownModel& error) {
        EXPECT_EQ(error.nearest().front(), "Gauss");
    }
}

TEST(Pages, AgreeWithTheCatalogue) {
    for (const ansatz::Page& page : ansatz::pages()) {
        const Model model = Model::find(page.name);
        EXPECT_EQ(model.name(), page.name);
        EXPECT_EQ(model.page(), &page);
        if (page.reserved) continue;
        std::uint16_t parameters = 0;
        Get_Func(model.name().c_str(), nullptr, nullptr, &parameters, nullptr);
        EXPECT_GE(model.default_size(), parameters) << page.name;
        EXPECT_NO_THROW(model.require_size(model.default_size())) << page.name;
    }
}

TEST(Pages, AreFoundInAnyCase) {
    ASSERT_TRUE(ansatz::find_page("Boltzman"));
    EXPECT_EQ(ansatz::find_page("bOLTZMAN"), ansatz::find_page("Boltzman"));
    EXPECT_FALSE(ansatz::find_page("Boltzmann"));
}

TEST(Parameters, AreNumberedByPeakOnlyWithSeveralPeaks) {
    const Model gauss = Model::find("Gauss");
    EXPECT_EQ(symbols(gauss, 4), (std::vector<std::string>{"y0", "xc", "w", "A"}));
    EXPECT_EQ(symbols(gauss, 7), (std::vector<std::string>{"y0", "xc1", "w1", "A1", "xc2", "w2", "A2"}));
    EXPECT_EQ(symbols(Model::find("BiGaussian"), 9),
              (std::vector<std::string>{"y0", "xc1", "H1", "w1_1", "w2_1", "xc2", "H2", "w1_2", "w2_2"}));
    EXPECT_EQ(symbols(custom::series(), 1), (std::vector<std::string>{"a0"}));
    EXPECT_EQ(symbols(custom::line(), 2), (std::vector<std::string>{"P1", "P2"}));
}

TEST(Parameters, OfAnExpectedValueModelIncludeItsReferencePositions) {
    EXPECT_EQ(custom::expected().default_size(), 3);
}

TEST(Parameters, AreFoundByNumberAndSymbol) {
    const auto slots = Model::find("Gauss").slots(4);
    EXPECT_EQ(Model::slot_index(slots, "P4"), 3);
    EXPECT_EQ(Model::slot_index(slots, "XC"), 1);
    EXPECT_NE(error_of([&] { Model::slot_index(slots, "q"); }).find("P2 or xc"), std::string::npos);
}

TEST(Parameters, WrongNumbersAreExplained) {
    EXPECT_EQ(error_of([] { Model::find("Gauss").require_size(5); }),
              "Gauss needs 1 (y0), then 3 per peak (xc, w, A): 4 or 7 parameters and so on, 5 given");
    EXPECT_EQ(error_of([] { custom::circle().require_size(2); }),
              "circle needs 3 parameters (xc, yc, r), 2 given");
    EXPECT_NE(error_of([] { custom::series().require_size(4); }).find("at most 3"), std::string::npos);
    EXPECT_NE(error_of([] { custom::line().require_size(1); }), "no error");
    for (const char* name : {"Gauss", "PolyN"}) {
        EXPECT_EQ(error_of([name] { Model::find(name).require_size(32767); }), "no error") << name;
    }
    EXPECT_EQ(error_of([] { Model::find("PolyN").require_size(65539); }),
              "PolyN takes at most 32767 parameters, 65539 given");
    EXPECT_NE(error_of([] { Model::find("Prunty").require_size(4); }).find("reserved"), std::string::npos);
}

TEST(Evaluation, GivesValueComponentsAndDerivatives) {
    // At the centre of one of two peaks far apart: y0 + A/(w sqrt(pi/2)), and no slope by the centre.
    const double height = 4 / (8 * std::sqrt(M_PI / 2));
    const Evaluation result =
        evaluate(Model::find("Gauss"), vector({1, 450, 8, 4, 900, 8, 2}), vector({450, 900}), true);
    EXPECT_NEAR(result.y(0, 0), 1 + height, 1e-11);
    EXPECT_NEAR(result.components(0, 0), height, 1e-11);
    EXPECT_NEAR(result.components(1, 1), height / 2, 1e-11);
    EXPECT_EQ(result.jacobian[0](0, 1), 0);
    EXPECT_NEAR(result.jacobian[0](0, 3), height / 4, 1e-11);
}

TEST(Evaluation, LeavesNoDerivativesOfAnotherPointInSkippedSlots) {
    const Evaluation result =
        evaluate(Model::find("Gauss"), vector({0, 1, 2, 0, 5, 2, 3}), vector({1, 2}), true);
    EXPECT_TRUE(result.all_ok());
    EXPECT_EQ(result.jacobian[0](1, 3), 0);
    EXPECT_EQ(result.components(1, 0), 0);
}

TEST(Evaluation, DifferencesAgreeWithTheModelsOwnDerivatives) {
    Eigen::VectorXd x = Eigen::VectorXd::LinSpaced(41, 430, 470);
    for (const char* name : {"Gauss", "Lorentz"}) {
        const Model model = Model::find(name);
        const auto P = vector({0, 451.5, 0.8, 400});
        const auto own = evaluate(model, P, x, true);
        const auto taken = evaluate(model, P, x, true, Derivatives::numerical);
        for (Eigen::Index k = 0; k < P.size(); ++k) {
            const double largest = own.jacobian[0].col(k).cwiseAbs().maxCoeff();
            EXPECT_LT((own.jacobian[0] - taken.jacobian[0]).col(k).cwiseAbs().maxCoeff(), 1e-8 * largest)
                << name << " P" << k + 1;
        }
    }
}

TEST(Evaluation, TakesDifferencesWhereAModelHasNoTrueDerivatives) {
    // Offered and never computed; another function; the wrong sign.
    const auto reich = evaluate(Model::find("Reich"), vector({3, 0.5, 2, 0.25}), vector({2}), true);
    EXPECT_NEAR(reich.jacobian[0](0, 1), -6 * std::exp(-1), 1e-9);
    EXPECT_NEAR(reich.jacobian[0](0, 2), std::exp(-0.5), 1e-9);
    const auto reciprocal = evaluate(Model::find("Reciprocal0"), vector({0.5}), vector({2}), true);
    EXPECT_NEAR(reciprocal.jacobian[0](0, 0), -0.5, 1e-9);
    const auto logarithm = evaluate(Model::find("LogarithmEVP"), vector({1, 0}), vector({4}), true);
    EXPECT_NEAR(logarithm.jacobian[0](0, 1), -0.5, 1e-9);
    const auto asymptotic = evaluate(Model::find("Asymptotic5"), vector({2, 1, 5}), vector({0}), true);
    EXPECT_NEAR(asymptotic.jacobian[0](0, 2), 1, 1e-9);
}

TEST(Evaluation, TakesDifferencesOnTheScaleOfTheParameter) {
    const auto slope =
        evaluate(Model::find("Line"), vector({0.3, -1e9}), vector({0.7}), true, Derivatives::numerical);
    EXPECT_NEAR(slope.jacobian[0](0, 1), 0.7, 1e-9);
    // Once rounding decides about the difference, narrower steps are of no use: a value and two pairs are
    // enough.
    static int calls = 0;
    const FitFunction all_but_flat = [](std::uint32_t flags, std::uint32_t, std::int32_t, std::uint32_t,
                                        std::uint32_t, const double* P, std::uint32_t, double*, double* y,
                                        double*) -> std::int32_t {
        calls += (flags & FF_VALUE) != 0;
        y[1] = 1 + 1e-9 * P[1];
        return 0;
    };
    const Model model = Model::custom("all but flat", all_but_flat, 1, 1, 1);
    calls = 0;
    EXPECT_NEAR(evaluate(model, vector({1}), vector({0}), true).jacobian[0](0, 0), 1e-9, 1e-11);
    EXPECT_EQ(calls, 5);
}

TEST(Evaluation, FillsADerivativeThatASuccessLeavesOpen) {
    // At x = 0 the value is the offset; the logarithm in the last derivative does not exist.
    const auto isotherm = evaluate(Model::find("Freundlich3PMod"), vector({5, 2, 3}), vector({0, 1}), true);
    EXPECT_TRUE(isotherm.all_ok());
    EXPECT_EQ(isotherm.jacobian[0].row(0), Eigen::RowVector3d(1, 0, 0));
    // With a rate of 0 the derivative is marked; it is 1.
    const auto density = evaluate(Model::find("Exp1P3"), vector({0}), vector({3}), true);
    EXPECT_TRUE(density.all_ok());
    EXPECT_NEAR(density.jacobian[0](0, 0), 1, 1e-9);
}

TEST(Evaluation, OfTwoOutputsCompletesTheDerivatives) {
    const Evaluation result = evaluate(custom::pair(), vector({1, 0.5, 3}), vector({2}), true);
    EXPECT_EQ(result.y(0, 0), 2);
    EXPECT_NEAR(result.y(0, 1), 3 * std::exp(-1), 1e-15);
    EXPECT_EQ(result.jacobian[0](0, 1), 2);
    EXPECT_NEAR(result.jacobian[1](0, 1), -6 * std::exp(-1), 1e-9);
    EXPECT_NEAR(result.jacobian[1](0, 2), std::exp(-1), 1e-9);
    // Where the curve bends so much that a plain difference has an error of 3e-8, extrapolation has not.
    const Evaluation far = evaluate(custom::pair(), vector({1, 0.5, 3}), vector({16}), true);
    EXPECT_NEAR(far.jacobian[1](0, 1) / (-48 * std::exp(-8)), 1, 2e-11);
}

TEST(Evaluation, MarksTheFailingPointsAlone) {
    Eigen::MatrixXd x(3, 2);
    x << 4, 10, -1, 10, 9, 10;
    const Evaluation result = evaluate(custom::surface(), vector({1, 2}), x, true);
    EXPECT_EQ(result.ok, (std::vector<char>{1, 0, 1}));
    EXPECT_EQ(result.y(2, 0), 23);
    EXPECT_TRUE(std::isnan(result.y(1, 0)));
}

TEST(Evaluation, TakesSuccessWithoutAValueForFailure) {
    EXPECT_FALSE(evaluate(custom::circle(), vector({0, 0, 0}), Eigen::MatrixXd::Zero(1, 2)).all_ok());
    // A placeholder's routine reports success and writes nothing.
    const Model placeholder = Model::custom("placeholder", get_funx("Prunty"), 1, 1, 4);
    EXPECT_FALSE(evaluate(placeholder, vector({1, 2, 3, 4}), vector({1})).all_ok());
}

TEST(Evaluation, SurvivesModelsThatReachAfterTheirParameters) {
    EXPECT_EQ(evaluate(custom::series(), vector({1, 2, 3}), vector({2}), true).y(0, 0), 17);
}
