// Two dozen models beside what a user would pick instead: the formula written by hand in the loop, automatic
// differentiation with Ceres' Jets, and a formula that muParser reads, with central differences. And what a
// call costs whatever the model.
#include "laws.hpp"
#include "parsed.hpp"
#include "suites.hpp"
#include "workload.hpp"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <memory>

namespace bench {
namespace {

void store(double* y, std::size_t i, std::size_t, double value) {
    y[i] = value;
}
void store(double* y, std::size_t i, std::size_t N, const std::pair<double, double>& values) {
    y[i] = values.first;
    y[N + i] = values.second;
}

/// The formula in the loop over the data. With `by_point`, nothing is carried over from one point to the next:
/// the least that a call per point could cost. Without, terms of the parameters alone leave the loop, and the
/// compiler may compute several points at a time.
template <class Law, Kind kind, bool by_point> [[gnu::flatten]] void
inlined_loop(const Workload& model, std::size_t N, const double* x, double* y, double* row) {
    double P[Law::params + 1];
    std::copy_n(model.P.data(), Law::params, P + 1);
    const double* const second = model.inputs > 1 ? x + N : x;
    for (std::size_t i = 0; i < N; ++i) {
        if constexpr (by_point) asm volatile("" : : "r"(P) : "memory"); // the parameters may have changed
        const auto* const given = static_cast<const double*>(P);
        if constexpr (kind == Kind::value || Law::outputs > 1) {
            store(y, i, N, Law::at(given, x[i], second[i]));
        } else {
            y[i] = Law::at(given, x[i], second[i], row - 1);
            row += Law::params;
        }
    }
}
template <class Law, bool by_point>
void inlined(const Workload& model, Kind kind, std::size_t N, const double* x, double* y, double* jacobian) {
    if (kind == Kind::value)
        inlined_loop<Law, Kind::value, by_point>(model, N, x, y, jacobian);
    else
        inlined_loop<Law, Kind::gradient, by_point>(model, N, x, y, jacobian);
}

template <class Law>
void jets(const Workload& model, Kind, std::size_t N, const double* x, double* y, double* jacobian) {
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

void parsed(const Workload& model, Kind kind, std::size_t N, const double* x, double* y, double* jacobian) {
    static std::map<std::string, std::unique_ptr<Parsed>> formulas; // each is read once
    auto& formula = formulas[model.name];
    if (!formula) formula = std::make_unique<Parsed>(formula_of(model.name), model.params());
    formula->set_parameters(model.P.data());
    const double* const second = model.inputs > 1 ? x + N : x;
    for (std::size_t i = 0; i < N; ++i) {
        if (kind == Kind::gradient) {
            y[i] = formula->gradient(x[i], second[i], jacobian + i * model.P.size());
            continue;
        }
        const double* const values = formula->values(x[i], second[i]);
        for (int c = 0; c < model.outputs; ++c) y[static_cast<std::size_t>(c) * N + i] = values[c];
    }
}

/// The library where it offers no derivatives: two more calls per parameter.
void differences(const Workload& model, Kind, std::size_t N, const double* x, double* y, double* jacobian) {
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

constexpr std::size_t tried = 1000; // points at which a law is checked

/// The largest difference in a column of numbers, in units of its largest number.
double disagreement(const std::vector<double>& want, const std::vector<double>& got, std::size_t first,
                    std::size_t end, std::size_t stride) {
    double size = 0, gap = 0;
    for (std::size_t i = first; i < end; i += stride) {
        size = std::max(size, std::fabs(want[i]));
        gap = std::max(gap, std::fabs(want[i] - got[i]));
        if (!std::isfinite(got[i])) return INFINITY;
    }
    return size > 0 ? gap / size : gap;
}

/// Does the library leave the true derivative there on purpose?
bool departs(const Workload& model, std::size_t k) {
    for (const auto& departure : ansatz::find_page(model.name)->departures) {
        if (departure.where.empty() && departure.slot == static_cast<int>(k) + 1) return true;
    }
    return false;
}

struct Rival {
    const char* name;
    Side compute;
    double tolerance;
    bool true_derivatives; ///< also where the library's are not
};

/// Ends the program where the numbers are not the library's.
void require_same(const Rival& rival, const Workload& model, Kind kind) {
    const std::size_t n = model.P.size(), values = tried * static_cast<std::size_t>(model.outputs);
    const auto x = model.columns(tried);
    std::vector<double> y(values), J(tried * n), want_y(values), want_J(tried * n);
    const bool compare = kind == Kind::gradient && model.derivatives;
    rival.compute(model, kind, tried, x.data(), y.data(), J.data());
    call_singly(model, compare ? kind : Kind::value, tried, x.data(), want_y.data(), want_J.data());
    double worst = 0;
    for (std::size_t first = 0; first < values; first += tried)
        worst = std::max(worst, disagreement(want_y, y, first, first + tried, 1));
    for (std::size_t k = 0; compare && k < n; ++k) {
        if (!rival.true_derivatives || !departs(model, k))
            worst = std::max(worst, disagreement(want_J, J, k, tried * n, n));
    }
    if (!(worst <= rival.tolerance)) {
        std::fprintf(stderr, "%s computes another %s of %s: it differs by %g\n", rival.name,
                     kind == Kind::value ? "value" : "gradient", model.name.c_str(), worst);
        std::exit(1);
    }
}

void add(const Rival& rival, const Workload& model, Kind kind) {
    require_same(rival, model, kind);
    for (const int points : sizes) time_side(rival.name, model, rival.compute, kind, points);
}

template <class Law> void add_law(Law) {
    const Workload& model = workload(Law::name);
    for (const Kind kind : {Kind::value, Kind::gradient}) {
        if (kind == Kind::gradient && Law::outputs > 1) continue;
        if (kind == Kind::value || model.derivatives) {
            add({"point", inlined<Law, true>, 1e-8, false}, model, kind);
            add({"loop", inlined<Law, false>, 1e-8, false}, model, kind);
        }
        if (*Law::text) add({"parsed", parsed, kind == Kind::value ? 1e-8 : 1e-6, true}, model, kind);
    }
    if constexpr (Law::outputs == 1) {
        add({"jets", jets<Law>, 1e-8, true}, model, Kind::gradient);
        if (!model.derivatives) add({"differences", differences, 1e-6, true}, model, Kind::gradient);
    }
}

/// A law by the library's calling convention, with a look at the error indicator if it `looks`, and nothing
/// else.
template <class Law, bool looks> std::int32_t routine(std::uint32_t flags, std::uint32_t, std::int32_t,
                                                      std::uint32_t, std::uint32_t, const double* P,
                                                      std::uint32_t, double* x, double* y, double* dyda) {
    if (!(flags & FF_DERIV)) return 1;
    const double value = Law::at(P, x[1], 0, dyda);
    if (looks && (errno == ERANGE || errno == EDOM)) return 1;
    y[1] = value;
    return 0;
}
template <class Law> void add_calls() {
    static Workload call = workload(Law::name), looking = call;
    call.function = routine<Law, false>;
    looking.function = routine<Law, true>;
    time_side("call", call, call_singly, Kind::gradient, 1000);
    time_side("errno", looking, call_singly, Kind::gradient, 1000);
}

} // namespace

void register_rivals() {
    for_each_law([](auto law) { add_law(law); });
    add_calls<law::Line>();
    add_calls<law::Exp1P1>();
    add_calls<law::Allometric1>();
}

} // namespace bench
