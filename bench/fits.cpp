// Whole fits: the same optimiser, the host library's, on the same problems; only the supplier of the
// derivatives differs.
#include "laws.hpp"
#include "parsed.hpp"
#include "suites.hpp"

#include <ansatz/host/fit.hpp>
#include <ansatz/host/table.hpp>

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <memory>
#include <random>

namespace bench {
namespace {

using namespace ansatz::host;

Eigen::VectorXd column(const std::vector<double>& values) {
    return Eigen::Map<const Eigen::VectorXd>(values.data(), static_cast<Eigen::Index>(values.size()));
}

struct Problem {
    std::string name, law;
    Data data;
    std::vector<double> start;
    double certified_rss; ///< 0 where nobody certified one
    bool hold_first = false;
};

/// Data sets of the NIST Statistical Reference Datasets (public domain), with a certified start and sum of
/// squares, and one as large as instruments make them.
std::vector<Problem> problems() {
    std::vector<Problem> all;
    all.push_back({.name = "Misra1a",
                   .law = "BoxLucas1",
                   .data = {.x = column({77.6, 114.9, 141.1, 190.8, 239.9, 289.0, 332.8, 378.4, 434.8, 477.3,
                                         536.8, 593.1, 689.1, 760.0}),
                            .y = column({10.07, 14.73, 17.94, 23.93, 29.61, 35.18, 40.02, 44.82, 50.76, 55.05,
                                         61.01, 66.40, 75.47, 81.78})},
                   .start = {250, 0.0005},
                   .certified_rss = 1.2455138894E-01});
    all.push_back({.name = "DanWood",
                   .law = "Allometric1",
                   .data = {.x = column({1.309, 1.471, 1.490, 1.565, 1.611, 1.680}),
                            .y = column({2.138, 3.421, 3.597, 4.340, 4.882, 5.660})},
                   .start = {1, 5},
                   .certified_rss = 4.3173084083E-03});
    std::vector<double> x,
        y = {8.44E-1, 9.08E-1, 9.32E-1, 9.36E-1, 9.25E-1, 9.08E-1, 8.81E-1, 8.50E-1, 8.18E-1, 7.84E-1, 7.51E-1,
             7.18E-1, 6.85E-1, 6.58E-1, 6.28E-1, 6.03E-1, 5.80E-1, 5.58E-1, 5.38E-1, 5.22E-1, 5.06E-1, 4.90E-1,
             4.78E-1, 4.67E-1, 4.57E-1, 4.48E-1, 4.38E-1, 4.31E-1, 4.24E-1, 4.20E-1, 4.14E-1, 4.11E-1, 4.06E-1};
    for (std::size_t i = 0; i < y.size(); ++i) x.push_back(10 * static_cast<double>(i));
    all.push_back({.name = "MGH17", // its rates are the inverse of the model's decay times
                   .law = "ExpDec2",
                   .data = {.x = column(x), .y = column(y)},
                   .start = {0.5, 1.5, 100, -1, 50},
                   .certified_rss = 5.4648946975E-05});
    x.clear();
    y = {2.5134, 2.0443, 1.6684, 1.3664, 1.1232, 0.9269, 0.7679, 0.6389, 0.5338, 0.4479, 0.3776, 0.3197,
         0.2720, 0.2325, 0.1997, 0.1723, 0.1493, 0.1301, 0.1138, 0.1000, 0.0883, 0.0783, 0.0698, 0.0624};
    for (std::size_t i = 0; i < y.size(); ++i) x.push_back(0.05 * static_cast<double>(i));
    all.push_back({.name = "Lanczos3",
                   .law = "Lanczos3",
                   .data = {.x = column(x), .y = column(y)},
                   .start = {0.5, 0.7, 3.6, 4.2, 4, 6.3},
                   .certified_rss = 1.6117193594E-08});
    const Table eckerle4 = Table::load(ANSATZ_BENCH_DATA "/eckerle4.csv");
    all.push_back({.name = "Eckerle4",
                   .law = "Gauss",
                   .data = {.x = eckerle4.numbers(0), .y = eckerle4.numbers(1)},
                   .start = {0, 450, 10, 4},
                   .certified_rss = 1.4635887487E-03,
                   .hold_first = true});
    constexpr Eigen::Index N = 100000;
    std::mt19937_64 random(1);
    std::normal_distribution<double> noise(0, 0.01);
    Data large{.x = Eigen::VectorXd::LinSpaced(N, -5, 5), .y = Eigen::VectorXd(N)};
    const double truth[5] = {0, 0.1, 0.3, 1.7, 2.5};
    for (Eigen::Index i = 0; i < N; ++i)
        large.y(i, 0) = law::Gauss::at(truth, large.x(i, 0), 0) + noise(random);
    all.push_back({.name = "simulated",
                   .law = "Gauss",
                   .data = std::move(large),
                   .start = {0, 0, 1, 1},
                   .certified_rss = 0});
    return all;
}

/// A law with automatic derivatives, behind the library's protocol.
template <class Law> std::int32_t jets(std::uint32_t flags, std::uint32_t, std::int32_t, std::uint32_t,
                                       std::uint32_t, const double* P, std::uint32_t, double* x, double* y,
                                       double* dyda) {
    if (flags & FF_QUERY_DERIV) return 1;
    if (flags & FF_VALUE) y[1] = Law::at(P, x[1], 0.0);
    if (flags & FF_DERIV) {
        ceres::Jet<double, Law::params> with[Law::params + 1];
        for (int k = 1; k <= Law::params; ++k) with[k] = ceres::Jet<double, Law::params>(P[k], k - 1);
        const auto v = Law::at(static_cast<const ceres::Jet<double, Law::params>*>(with), x[1], 0.0);
        y[1] = v.a;
        for (int k = 1; k <= Law::params; ++k) dyda[k] = v.v[k - 1];
    }
    return 0;
}

/// The formula that the parsed routine computes.
std::unique_ptr<Parsed> formula;

std::int32_t parsed(std::uint32_t flags, std::uint32_t, std::int32_t, std::uint32_t, std::uint32_t,
                    const double* P, std::uint32_t, double* x, double* y, double* dyda) {
    if (flags & FF_QUERY_DERIV) return 1;
    formula->set_parameters(P + 1);
    y[1] = flags & FF_DERIV ? formula->gradient(x[1], 0, dyda + 1) : *formula->values(x[1], 0);
    return 0;
}

FitFunction jets_of(const std::string& law_name) {
    if (law_name == "Gauss") return jets<law::Gauss>;
    if (law_name == "BoxLucas1") return jets<law::BoxLucas1>;
    if (law_name == "Allometric1") return jets<law::Allometric1>;
    if (law_name == "ExpDec2") return jets<law::ExpDec2>;
    return jets<law::Lanczos3>;
}

void add(const char* supplier, const Problem& problem, const Model& model, Derivatives source) {
    const auto run = [supplier, &problem, model, source](benchmark::State& state) {
        const int n = static_cast<int>(problem.start.size());
        if (supplier == std::string("parsed")) formula = std::make_unique<Parsed>(formula_of(problem.law), n);
        auto start = starts(model, problem.start);
        start[0].fixed = problem.hold_first;
        Fit result;
        for (auto _ : state) result = fit(model, problem.data, start, {.derivatives = source});
        state.counters["evaluations"] = result.evaluations;
        state.counters["converged"] = result.converged;
        state.counters["points"] = result.points;
        state.counters["rss_error"] =
            problem.certified_rss > 0 ? std::fabs(result.rss / problem.certified_rss - 1) : std::nan("");
    };
    const std::string name = std::string("fits/") + supplier + "/" + problem.name + "/" + problem.law;
    benchmark::RegisterBenchmark(name.c_str(), run);
}

} // namespace

void register_fits() {
    static const std::vector<Problem> all = problems();
    for (const Problem& problem : all) {
        const Model library = Model::find(problem.law);
        const int n = static_cast<int>(problem.start.size());
        add("library", problem, library, Derivatives::best);
        add("differences", problem, library, Derivatives::numerical);
        add("jets", problem, Model::custom(problem.law, jets_of(problem.law), 1, 1, n), Derivatives::best);
        add("parsed", problem, Model::custom(problem.law, parsed, 1, 1, n), Derivatives::best);
    }
}

} // namespace bench
