// A dozen models beside what a user would pick instead: automatic differentiation with Ceres' Jets, and
// formulas parsed by muParser with derivatives by central differences.
#include "rivals.hpp"
#include "suites.hpp"
#include "workload.hpp"

#include <benchmark/benchmark.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <memory>

namespace bench {
namespace {

template <class Law>
void jets_value(const Workload& model, std::size_t N, const double* x, double* y, double*) {
    const double* const P = model.P.data() - 1;
    const double* const second = model.inputs > 1 ? x + N : x;
    for (std::size_t i = 0; i < N; ++i) y[i] = Law::at(P, x[i], second[i]);
}
template <class Law>
void jets_gradient(const Workload& model, std::size_t N, const double* x, double* y, double* jacobian) {
    constexpr int n = Law::params;
    using Jet = ceres::Jet<double, n>;
    Jet P[n + 1];
    for (int k = 0; k < n; ++k) P[k + 1] = Jet(model.P[static_cast<std::size_t>(k)], k);
    const double* const second = model.inputs > 1 ? x + N : x;
    for (std::size_t i = 0; i < N; ++i) {
        const Jet v = Law::at(static_cast<const Jet*>(P), x[i], second[i]);
        y[i] = v.a;
        for (int k = 0; k < n; ++k) jacobian[i * n + static_cast<std::size_t>(k)] = v.v[k];
    }
}

/// The parsed formula of a model, at its parameters. It is read once.
Parsed& parsed(const Workload& model) {
    static std::map<std::string, std::unique_ptr<Parsed>> formulas;
    auto& formula = formulas[model.name];
    if (!formula) formula = std::make_unique<Parsed>(formula_of(model.name), model.params());
    formula->set_parameters(model.P.data());
    return *formula;
}
void parsed_value(const Workload& model, std::size_t N, const double* x, double* y, double*) {
    Parsed& formula = parsed(model);
    const double* const second = model.inputs > 1 ? x + N : x;
    for (std::size_t i = 0; i < N; ++i) y[i] = formula.value(x[i], second[i]);
}
void parsed_gradient(const Workload& model, std::size_t N, const double* x, double* y, double* jacobian) {
    Parsed& formula = parsed(model);
    const double* const second = model.inputs > 1 ? x + N : x;
    for (std::size_t i = 0; i < N; ++i) y[i] = formula.gradient(x[i], second[i], jacobian + i * model.P.size());
}

/// The library where it offers no derivatives: two more calls per parameter.
void library_differences(const Workload& model, std::size_t N, const double* x, double* y, double* jacobian) {
    std::vector<double> P(model.P.size() + 1);
    std::copy(model.P.begin(), model.P.end(), P.begin() + 1);
    double point[4], value[32];
    const auto call = [&] {
        errno = 0;
        model.function(FF_VALUE, 0, model.params(), 0, 0, P.data(), 0, point, value, nullptr);
        return value[1];
    };
    for (std::size_t i = 0; i < N; ++i) {
        point[1] = x[i];
        y[i] = call();
        for (std::size_t k = 1; k < P.size(); ++k) {
            const double at = P[k], step = difference_step(at), up = at + step, down = at - step;
            P[k] = up;
            const double above = call();
            P[k] = down;
            jacobian[i * model.P.size() + k - 1] = (above - call()) / (up - down);
            P[k] = at;
        }
    }
}

using Side = void (*)(const Workload&, std::size_t, const double*, double*, double*);

/// The values and derivatives of a side must be the library's, differences to what differences can give.
void require_same(const char* side, const Workload& model, Side compute, Kind kind, double tolerance) {
    constexpr std::size_t N = 100;
    const auto x = model.columns(N);
    std::vector<double> y(N), J(N * model.P.size()), want_y(N), want_J(J.size());
    compute(model, N, x.data(), y.data(), J.data());
    call_singly(model, kind == Kind::gradient && model.derivatives ? Kind::gradient : Kind::value, N, x.data(),
                want_y.data(), want_J.data());
    const bool shape = model.name == "PearsonVII"; // its derivative by the shape is a formula of its own
    for (std::size_t i = 0; i < N; ++i) {
        bool same = std::fabs(y[i] - want_y[i]) <= 1e-7 * (std::fabs(want_y[i]) + 1e-3);
        for (std::size_t k = 0; kind == Kind::gradient && model.derivatives && k < model.P.size(); ++k) {
            if (shape && k == 4) continue;
            const double got = J[i * model.P.size() + k], want = want_J[i * model.P.size() + k];
            same = same && std::fabs(got - want) <= tolerance * (std::fabs(want) + 1e-2);
        }
        if (!same) {
            std::fprintf(stderr, "%s computes another %s\n", side, model.name.c_str());
            std::exit(1);
        }
    }
}

void add(const char* side, const Workload& model, Side compute, Kind kind, double tolerance) {
    require_same(side, model, compute, kind, tolerance);
    for (const int points : sizes) {
        const std::string name = std::string("rivals/") + side +
                                 (kind == Kind::value ? "/value/" : "/gradient/") + model.name + "/" +
                                 std::to_string(points);
        const auto run = [&model, points, compute](benchmark::State& state) {
            const auto N = static_cast<std::size_t>(points);
            const auto x = model.columns(N);
            std::vector<double> y(N), jacobian(N * model.P.size());
            for (auto _ : state) {
                compute(model, N, x.data(), y.data(), jacobian.data());
                benchmark::ClobberMemory();
            }
        };
        benchmark::RegisterBenchmark(name.c_str(), run)->UseRealTime();
    }
}

template <class Law> void add_law(const char* name) {
    const Workload& model = workload(name);
    add("jets", model, jets_value<Law>, Kind::value, 1e-7);
    add("jets", model, jets_gradient<Law>, Kind::gradient, 1e-7);
    add("parsed", model, parsed_value, Kind::value, 1e-4);
    add("parsed", model, parsed_gradient, Kind::gradient, 1e-4);
    if (!model.derivatives) add("differences", model, library_differences, Kind::gradient, 1e-4);
}

} // namespace

void register_rivals() {
    add_law<law::Gauss>("Gauss");
    add_law<law::Lorentz>("Lorentz");
    add_law<law::Voigt5>("Voigt5");
    add_law<law::PearsonVII>("PearsonVII");
    add_law<law::ExpDec2>("ExpDec2");
    add_law<law::Logistic>("Logistic");
    add_law<law::Boltzman>("Boltzman");
    add_law<law::Hill>("Hill");
    add_law<law::SRichards1>("SRichards1");
    add_law<law::Allometric1>("Allometric1");
    add_law<law::Poly5>("Poly5");
    add_law<law::Gauss2D>("Gauss2D");
}

} // namespace bench
