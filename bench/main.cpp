#include "suites.hpp"
#include "workload.hpp"

#include <benchmark/benchmark.h>

#include <gnu/libc-version.h>

#include <cstdio>
#include <string>

namespace {

/// The parameters and the ranges of the data as JSON, so that others can be timed on the same.
void print_workloads() {
    const auto list = [](const std::vector<double>& values) {
        std::printf("[");
        for (std::size_t i = 0; i < values.size(); ++i) std::printf("%s%.17g", i > 0 ? ", " : "", values[i]);
        std::printf("]");
    };
    const char* separator = "{";
    for (const bench::Workload& model : bench::workloads()) {
        std::printf("%s\"%s\": {\"P\": ", separator, model.name.c_str());
        list(model.P);
        std::printf(", \"from\": ");
        list(model.from);
        std::printf(", \"to\": ");
        list(model.to);
        double y[2] = {};
        std::vector<double> jacobian(model.P.size());
        bench::call_singly(model, bench::Kind::value, 1, model.columns(1).data(), y, jacobian.data());
        std::printf(", \"y\": %.17g}", y[0]); // in the middle of the ranges
        separator = ",\n";
    }
    std::printf("}\n");
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
    bench::register_floor();
    bench::register_rivals();
    bench::register_fits();
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
}
