#include "workload.hpp"

#include "laws.hpp"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <cstdio>
#include <cstdlib>

namespace bench {
namespace {

/// Does the model compute all values, or all derivatives, at all points?
bool answers(const Workload& model, Kind kind) {
    constexpr std::size_t N = 1000;
    const auto x = model.columns(N);
    std::vector<double> y(N * static_cast<std::size_t>(model.outputs)), jacobian(N * model.P.size(), NAN);
    call_singly(model, kind, N, x.data(), y.data(), jacobian.data());
    const auto is_number = [](double v) { return std::isfinite(v) && v != MISSING_VALUE; };
    return std::ranges::all_of(y, is_number) &&
           (kind == Kind::value || std::ranges::all_of(jacobian, is_number));
}

Workload make(const ansatz::host::Model& model) {
    const auto& typical = model.page()->typical;
    int params = model.default_size();
    for_each_law([&](auto law) {
        if (model.name() == law.name) params = law.params;
    });
    Workload made{.name = model.name(),
                  .function = model.function(),
                  .batch = model.batch(),
                  .inputs = model.inputs(),
                  .outputs = model.outputs()};
    const auto count = std::min(static_cast<std::size_t>(params), typical.parameters.size());
    made.P.assign(typical.parameters.begin(), typical.parameters.begin() + count);
    for (int c = 0; c < made.inputs; ++c) {
        made.from.push_back(c == 0 ? typical.from : typical.from2);
        made.to.push_back(c == 0 ? typical.to : typical.to2);
    }
    if (!answers(made, Kind::value)) {
        std::fprintf(stderr, "%s does not answer at its typical parameters\n", made.name.c_str());
        std::exit(1);
    }
    made.derivatives = answers(made, Kind::gradient);
    return made;
}

} // namespace

std::vector<double> Workload::columns(std::size_t N) const {
    std::vector<double> all;
    all.reserve(N * static_cast<std::size_t>(inputs));
    for (std::size_t c = 0; c < static_cast<std::size_t>(inputs); ++c) {
        for (std::size_t i = 0; i < N; ++i) {
            const std::size_t place = c == 0 ? i : i * 7919 % N; // the others as if in no order
            const double share = (static_cast<double>(place) + 0.5) / static_cast<double>(N);
            all.push_back(from[c] + (to[c] - from[c]) * share);
        }
    }
    return all;
}

const std::vector<Workload>& workloads() {
    static const std::vector<Workload> all = [] {
        std::vector<Workload> made;
        for (const std::string& name : ansatz::host::model_names()) {
            const auto model = ansatz::host::Model::find(name);
            if (!model.reserved()) made.push_back(make(model));
        }
        return made;
    }();
    return all;
}

const Workload& workload(const std::string& name) {
    const auto found = std::ranges::find(workloads(), name, &Workload::name);
    if (found == workloads().end()) std::abort();
    return *found;
}

void call_singly(const Workload& model, Kind kind, std::size_t N, const double* columns, double* y,
                 double* jacobian) {
    const FitFunction function = model.function;
    const int n = model.params(), inputs = model.inputs, outputs = model.outputs;
    const double* const P = model.P.data() - 1;
    double x[4], value[32], *row = jacobian - 1;
    const unsigned request = kind == Kind::value ? FF_VALUE : FF_DERIV;
    for (std::size_t i = 0; i < N; ++i) {
        x[1] = columns[i];
        for (int c = 1; c < inputs; ++c) x[c + 1] = columns[N * static_cast<std::size_t>(c) + i];
        errno = 0;
        const bool failed = function(request, 0, n, 0, 0, P, 0, x, value, row) != 0;
        y[i] = failed ? MISSING_VALUE : value[1];
        if (outputs == 2) y[N + i] = value[2];
        if (kind == Kind::gradient) row += n;
    }
}

void time_side(const std::string& side, const Workload& model, Side compute, Kind kind, int points) {
    const std::string name =
        side + (kind == Kind::value ? "/value/" : "/gradient/") + model.name + "/" + std::to_string(points);
    const auto run = [&model, kind, points, compute](benchmark::State& state) {
        const auto N = static_cast<std::size_t>(points);
        const std::vector<double> x = model.columns(N);
        std::vector<double> y(N * static_cast<std::size_t>(model.outputs)), jacobian(N * model.P.size());
        for (auto _ : state) {
            compute(model, kind, N, x.data(), y.data(), jacobian.data());
            benchmark::ClobberMemory();
        }
    };
    // Work of two threads is measured by the clock on the wall.
    benchmark::RegisterBenchmark(name.c_str(), run)->UseRealTime();
}

} // namespace bench
