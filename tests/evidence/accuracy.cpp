// Prints the measured error of every model at its golden points as two tables in Markdown: how the models
// spread, and each model's worst value and worst derivative.

#include "frame/golden.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <limits>

namespace ansatz::test {
namespace {

/// The largest error of some numbers, in units of eps: relative to the number, and to what the condition of the
/// point allows.
struct Worst {
    double plain = 0, scaled = 0;
    int slot = 0; ///< where the scaled error is largest

    void note(const Expected& e, double got) {
        constexpr double eps = std::numeric_limits<double>::epsilon();
        const double error = static_cast<double>(std::fabs(static_cast<long double>(got) - e.exact));
        if (e.want != 0) plain = std::max(plain, error / (eps * std::fabs(e.want)));
        const double size = eps * (std::fabs(e.want) + e.condition);
        const double against = error == 0 ? 0 : error / size;
        if (slot == 0 || against > scaled) {
            scaled = against;
            slot = e.slot;
        }
    }
};

struct Measured {
    std::size_t points = 0;
    Worst value, derivative;
};

Measured measure(const std::string& name) {
    Measured m;
    const Model model = find(name);
    for (const GoldenRow& row : golden_rows()) {
        if (row.name != name) continue;
        for (const GoldenPoint& point : row.points) {
            ++m.points;
            Request request{FF_VALUE, static_cast<int>(point.P.size()), point.P, point.x};
            const Outcome value = call(model, request);
            for (const Expected& e : point.y) m.value.note(e, value.y[static_cast<std::size_t>(e.slot)]);
            request.flags = FF_DERIV;
            if (!row.derivatives) continue;
            const Outcome slopes = call(model, request);
            for (const Expected& e : point.dyda)
                m.derivative.note(e, slopes.dyda[static_cast<std::size_t>(e.slot)]);
        }
    }
    return m;
}

void print(const char* title, const std::vector<double>& errors) {
    std::printf("| %s |", title);
    for (const double limit : {0.5, 1.0, 2.0, 4.0, 8.0, 16.0}) {
        std::printf(" %td |", std::ranges::count_if(errors, [=](double e) { return e <= limit; }));
    }
    std::printf(" %.2g |\n", *std::ranges::max_element(errors));
}

void print_all() {
    std::map<std::string, Measured> models;
    for (const GoldenRow& row : golden_rows()) {
        if (!models.contains(row.name)) models[row.name] = measure(row.name);
    }
    std::size_t points = 0;
    std::vector<double> values, derivatives;
    for (const auto& [name, m] : models) {
        points += m.points;
        values.push_back(m.value.scaled);
        if (m.derivative.slot) derivatives.push_back(m.derivative.scaled);
    }
    std::printf("Models whose worst error at %zu points, scaled by the condition, is at most so many eps:\n\n"
                "| | 0.5 | 1 | 2 | 4 | 8 | 16 | the worst |\n|---|---|---|---|---|---|---|---|\n",
                points);
    print(("value, " + std::to_string(values.size()) + " models").c_str(), values);
    print(("derivatives, " + std::to_string(derivatives.size()) + " models").c_str(), derivatives);
    std::printf(
        "\n| Model | Points | Value: plain | Value: scaled | Derivatives: plain | scaled | worst slot |\n"
        "|---|---|---|---|---|---|---|\n");
    for (const auto& [name, m] : models) {
        std::printf("| %s | %zu | %.2g | %.2g |", name.c_str(), m.points, m.value.plain, m.value.scaled);
        if (m.derivative.slot) {
            std::printf(" %.2g | %.2g | P%d |\n", m.derivative.plain, m.derivative.scaled, m.derivative.slot);
        } else {
            std::printf(" - | - | - |\n");
        }
    }
}

} // namespace
} // namespace ansatz::test

int main() {
    ansatz::test::print_all();
}
