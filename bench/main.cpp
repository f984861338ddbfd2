#include "suites.hpp"

#include <benchmark/benchmark.h>

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    benchmark::AddCustomContext("build", ANSATZ_BENCH_BUILD);
    bench::register_catalogue();
    bench::register_rivals();
    bench::register_fits();
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
}
