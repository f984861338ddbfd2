#include "report.hpp"

#include <fmt/format.h>

#include <algorithm>

namespace ansatz::tools {
namespace {

/// The width of UTF-8 text on a terminal, near enough: its number of code points.
std::size_t width(std::string_view text) {
    return static_cast<std::size_t>(
        std::ranges::count_if(text, [](char c) { return (static_cast<unsigned char>(c) & 0xc0) != 0x80; }));
}

} // namespace

std::string TextTable::text(std::string_view indent) const {
    std::vector<std::size_t> widths;
    for (std::size_t j = 0; j < columns_.size(); ++j) {
        std::size_t widest = width(columns_[j].first);
        for (const auto& row : rows_) widest = std::max(widest, width(row[j]));
        widths.push_back(widest);
    }
    std::string result;
    const auto add = [&](const auto& cell_of) {
        std::string line(indent);
        for (std::size_t j = 0; j < columns_.size(); ++j) {
            const std::string& cell = cell_of(j);
            const std::string blank(widths[j] - width(cell), ' ');
            line += columns_[j].second == Align::right ? blank + cell : cell + blank;
            line += "  ";
        }
        result += line.substr(0, line.find_last_not_of(' ') + 1) + '\n';
    };
    add([&](std::size_t j) -> const std::string& { return columns_[j].first; });
    for (const auto& row : rows_) {
        add([&](std::size_t j) -> const std::string& { return row[j]; });
    }
    return result;
}

std::string json_text(const Json& json) {
    return json.dump(2, ' ', true, Json::error_handler_t::replace);
}

Json describe_json(const host::Model& model) {
    Json json = {{"name", model.name()},
                 {"family", model.family()},
                 {"inputs", model.inputs()},
                 {"outputs", model.outputs()},
                 {"default_parameters", model.default_size()},
                 {"analytic_derivatives", model.analytic()},
                 {"replicated", model.replicated()},
                 {"implicit", model.implicit()},
                 {"reserved", model.reserved()}};
    const auto parameters = [](const std::vector<host::ParameterText>& list) {
        Json result = Json::array();
        for (const auto& [symbol, meaning, role] : list) {
            result.push_back(
                {{"symbol", symbol}, {"meaning", meaning}, {"reference", role == host::Role::reference}});
        }
        return result;
    };
    if (const host::Description* text = model.description()) {
        json["formula"] = text->formula;
        json["parameters"] = parameters(text->parameters);
        if (model.replicated()) {
            json["block"] = {{"name", text->block_name},
                             {"components", text->components},
                             {"parameters", parameters(text->block)}};
        }
        json["notes"] = text->notes;
    }
    return json;
}

std::string parameter_count(const host::Model& model) {
    if (!model.replicated()) return fmt::format("{}", model.default_size());
    const host::Description& text = *model.description();
    const std::string per = fmt::format("{} per {}", text.block.size(), text.block_name);
    return text.parameters.empty() ? per : fmt::format("{} + {}", text.parameters.size(), per);
}

} // namespace ansatz::tools
