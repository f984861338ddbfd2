// Fits of measured data whose least-squares estimates are certified to 11 digits: the nonlinear regression sets
// of NIST's Statistical Reference Datasets. Each is fitted from its two published starts, translated, as the
// certified estimates are, to the parameters of the model.

#include "eckerle4.hpp"

#include <ansatz/host/fit.hpp>

#include <gtest/gtest.h>

#include <cmath>
#include <ostream>

using namespace ansatz::host;

namespace {

using Values = std::vector<double>;

struct Set {
    Values x, y;
    std::vector<Values> starts; ///< of the set's own b1, b2, ...
    Values certified, errors;   ///< estimates and standard deviations of b1, b2, ...
    double rss;
};

/// One model that can express a set's law.
struct Certified {
    const char* set_name;
    const Set& set;
    const char* model;
    Values (*translate)(const Values& b); ///< the model's parameters from the set's
    std::vector<std::size_t> same;        ///< per parameter the number of the b that it equals, or 0
    std::vector<int> fixed = {};          ///< numbers of the parameters held at their start
    bool remote = true;                   ///< does the first start, the remote one, lead to these values too?
};

/// Adsorption in dentistry, y = b1 (1 - exp(-b2 x)).
const Set misra1a = {
    .x = {77.6, 114.9, 141.1, 190.8, 239.9, 289.0, 332.8, 378.4, 434.8, 477.3, 536.8, 593.1, 689.1, 760.0},
    .y = {10.07, 14.73, 17.94, 23.93, 29.61, 35.18, 40.02, 44.82, 50.76, 55.05, 61.01, 66.40, 75.47, 81.78},
    .starts = {{500, 0.0001}, {250, 0.0005}},
    .certified = {2.3894212918e2, 5.5015643181e-4},
    .errors = {2.7070075241e0, 7.2668688436e-6},
    .rss = 1.2455138894e-1};

/// Biochemical oxygen demand, y = b1 (1 - exp(-b2 x)).
const Set boxbod = {.x = {1, 2, 3, 5, 7, 10},
                    .y = {109, 149, 149, 191, 213, 224},
                    .starts = {{1, 1}, {100, 0.75}},
                    .certified = {2.1380940889e2, 5.4723748542e-1},
                    .errors = {1.2354515176e1, 1.0455993237e-1},
                    .rss = 1.1680088766e3};

/// Radiated energy of a filament, y = b1 x^b2.
const Set danwood = {.x = {1.309, 1.471, 1.490, 1.565, 1.611, 1.680},
                     .y = {2.138, 3.421, 3.597, 4.340, 4.882, 5.660},
                     .starts = {{1, 5}, {0.7, 4}},
                     .certified = {7.6886226176e-1, 3.8604055871e0},
                     .errors = {1.8281973860e-2, 5.1726610913e-2},
                     .rss = 4.3173084083e-3};

/// Pasture growth, y = b1/(1 + exp(b2 - b3 x)).
const Set rat42 = {.x = {9, 14, 21, 28, 42, 57, 63, 70, 79},
                   .y = {8.930, 10.800, 18.590, 22.330, 39.350, 56.110, 61.730, 64.620, 67.080},
                   .starts = {{100, 1, 0.1}, {75, 2.5, 0.07}},
                   .certified = {7.2462237576e1, 2.6180768402e0, 6.7359200066e-2},
                   .errors = {1.7340283401e0, 8.8295217536e-2, 3.4465663377e-3},
                   .rss = 8.0565229338e0};

/// Dry weight of onion bulbs, y = b1/(1 + exp(b2 - b3 x))^(1/b4).
const Set rat43 = {.x = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15},
                   .y = {16.08, 33.83, 65.80, 97.20, 191.55, 326.20, 386.87, 520.53, 590.03, 651.92, 724.93,
                         699.56, 689.96, 637.56, 717.41},
                   .starts = {{100, 10, 1, 1}, {700, 5, 0.75, 1.3}},
                   .certified = {6.9964151270e2, 5.2771253025e0, 7.5962938329e-1, 1.2792483859e0},
                   .errors = {1.6302297817e1, 2.0828735829e0, 1.9566123451e-1, 6.8761936385e-1},
                   .rss = 8.7864049080e3};

/// Three exponential decays, computed and rounded, y = b1 exp(-b2 x) + b3 exp(-b4 x) + b5 exp(-b6 x).
const Set lanczos3 = {.x = {0,   0.05, 0.1, 0.15, 0.2, 0.25, 0.3, 0.35, 0.4, 0.45, 0.5, 0.55,
                            0.6, 0.65, 0.7, 0.75, 0.8, 0.85, 0.9, 0.95, 1.0, 1.05, 1.1, 1.15},
                      .y = {2.5134, 2.0443, 1.6684, 1.3664, 1.1232, 0.9269, 0.7679, 0.6389,
                            0.5338, 0.4479, 0.3776, 0.3197, 0.2720, 0.2325, 0.1997, 0.1723,
                            0.1493, 0.1301, 0.1138, 0.1000, 0.0883, 0.0783, 0.0698, 0.0624},
                      .starts = {{1.2, 0.3, 5.6, 5.5, 6.5, 7.6}, {0.5, 0.7, 3.6, 4.2, 4, 6.3}},
                      .certified = {8.6816414977e-2, 9.5498101505e-1, 8.4400777463e-1, 2.9515951832e0,
                                    1.5825685901e0, 4.9863565084e0},
                      .errors = {1.7197908859e-2, 9.7041624475e-2, 4.1488663282e-2, 1.0766312506e-1,
                                 5.8371576281e-2, 3.4436403035e-2},
                      .rss = 1.6117193594e-8};

/// Transmittance of a filter over the wavelength, y = (b1/b2) exp(-((x - b3)/b2)^2/2).
const Set eckerle = {.x = eckerle4_x,
                     .y = eckerle4_y,
                     .starts = {{1, 10, 500}, {1.5, 5, 450}},
                     .certified = {1.5543827178e0, 4.0888321754e0, 4.5154121844e2},
                     .errors = {1.5408051163e-2, 4.6803020753e-2, 4.6800518816e-2},
                     .rss = 1.4635887487e-3};

// The parameters of a model in terms of a set's own.
using Translation = Values (*)(const Values& b);
const Translation asymptotic3 = [](const Values& b) { return Values{b[0], 0, b[1]}; };
const Translation asymptotic5 = [](const Values& b) { return Values{b[0], b[1], 0}; };
const Translation freundlich3p_mod = [](const Values& b) { return Values{0, b[0], 1 / b[1]}; };
const Translation slogistic1 = [](const Values& b) { return Values{b[0], b[1] / b[2], b[2]}; };
const Translation slogistic3 = [](const Values& b) { return Values{b[0], std::exp(b[1]), b[2]}; };
const Translation slogistic4 = [](const Values& b) { return Values{b[0], 0, b[1] / b[2], b[2]}; };
const Translation boltzman = [](const Values& b) { return Values{0, b[0], b[1] / b[2], 1 / b[2]}; };
const Translation richards = [](const Values& b) { return Values{b[0], -b[1] / b[3], b[2] / b[3], 1 / b[3]}; };
const Translation srichards1 = [](const Values& b) {
    return Values{b[0], (b[1] - b[3] * std::log(b[0])) / b[2], 1 + b[3], b[2]};
};
const Translation srichards2 = [](const Values& b) {
    return Values{b[0], (b[1] - std::log(b[3])) / b[2], 1 + b[3], b[2]};
};

const Translation as_it_is = [](const Values& b) { return b; };
const Translation gauss_amp = [](const Values& b) { return Values{0, b[2], b[1], b[0] / b[1]}; };
const Translation gaussian = [](const Values& b) {
    return Values{0, b[2], b[0] * std::sqrt(2 * M_PI), b[1] * std::sqrt(8 * std::log(2))};
};

const Certified fits[] = {
    {"Misra1a", misra1a, "BoxLucas1", as_it_is, {1, 2}},
    {"BoxBOD", boxbod, "BoxLucas1", as_it_is, {1, 2}},
    {"BoxBOD", boxbod, "Asymptotic3", asymptotic3, {1, 0, 2}, {2}},
    {"BoxBOD", boxbod, "Asymptotic5", asymptotic5, {1, 2, 0}, {3}}, // by differences
    {"DanWood", danwood, "Allometric1", as_it_is, {1, 2}},
    {"DanWood", danwood, "Freundlich3PMod", freundlich3p_mod, {0, 1, 0}, {1}},
    {"Rat42", rat42, "SLogistic1", slogistic1, {1, 0, 3}},
    {"Rat42", rat42, "SLogistic3", slogistic3, {1, 0, 3}},
    {"Rat42", rat42, "Slogistic4", slogistic4, {1, 0, 0, 3}, {2}},
    {"Rat42", rat42, "Boltzman", boltzman, {0, 1, 0, 0}, {1}},
    {"Rat43", rat43, "Richards", richards, {1, 0, 0, 0}},
    {"Rat43", rat43, "SRichards1", srichards1, {1, 0, 4, 3}},
    {"Rat43", rat43, "SRichards2", srichards2, {1, 0, 4, 3}},
    {"Lanczos3", lanczos3, "Lanczos3", as_it_is, {1, 2, 3, 4, 5, 6}},
    // From the remote start the width ends below 0: the same curve, mirrored in its parameters.
    {"Eckerle4", eckerle, "GaussAmp", gauss_amp, {0, 3, 2, 0}, {1}, false},
    {"Eckerle4", eckerle, "Gaussian", gaussian, {0, 3, 0, 0}, {1}},
};

Eigen::VectorXd column(const Values& values) {
    return Eigen::Map<const Eigen::VectorXd>(values.data(), std::ssize(values));
}

void PrintTo(const Certified& certified, std::ostream* out) {
    *out << certified.model;
}

class CertifiedFits : public testing::TestWithParam<Certified> {};

TEST_P(CertifiedFits, AreReachedFromThePublishedStarts) {
    const auto& [set_name, set, model_name, translate, same, fixed, remote] = GetParam();
    const Model model = Model::find(model_name);
    const Values expected = translate(set.certified);
    for (const Values& b : set.starts) {
        if (!remote && b == set.starts.front()) continue;
        auto start = starts(model, translate(b));
        for (const int k : fixed) start[std::size_t(k) - 1].fixed = true;
        const Fit result = fit(model, {.x = column(set.x), .y = column(set.y)}, start);
        EXPECT_TRUE(result.converged) << result.termination;
        EXPECT_NEAR(result.rss, set.rss, 1e-9 * set.rss);
        for (std::size_t k = 0; k < expected.size(); ++k) {
            const Estimate& estimate = result.parameters[k];
            EXPECT_NEAR(estimate.value, expected[k], 1e-8 * std::fabs(expected[k])) << estimate.slot.symbol;
            if (same[k] == 0) continue;
            const double error = set.errors[same[k] - 1];
            EXPECT_NEAR(estimate.error.value_or(0), error, 1e-7 * error) << "error of " << estimate.slot.symbol;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(, CertifiedFits, testing::ValuesIn(fits), [](const auto& fit) {
    return std::string(fit.param.set_name) + "By" + fit.param.model;
});

} // namespace
