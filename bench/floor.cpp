// What a call costs whatever the model: three laws, inlined and behind the library's calling convention, with
// one duty of a model added at a time.
#include "suites.hpp"
#include "workload.hpp"

#include <benchmark/benchmark.h>

#include <cerrno>
#include <cmath>
#include <string>

namespace bench {
namespace {

/// What the routine does beside its arithmetic.
enum class Duty {
    none,
    pending, ///< looks whether the error indicator is set
    results  ///< and whether each result of the C library is an ordinary number
};

struct Outcome {
    bool ordinary = true;
    double of(double r) {
        ordinary &= std::isnormal(r);
        return r;
    }
};

struct Line {
    static constexpr const char* name = "Line";
    static double at(const double* P, double x, double* d, Outcome&) {
        d[1] = 1;
        d[2] = x;
        return P[1] + P[2] * x;
    }
};
struct Exp1P1 {
    static constexpr const char* name = "Exp1P1";
    static double at(const double* P, double x, double* d, Outcome& library) {
        const double e = library.of(std::exp(x - P[1]));
        d[1] = -e;
        return e;
    }
};
struct Allometric1 {
    static constexpr const char* name = "Allometric1";
    static double at(const double* P, double x, double* d, Outcome& library) {
        const double w = library.of(std::pow(x, P[2])), y = P[1] * w;
        d[1] = w;
        d[2] = y * library.of(std::log(x));
        return y;
    }
};

template <class Law, Duty duty> std::int32_t routine(std::uint32_t flags, std::uint32_t, std::int32_t,
                                                     std::uint32_t, std::uint32_t, const double* P,
                                                     std::uint32_t, double* x, double* y, double* dyda) {
    if (!(flags & FF_DERIV)) return 1;
    Outcome library;
    const double value = Law::at(P, x[1], dyda, library);
    if (duty == Duty::results && !library.ordinary) return 1;
    if (duty != Duty::none && (errno == ERANGE || errno == EDOM)) return 1;
    y[1] = value;
    return 0;
}

constexpr std::size_t points = 1000;

struct Columns {
    const Workload& model;
    std::vector<double> x = model.columns(points), y = std::vector<double>(points),
                        jacobian = std::vector<double>(points * model.P.size());
};

template <class Law> void inlined(benchmark::State& state) {
    Columns data{workload(Law::name)};
    const double* const P = data.model.P.data() - 1;
    for (auto _ : state) {
        double* row = data.jacobian.data() - 1;
        for (std::size_t i = 0; i < points; ++i, row += data.model.P.size()) {
            asm volatile("" : : "r"(P) : "memory"); // the parameters may have changed
            Outcome library;
            data.y[i] = Law::at(P, data.x[i], row, library);
        }
        benchmark::ClobberMemory();
    }
}

void called(benchmark::State& state, const char* name, FitFunction function) {
    Workload model = workload(name);
    if (function) model.function = function;
    benchmark::DoNotOptimize(model.function);
    Columns data{model};
    for (auto _ : state) {
        call_singly(model, Kind::gradient, points, data.x.data(), data.y.data(), data.jacobian.data());
        benchmark::ClobberMemory();
    }
}

template <class Law> void add() {
    const auto add_call = [](const char* what, FitFunction function) {
        benchmark::RegisterBenchmark((std::string("floor/") + what + "/" + Law::name).c_str(),
                                     [function](benchmark::State& s) { called(s, Law::name, function); });
    };
    benchmark::RegisterBenchmark((std::string("floor/inlined/") + Law::name).c_str(), inlined<Law>);
    add_call("call", routine<Law, Duty::none>);
    add_call("pending", routine<Law, Duty::pending>);
    add_call("results", routine<Law, Duty::results>);
    add_call("library", nullptr);
}

} // namespace

void register_floor() {
    add<Line>();
    add<Exp1P1>();
    add<Allometric1>();
}

} // namespace bench
