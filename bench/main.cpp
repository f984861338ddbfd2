#include "laws.hpp"
#include "suites.hpp"
#include "workload.hpp"

#include <benchmark/benchmark.h>
#include <nlohmann/json.hpp>

#include <gnu/libc-version.h>

#include <iostream>
#include <string>

namespace {

/// The formulas, the parameters and the ranges of the data as JSON, so that others can be timed on the same.
void print_workloads() {
    nlohmann::json all;
    bench::for_each_law([&](auto law) {
        const bench::Workload& model = bench::workload(law.name);
        std::vector<double> y(static_cast<std::size_t>(model.outputs)), jacobian(model.P.size());
        bench::call_singly(model, bench::Kind::value, 1, model.columns(1).data(), y.data(), jacobian.data());
        all[law.name] = {{"formula", law.text},
                         {"P", model.P},
                         {"from", model.from},
                         {"to", model.to},
                         {"y", y}}; // y in the middle of the ranges
    });
    std::cout << all.dump(1) << '\n';
}

} // namespace

int main(int argc, char** argv) {
    if (argc == 2 && argv[1] == std::string("--workloads")) {
        print_workloads();
        return 0;
    }
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    benchmark::AddCustomContext("compiler", ANSATZ_BENCH_COMPILER);
    benchmark::AddCustomContext("flags", ANSATZ_BENCH_FLAGS);
    benchmark::AddCustomContext("c_library", std::string("glibc ") + gnu_get_libc_version());
    bench::register_catalogue();
    bench::register_rivals();
    bench::register_fits();
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
}
