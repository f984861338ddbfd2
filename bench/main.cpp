#include "suites.hpp"

#include <benchmark/benchmark.h>

#include <gnu/libc-version.h>

int main(int argc, char** argv) {
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
