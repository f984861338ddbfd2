#include "suites.hpp"
#include "workload.hpp"

#include <benchmark/benchmark.h>

namespace bench {
namespace {

using Side = void (*)(const Workload&, Kind, std::size_t, const double*, double*, double*);

void single(const Workload& model, Kind kind, std::size_t N, const double* x, double* y, double* jacobian) {
    benchmark::DoNotOptimize(call_singly(model, kind, N, x, y, jacobian));
}
void batch(const Workload& model, Kind kind, std::size_t N, const double* x, double* y, double* jacobian) {
    benchmark::DoNotOptimize(call_batch(model, kind, N, x, y, jacobian, 1));
}
void batch_on_two(const Workload& model, Kind kind, std::size_t N, const double* x, double* y,
                  double* jacobian) {
    benchmark::DoNotOptimize(call_batch(model, kind, N, x, y, jacobian, 2));
}

void loop(const Workload& model, Kind kind, std::size_t N, const double* x, double* y, double* jacobian) {
    run_limit(model, kind, N, x, y, jacobian, false);
}
void point(const Workload& model, Kind kind, std::size_t N, const double* x, double* y, double* jacobian) {
    run_limit(model, kind, N, x, y, jacobian, true);
}

void add(const char* side, Side compute, const Workload& model, Kind kind, int points) {
    const std::string name = std::string("catalogue/") + side +
                             (kind == Kind::value ? "/value/" : "/gradient/") + model.name + "/" +
                             std::to_string(points);
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

void add_lookup(const char* what, const char* name) {
    benchmark::RegisterBenchmark((std::string("lookup/") + what).c_str(), [name](benchmark::State& state) {
        for (auto _ : state) benchmark::DoNotOptimize(Get_Func(name, nullptr, nullptr, nullptr, nullptr));
    });
}

} // namespace

void register_catalogue() {
    for (const Workload& model : workloads()) {
        for (const Kind kind : {Kind::value, Kind::gradient}) {
            if (kind == Kind::gradient && !model.derivatives) continue;
            for (const int points : sizes) {
                add("single", single, model, kind, points);
                add("point", point, model, kind, points);
                add("loop", loop, model, kind, points);
                add("batch", batch, model, kind, points);
            }
            add("batch2", batch_on_two, model, kind, sizes[3]);
        }
    }
    add_lookup("first", "Shah");
    add_lookup("middle", "Sine");
    add_lookup("last", "PlaneMod");
    add_lookup("unknown", "Parabole");
}

} // namespace bench
