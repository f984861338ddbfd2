#include <ansatz/host/fit.hpp>
#include <ansatz/host/table.hpp>

#include <cstdio>

using namespace ansatz::host;

int main() try {
    const Table table = Table::load("examples/eckerle4.csv");
    const Data data{.x = table.numbers(0), .y = table.numbers(1)};
    const Model model = Model::find("Gauss");

    std::vector<Start> start = starts(model, {0, 450, 10, 4});
    start[0].fixed = true;
    start[2].lower = 0;
    const Fit result = fit(model, data, start);

    std::printf("%s\n", result.termination.c_str());
    for (const Estimate& p : result.parameters) {
        if (p.error) std::printf("%-2s %.10g +- %.8g\n", p.slot.symbol.c_str(), p.value, *p.error);
    }
    return result.converged ? 0 : 1;
} catch (const Error& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 2;
}
