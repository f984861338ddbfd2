#include "suites.hpp"
#include "workload.hpp"

#include <benchmark/benchmark.h>

namespace bench {
namespace {

template <int threads>
void batch(const Workload& model, Kind kind, std::size_t N, const double* x, double* y, double* jacobian) {
    AnsatzBatch batch = {};
    batch.request = kind == Kind::value ? FF_VALUE : FF_DERIV;
    batch.nParams = model.params();
    batch.params = model.P.data();
    batch.nPoints = N;
    batch.nX = model.inputs;
    for (int c = 0; c < model.inputs; ++c) {
        batch.x[c] = x + N * static_cast<std::size_t>(c);
        batch.xStride[c] = 1;
    }
    batch.nY = model.outputs;
    batch.y = y;
    batch.yStride = model.outputs;
    batch.jacobian = jacobian;
    batch.jacobianStride = model.params();
    batch.threads = threads;
    benchmark::DoNotOptimize(ansatz_batch_run(model.batch, &batch));
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
                time_side("single", model, call_singly, kind, points);
                time_side("batch", model, batch<1>, kind, points);
            }
            time_side("batch2", model, batch<2>, kind, sizes[3]);
        }
    }
    add_lookup("first", "Shah");
    add_lookup("middle", "Sine");
    add_lookup("last", "PlaneMod");
    add_lookup("unknown", "Parabole");
}

} // namespace bench
