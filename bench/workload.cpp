#include "workload.hpp"

#include "frame/golden.h"

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <functional>

namespace bench {
namespace {

constexpr std::size_t tried = 1000; // points at which a workload is checked

struct Numbers {
    std::vector<double> y, jacobian;
    explicit Numbers(const Workload& model, std::size_t N)
        : y(N * static_cast<std::size_t>(model.outputs)), jacobian(N * model.P.size()) {}
    bool finite() const {
        const auto is_finite = [](double v) { return std::isfinite(v); };
        return std::all_of(y.begin(), y.end(), is_finite) &&
               std::all_of(jacobian.begin(), jacobian.end(), is_finite);
    }
};

std::vector<Kind> kinds(const Workload& model) {
    return model.derivatives ? std::vector{Kind::value, Kind::gradient} : std::vector{Kind::value};
}

/// Does the model answer at all points?
bool answers(const Workload& model) {
    const auto x = model.columns(tried);
    for (const Kind kind : kinds(model)) {
        Numbers numbers(model, tried);
        if (call_singly(model, kind, tried, x.data(), numbers.y.data(), numbers.jacobian.data()) > 0 ||
            !numbers.finite())
            return false;
    }
    return true;
}

/// The largest difference in a column of numbers, in units of its largest number.
double disagreement(const std::vector<double>& a, const std::vector<double>& b, std::size_t first,
                    std::size_t stride) {
    double size = 0, gap = 0;
    for (std::size_t i = first; i < a.size(); i += stride) {
        size = std::max(size, std::fabs(a[i]));
        gap = std::max(gap, std::fabs(a[i] - b[i]));
        if (!std::isfinite(b[i])) return INFINITY;
    }
    return size > 0 ? gap / size : gap;
}

bool same_law(const Workload& model, bool by_point) {
    bool same = true;
    const auto x = model.columns(tried);
    for (const Kind kind : kinds(model)) {
        Numbers library(model, tried), limit(model, tried);
        call_singly(model, kind, tried, x.data(), library.y.data(), library.jacobian.data());
        run_limit(model, kind, tried, x.data(), limit.y.data(), limit.jacobian.data(), by_point);
        double worst = 0;
        for (std::size_t c = 0; c < static_cast<std::size_t>(model.outputs); ++c) {
            const auto column = [&](const std::vector<double>& y) {
                return std::vector(y.begin() + static_cast<std::ptrdiff_t>(c * tried),
                                   y.begin() + static_cast<std::ptrdiff_t>((c + 1) * tried));
            };
            worst = std::max(worst, disagreement(column(library.y), column(limit.y), 0, 1));
        }
        if (kind == Kind::gradient) {
            for (std::size_t k = 0; k < model.P.size(); ++k)
                worst = std::max(worst, disagreement(library.jacobian, limit.jacobian, k, model.P.size()));
        }
        if (!(worst < 1e-8)) {
            std::fprintf(stderr, "the limit of %s is another law: its %s differs by %g\n", model.name.c_str(),
                         kind == Kind::value ? "value" : "gradient", worst);
            same = false;
        }
    }
    return same;
}

/// The workload of a row; `wrong` tells that its limit is no such thing.
Workload make(const ansatz::test::GoldenRow& row, bool& wrong) {
    Workload model;
    model.name = row.name;
    std::uint16_t outputs = 0;
    model.function = Get_Func(row.name.c_str(), nullptr, &outputs, nullptr, nullptr);
    model.batch = ansatz_batch_find(row.name.c_str());
    model.outputs = outputs;
    model.derivatives = row.derivatives;
    model.limit = find_limit(row.name);
    if (!model.limit) {
        std::fprintf(stderr, "no limit is written for %s\n", row.name.c_str());
        std::exit(1);
    }
    int suitable = 0;
    for (const auto& point : row.points) {
        if (point.P.size() < static_cast<std::size_t>(model.limit->params)) continue;
        Workload candidate = model;
        candidate.P.assign(point.P.begin(), point.P.begin() + model.limit->params); // one peak of several
        candidate.inputs = static_cast<int>(point.x.size());
        for (double width = 0.4; width > 1e-6; width /= 2) {
            candidate.from.clear();
            candidate.to.clear();
            for (const double x : point.x) {
                candidate.from.push_back(x - width * (std::fabs(x) + 0.1));
                candidate.to.push_back(x + width * (std::fabs(x) + 0.1));
            }
            if (!answers(candidate)) continue;
            if (!same_law(candidate, false) || !same_law(candidate, true)) wrong = true;
            if (++suitable == 1) model = candidate;
            break;
        }
    }
    if (suitable == 0) {
        std::fprintf(stderr, "%s answers nowhere\n", row.name.c_str());
        std::exit(1);
    }
    return model;
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
        bool wrong = false;
        for (const auto& row : ansatz::test::golden_rows()) {
            const bool known = std::ranges::find(made, row.name, &Workload::name) != made.end();
            if (!known) made.push_back(make(row, wrong)); // some rows have their golden data in two parts
        }
        if (wrong) std::exit(1);
        std::ranges::sort(made, {}, &Workload::name);
        return made;
    }();
    return all;
}

const Workload& workload(const std::string& name) {
    const auto found = std::ranges::find(workloads(), name, &Workload::name);
    if (found == workloads().end()) std::abort();
    return *found;
}

std::size_t call_singly(const Workload& model, Kind kind, std::size_t N, const double* columns, double* y,
                        double* jacobian) {
    const FitFunction function = model.function;
    const int n = model.params(), inputs = model.inputs, outputs = model.outputs;
    const double* const P = model.P.data() - 1;
    double x[4], value[32], *row = jacobian - 1;
    std::size_t failures = 0;
    const unsigned request = kind == Kind::value ? FF_VALUE : FF_DERIV;
    for (std::size_t i = 0; i < N; ++i) {
        x[1] = columns[i];
        for (int c = 1; c < inputs; ++c) x[c + 1] = columns[N * static_cast<std::size_t>(c) + i];
        errno = 0;
        failures += function(request, 0, n, 0, 0, P, 0, x, value, row) != 0;
        y[i] = value[1];
        if (outputs == 2) y[N + i] = value[2];
        if (kind == Kind::gradient) row += n;
    }
    return failures;
}

std::int64_t call_batch(const Workload& model, Kind kind, std::size_t N, const double* columns, double* y,
                        double* jacobian, int threads) {
    AnsatzBatch batch = {};
    batch.request = kind == Kind::value ? FF_VALUE : FF_DERIV;
    batch.nParams = model.params();
    batch.params = model.P.data();
    batch.nPoints = N;
    batch.nX = model.inputs;
    for (int c = 0; c < model.inputs; ++c) {
        batch.x[c] = columns + N * static_cast<std::size_t>(c);
        batch.xStride[c] = 1;
    }
    batch.nY = model.outputs;
    batch.y = y;
    batch.yStride = model.outputs;
    batch.jacobian = jacobian;
    batch.jacobianStride = model.params();
    batch.threads = threads;
    return ansatz_batch_run(model.batch, &batch);
}

void run_limit(const Workload& model, Kind kind, std::size_t N, const double* columns, double* y,
               double* jacobian, bool by_point) {
    Work work{
        .params = model.P.data(), .x = {columns, columns, columns}, .points = N, .y = y, .jacobian = jacobian};
    for (int c = 1; c < model.inputs; ++c) work.x[c] = columns + N * static_cast<std::size_t>(c);
    const Limit& limit = *model.limit;
    if (by_point)
        (kind == Kind::value ? limit.point_values : limit.point_derivatives)(work);
    else
        (kind == Kind::value ? limit.loop_values : limit.loop_derivatives)(work);
}

} // namespace bench
