// ansatz list: the catalogue, by family.

#include "options.hpp"
#include "report.hpp"

#include <fmt/format.h>
#include <fmt/ranges.h>
#include <fnmatch.h>

#include <algorithm>
#include <cctype>
#include <map>

namespace ansatz::tools {
namespace {

constexpr const char* footer = R"(
Examples:
  ansatz list               all models
  ansatz list gauss         names that contain "gauss", in any mix of upper and lower case
  ansatz list 'exp*'        names that begin with "exp"
  ansatz list --json        for scripts

The columns x and y give the numbers of independent and of dependent variables.)";

struct Options {
    std::string pattern;
    bool json = false;
};

std::string lower(std::string text) {
    for (char& c : text) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return text;
}

/// A pattern with * or ? has to match the whole name, any other has to occur in it.
bool matches(const std::string& name, const std::string& pattern) {
    const std::string folded = lower(name), wanted = lower(pattern);
    if (wanted.find_first_of("*?[") == std::string::npos) return folded.find(wanted) != std::string::npos;
    return fnmatch(wanted.c_str(), folded.c_str(), 0) == 0;
}

int list(const Options& options) {
    std::map<std::string_view, std::vector<host::Model>> found;
    for (const std::string& name : host::model_names()) {
        if (!matches(name, options.pattern)) continue;
        host::Model model = host::Model::find(name);
        found[model.page()->family].push_back(std::move(model));
    }
    if (found.empty()) {
        const auto nearest = host::nearest_names(options.pattern);
        throw host::Error(
            fmt::format("no model's name contains or matches '{}'{}", options.pattern,
                        nearest.empty() ? "" : fmt::format("; near it: {}", fmt::join(nearest, ", "))));
    }
    Json json = Json::array();
    bool first = true;
    for (const std::string_view family : families()) {
        const auto group = found.extract(family);
        if (group.empty()) continue;
        TextTable table({{"model", Align::left},
                         {"x", Align::right},
                         {"y", Align::right},
                         {"parameters", Align::left},
                         {"formula", Align::left}});
        for (const host::Model& model : group.mapped()) {
            json.push_back(describe_json(model));
            table.add(
                {model.name(), fmt::format("{}", model.inputs()),
                 model.implicit() ? "0" : fmt::format("{}", model.outputs()), parameter_count(model),
                 std::string(model.reserved() ? "reserved name, computes nothing" : model.page()->formula)});
        }
        if (options.json) continue;
        fmt::print("{}{}\n{}", first ? "" : "\n", family_title(family), table.text());
        first = false;
    }
    if (options.json) fmt::print("{}\n", json_text(json));
    return done;
}

} // namespace

void add_list(CLI::App& app, Command& chosen) {
    auto& command = *app.add_subcommand("list", "List the models, by family.");
    const auto options = std::make_shared<Options>();
    command.footer(footer);
    command.add_option("PATTERN", options->pattern, "Part of a name, or a pattern with * and ?");
    command.add_flag("--json", options->json, "Write JSON");
    run_where_chosen<Options>(command, chosen, options, list);
}

} // namespace ansatz::tools
