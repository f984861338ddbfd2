// ansatz show: all that is known about one model.

#include "options.hpp"
#include "report.hpp"

#include <fmt/format.h>

namespace ansatz::tools {
namespace {

constexpr const char* footer = R"(
Example:
  ansatz show Lorentz)";

struct Options {
    std::string model;
    bool json = false;
};

/// The text in lines of at most this many characters, broken at blanks.
std::string wrapped(std::string_view text, std::size_t width = 96) {
    std::string lines;
    while (text.size() > width) {
        const std::size_t blank = text.rfind(' ', width);
        if (blank == std::string_view::npos) break;
        lines.append(text.substr(0, blank)).append("\n");
        text.remove_prefix(blank + 1);
    }
    return lines.append(text);
}

int show(const Options& options) {
    const host::Model model = host::Model::find(options.model);
    if (options.json) {
        fmt::print("{}\n", json_text(describe_json(model)));
        return done;
    }
    const Page* text = model.page();
    fmt::print("{}  ({})\n", model.name(), family_title(text->family));
    if (model.reserved()) {
        fmt::print("\n  {}\n", text->notes);
        return done;
    }
    fmt::print("\n  {}\n", text->formula);

    const int n = model.default_size();
    TextTable table({{"", Align::left}, {"symbol", Align::left}, {"meaning", Align::left}});
    const auto slots = model.slots(n);
    for (const host::Slot& slot : slots) {
        table.add({slot.number, slot.symbol,
                   slot.meaning + (slot.reference() ? " (reference position, held fixed)" : "")});
    }
    fmt::print("\nParameters ({})\n{}", parameter_count(model), table.text());
    if (model.replicated()) {
        const std::size_t lead = text->parameters.size(), size = text->block.size();
        const auto two = model.slots(static_cast<int>(lead + 2 * size));
        fmt::print("  With several {}s the symbols are numbered: {}, {}, ...\n", text->block_name,
                   two[lead].symbol, two[lead + size].symbol);
    }

    fmt::print("\nx columns    {}\n", model.inputs());
    if (model.implicit()) {
        fmt::print("y columns    none: an implicit model, its value is fitted to zero\n");
    } else {
        fmt::print("y columns    {}\n", model.outputs());
    }
    fmt::print("Derivatives  {}\n", model.analytic() ? "analytic" : "numerical, by the host");
    if (model.components(n) > 0) fmt::print("Components   one per {}, without the offset\n", text->block_name);
    if (!text->notes.empty()) fmt::print("\n{}\n", wrapped(text->notes));
    return done;
}

} // namespace

void add_show(CLI::App& app, Command& chosen) {
    auto& command = *app.add_subcommand("show", "Show a model's formula, parameters and limits.");
    const auto options = std::make_shared<Options>();
    command.footer(footer);
    command.add_option("MODEL", options->model, "The model's name")->required();
    command.add_flag("--json", options->json, "Write JSON");
    run_where_chosen<Options>(command, chosen, options, show);
}

} // namespace ansatz::tools
