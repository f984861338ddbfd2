#include "arguments.hpp"

#include <ansatz/host/table.hpp>

#include <fmt/format.h>
#include <fmt/ranges.h>

#include <algorithm>
#include <array>

namespace ansatz::tools {
namespace {

using host::Error;

constexpr std::array list_options = {"--start", "--params", "--x", "--fix", "--free", "--lower", "--upper"};

std::vector<std::string> split(std::string_view text, std::string_view separators) {
    std::vector<std::string> parts;
    while (!text.empty()) {
        const auto end = std::min(text.find_first_of(separators), text.size());
        if (end > 0) parts.emplace_back(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return parts;
}

/// Does this argument continue a list, rather than being an option, a file or a model? A list consists of
/// numbers and of NAME=NUMBER.
bool continues_list(const std::string& argument) {
    const auto parts = split(argument, ",; ");
    return !parts.empty() && !argument.starts_with("--") &&
           std::ranges::all_of(parts, [](std::string_view part) {
               const auto equals = part.find('=');
               return host::parse_number(equals == std::string_view::npos ? part : part.substr(equals + 1))
                   .has_value();
           });
}

} // namespace

std::vector<std::string> attach_lists(const std::vector<std::string>& arguments) {
    std::vector<std::string> result;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        std::string option = arguments[i];
        if (std::ranges::find(list_options, option) == list_options.end()) {
            result.push_back(std::move(option));
            continue;
        }
        std::vector<std::string> values;
        // The first value belongs to the option whatever it looks like, unless it is an option itself.
        while (i + 1 < arguments.size() &&
               (continues_list(arguments[i + 1]) || (values.empty() && !arguments[i + 1].starts_with("-")))) {
            values.push_back(arguments[++i]);
        }
        if (values.empty()) result.push_back(option);
        for (const std::string& value : values) result.push_back(option + "=" + value);
    }
    return result;
}

std::vector<Item> parse_items(const std::vector<std::string>& lists, std::string_view option) {
    std::vector<Item> items;
    for (const std::string& list : lists) {
        for (const std::string& part : split(list, ",; \t")) {
            const auto equals = part.find('=');
            if (equals != std::string::npos) {
                const auto value = host::parse_number(std::string_view(part).substr(equals + 1));
                if (!value || equals == 0) {
                    throw Error(fmt::format("{}: '{}' is not of the form NAME=NUMBER", option, part));
                }
                items.push_back({part.substr(0, equals), value});
            } else if (const auto value = host::parse_number(part)) {
                items.push_back({{}, value});
            } else {
                items.push_back({part, std::nullopt});
            }
        }
    }
    return items;
}

std::vector<double> parameter_values(const host::Model& model, const std::vector<Item>& items,
                                     const std::vector<Item>& also, std::string_view option) {
    const auto plain = std::ranges::count_if(items, [](const Item& item) { return item.name.empty(); });
    for (const Item& item : items) {
        if (!item.value) throw Error(fmt::format("{}: '{}' is not a number", option, item.name));
    }
    if (plain != 0 && plain != static_cast<std::ptrdiff_t>(items.size())) {
        throw Error(fmt::format("{}: give either plain numbers or NAME=NUMBER for every parameter", option));
    }
    std::vector<double> values;
    if (plain != 0 || items.empty()) {
        for (const Item& item : items) values.push_back(*item.value);
        model.require_size(static_cast<int>(values.size()));
        const auto slots = model.slots(static_cast<int>(values.size()));
        for (const Item& item : also) {
            if (!item.value) continue;
            values[static_cast<std::size_t>(host::Model::slot_index(slots, item.name))] = *item.value;
        }
        return values;
    }
    // By name: the smallest number of peaks in which every name exists.
    std::vector<Item> named = items;
    std::ranges::copy_if(also, std::back_inserter(named),
                         [](const Item& item) { return item.value.has_value(); });
    int n = model.default_size();
    if (model.replicated()) {
        const Page& text = *model.page();
        const int lead = static_cast<int>(text.parameters.size()), size = static_cast<int>(text.block.size());
        const auto known = [&](int count) {
            const auto slots = model.slots(lead + count * size);
            return std::ranges::all_of(named, [&](const Item& item) {
                return std::ranges::any_of(slots, [&](const host::Slot& slot) {
                    return same_name(slot.symbol, item.name) || same_name(slot.number, item.name);
                });
            });
        };
        int count = 1;
        while (count < static_cast<int>(named.size()) && !known(count)) ++count;
        n = lead + (known(count) ? count : 1) * size;
    }
    model.require_size(n);
    const auto slots = model.slots(n);
    std::vector<std::optional<double>> given(slots.size());
    for (const Item& item : named) {
        given[static_cast<std::size_t>(host::Model::slot_index(slots, item.name))] = item.value;
    }
    std::vector<std::string> missing;
    for (std::size_t k = 0; k < slots.size(); ++k) {
        if (!given[k]) missing.push_back(slots[k].symbol);
        values.push_back(given[k].value_or(0));
    }
    if (!missing.empty()) throw Error(fmt::format("{}: no value for {}", option, fmt::join(missing, ", ")));
    return values;
}

Eigen::MatrixXd parse_points(const host::Model& model, const std::vector<std::string>& arguments) {
    std::vector<double> numbers;
    for (const std::string& argument : arguments) {
        for (const std::string& tuple : split(argument, "; \t")) {
            const auto parts = split(tuple, ",");
            const auto inputs = static_cast<std::size_t>(model.inputs());
            if (inputs > 1 && parts.size() != inputs) {
                throw Error(fmt::format("--x: {} takes {} x values per point, as in --x {}; '{}' has {}",
                                        model.name(), inputs, inputs == 2 ? "1,2" : "1,2,3", tuple,
                                        parts.size()));
            }
            for (const std::string& part : parts) {
                const auto value = host::parse_number(part);
                if (!value) throw Error(fmt::format("--x: '{}' is not a number", part));
                numbers.push_back(*value);
            }
        }
    }
    using RowMajor = Eigen::Matrix<double, Eigen::Dynamic, Eigen::Dynamic, Eigen::RowMajor>;
    const auto columns = static_cast<Eigen::Index>(model.inputs());
    return Eigen::Map<const RowMajor>(numbers.data(), static_cast<Eigen::Index>(numbers.size()) / columns,
                                      columns);
}

std::vector<std::string> split_words(const std::vector<std::string>& lists) {
    std::vector<std::string> words;
    for (const std::string& list : lists) std::ranges::copy(split(list, ","), std::back_inserter(words));
    return words;
}

} // namespace ansatz::tools
