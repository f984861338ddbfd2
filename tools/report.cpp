#include "report.hpp"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>

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

namespace {

/// A bound, or null where there is none.
Json bound(double value) {
    return std::isfinite(value) ? Json(value) : Json(nullptr);
}

Json limits_json(const Limits& limits) {
    return {{"lower", bound(limits.lower)},
            {"upper", bound(limits.upper)},
            {"lower_open", limits.lower_open},
            {"upper_open", limits.upper_open},
            {"zero_excluded", limits.zero_excluded}};
}

template <class Parameters> Json parameters_json(const Parameters& parameters) {
    Json list = Json::array();
    for (const Parameter& p : parameters) {
        list.push_back({{"symbol", p.symbol},
                        {"meaning", p.meaning},
                        {"trait", trait_name(p.trait)},
                        {"reference", p.trait == Trait::reference},
                        {"limits", limits_json(p.limits)},
                        {"dimension", {{"x", p.dimension.x}, {"y", p.dimension.y}, {"x2", p.dimension.x2}}}});
    }
    return list;
}

std::vector<std::string_view> words(std::string_view list) {
    std::vector<std::string_view> result;
    while (!list.empty()) {
        const std::size_t comma = std::min(list.find(", "), list.size());
        result.push_back(list.substr(0, comma));
        list.remove_prefix(std::min(comma + 2, list.size()));
    }
    return result;
}

} // namespace

Json describe_json(const host::Model& model) {
    const Page& page = *model.page();
    Json json = {{"name", model.name()},
                 {"family", page.family},
                 {"title", page.title},
                 {"file", page.file},
                 {"inputs", model.inputs()},
                 {"outputs", model.outputs()},
                 {"default_parameters", model.default_size()},
                 {"analytic_derivatives", model.analytic()},
                 {"replicated", model.replicated()},
                 {"implicit", model.implicit()},
                 {"paired", page.paired},
                 {"reserved", model.reserved()}};
    if (!page.reserved) {
        json["formula"] = page.formula;
        json["latex"] = latex(page);
        json["parameters"] = parameters_json(page.parameters);
        json["block"] = parameters_json(page.block);
        json["block_name"] = page.block_name;
        json["first_block"] = page.first_block;
        json["most_blocks"] = page.most_blocks;
        json["components"] = page.components;
        json["x"] = Json::array();
        for (const Limits& limits : page.x) json["x"].push_back(limits_json(limits));
        const Typical& typical = page.typical;
        json["typical"] = {{"parameters", std::vector(typical.parameters.begin(), typical.parameters.end())},
                           {"x", {typical.from, typical.to}},
                           {"x2", {typical.from2, typical.to2}}};
        json["scales"] = {{"x", page.scales == Scales::both || page.scales == Scales::x_only},
                          {"y", page.scales == Scales::both || page.scales == Scales::y_only}};
        json["departures"] = Json::array();
        for (const Departure& d : page.departures) {
            json["departures"].push_back({{"slot", d.slot}, {"where", d.where}});
        }
        json["true_derivatives"] = page.true_derivatives;
        json["same_as"] = page.same_as;
        json["known_as"] = words(page.known_as);
        json["source"] = page.source;
    }
    json["notes"] = page.notes;
    return json;
}

std::string parameter_count(const host::Model& model) {
    if (!model.replicated()) return fmt::format("{}", model.default_size());
    const Page& text = *model.page();
    const std::string per = fmt::format("{} per {}", text.block.size(), text.block_name);
    return text.parameters.empty() ? per : fmt::format("{} + {}", text.parameters.size(), per);
}

} // namespace ansatz::tools
