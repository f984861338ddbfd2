#include <ansatz/host/model.hpp>

#include <fmt/format.h>
#include <fmt/ranges.h>

#include <algorithm>
#include <cctype>
#include <cstdint>
#include <limits>
#include <numeric>
#include <utility>

namespace ansatz::host {
namespace {

std::string lower(std::string_view text) {
    std::string result(text);
    for (char& c : result) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return result;
}

/// Levenshtein's distance.
std::size_t edit_distance(std::string_view a, std::string_view b) {
    std::vector<std::size_t> row(b.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (std::size_t i = 0; i < a.size(); ++i) {
        std::size_t diagonal = std::exchange(row[0], i + 1);
        for (std::size_t j = 0; j < b.size(); ++j) {
            const std::size_t replaced = diagonal + (a[i] != b[j]);
            diagonal = std::exchange(row[j + 1], std::min({row[j + 1] + 1, row[j] + 1, replaced}));
        }
    }
    return row.back();
}

/// A block's number is then set apart: the w1 of peak 2 is w1_2.
bool digit_last(std::string_view symbol) {
    return !symbol.empty() && std::isdigit(static_cast<unsigned char>(symbol.back()));
}

std::string unknown_model_message(const std::string& name, const std::vector<std::string>& nearest) {
    if (nearest.empty()) return fmt::format("unknown model '{}'", name);
    return fmt::format("unknown model '{}'; did you mean {}?", name, fmt::join(nearest, ", "));
}

} // namespace

UnknownModel::UnknownModel(const std::string& name, std::vector<std::string> nearest)
    : Error(unknown_model_message(name, nearest)), nearest_(std::move(nearest)) {}

const std::vector<std::string>& model_names() {
    static const auto names = [] {
        static std::vector<std::string> lines; // the callback has no other way out
        FuncTest(
            1, nullptr,
            [](std::uint32_t, const char* line) {
                constexpr std::string_view prefix = "type ";
                const std::string_view text = line;
                if (text.starts_with(prefix)) lines.emplace_back(text.substr(prefix.size()));
            },
            nullptr);
        return std::move(lines);
    }();
    return names;
}

std::vector<std::string> nearest_names(std::string_view name, std::size_t most) {
    const std::string wanted = lower(name);
    std::vector<std::pair<std::size_t, std::string>> candidates;
    for (const std::string& candidate : model_names()) {
        const std::string known = lower(candidate);
        const std::size_t distance = edit_distance(wanted, known);
        const bool contained = wanted.size() >= 3 && known.find(wanted) != std::string::npos;
        if (distance <= std::max<std::size_t>(2, wanted.size() / 3)) {
            candidates.emplace_back(2 * distance, candidate);
        } else if (contained) {
            candidates.emplace_back(distance + 2, candidate);
        }
    }
    std::ranges::stable_sort(candidates, {}, [](const auto& candidate) { return candidate.first; });
    std::vector<std::string> result;
    for (const auto& [distance, candidate] : candidates) {
        if (result.size() < most) result.push_back(candidate);
    }
    return result;
}

Model::Model(std::string name, FitFunction routine, int independent, int dependent, int parameters,
             const Page* page)
    : name_(std::move(name)), function_(routine), inputs_(independent), outputs_(dependent),
      default_size_(parameters), page_(page) {
    if (page && !page->reserved) {
        inputs_ = std::max(inputs_, page->inputs);
        if (page->block.empty()) default_size_ = static_cast<int>(page->parameters.size());
    }
    double nothing[2] = {};
    analytic_ = function_(FF_QUERY_DERIV, 0, default_size_, 0, 0, nothing, 0, nothing, nothing, nothing) == 1 &&
                (!page || page->true_derivatives);
}

Model Model::custom(std::string name, FitFunction routine, int independent, int dependent, int parameters,
                    const Page* page) {
    return {std::move(name), routine, independent, dependent, parameters, page};
}

std::optional<Model> Model::lookup(std::string_view name) {
    std::uint16_t independent = 0, dependent = 0, parameters = 0;
    const std::string text(name);
    const FitFunction routine = Get_Func(text.c_str(), &independent, &dependent, &parameters, nullptr);
    if (!routine) return std::nullopt;
    const auto known = std::ranges::find_if(model_names(), [&](const auto& n) { return same_name(n, name); });
    const std::string& spelling = known == model_names().end() ? text : *known;
    Model model(spelling, routine, independent, dependent, parameters, find_page(spelling));
    model.batch_ = ansatz_batch_find(spelling.c_str());
    return model;
}

Model Model::find(std::string_view name) {
    if (auto model = lookup(name)) return *model;
    throw UnknownModel(std::string(name), nearest_names(name));
}

bool Model::replicated() const {
    return page_ && !page_->block.empty();
}

bool Model::implicit() const {
    return page_ && page_->implicit;
}

bool Model::reserved() const {
    return page_ && page_->reserved;
}

int Model::blocks(int n) const {
    if (!replicated()) return 0;
    const int lead = static_cast<int>(page_->parameters.size()), size = static_cast<int>(page_->block.size());
    return std::max(0, (n - lead) / size);
}

int Model::slots_used(int n) const {
    return std::max(n, page_ ? layout_of(*page_).slots(n) : default_size_);
}

int Model::components(int n) const {
    return outputs() == 1 && replicated() && page_->components ? blocks(n) : 0;
}

void Model::require_size(int n) const {
    constexpr int most_parameters = std::numeric_limits<std::int16_t>::max(); // routines read no more bits
    if (reserved()) throw Error(fmt::format("{} is a reserved name that computes nothing", name_));
    if (n > most_parameters) {
        throw Error(fmt::format("{} takes at most {} parameters, {} given", name_, most_parameters, n));
    }
    if (!page_) {
        if (n >= default_size_) return;
        throw Error(fmt::format("{} needs {} parameters, {} given", name_, default_size_, n));
    }
    const auto symbols = [](const auto& parameters) {
        std::vector<std::string_view> list;
        for (const Parameter& parameter : parameters) list.push_back(parameter.symbol);
        return list;
    };
    const Page& text = *page_;
    if (!replicated()) {
        if (n == default_size_) return;
        throw Error(fmt::format("{} needs {} parameters ({}), {} given", name_, default_size_,
                                fmt::join(symbols(text.parameters), ", "), n));
    }
    const int lead = static_cast<int>(text.parameters.size()), size = static_cast<int>(text.block.size());
    const int count = blocks(n);
    if (count >= 1 && lead + count * size == n && (text.most_blocks == 0 || count <= text.most_blocks)) return;
    const std::string leading =
        lead == 0 ? "" : fmt::format("{} ({}), then ", lead, fmt::join(symbols(text.parameters), ", "));
    const std::string limit =
        text.most_blocks == 0 ? "" : fmt::format(", at most {} of them", text.most_blocks);
    throw Error(fmt::format("{} needs {}{} per {} ({}){}: {} or {} parameters and so on, {} given", name_,
                            leading, size, text.block_name, fmt::join(symbols(text.block), ", "), limit,
                            lead + size, lead + 2 * size, n));
}

std::vector<Slot> Model::slots(int n) const {
    std::vector<Slot> result;
    const auto add = [&](std::string_view symbol, std::string_view meaning, Trait trait) {
        std::string number = fmt::format("P{}", result.size() + 1);
        result.push_back({number, symbol.empty() ? number : std::string(symbol), std::string(meaning), trait});
    };
    if (page_ && !page_->reserved) {
        for (const Parameter& p : page_->parameters) add(p.symbol, p.meaning, p.trait);
        const int count = blocks(n);
        for (int block = 0; block < count; ++block) {
            for (const Parameter& p : page_->block) {
                if (count == 1 && page_->first_block == 1) {
                    add(p.symbol, p.meaning, p.trait);
                } else {
                    add(fmt::format("{}{}{}", p.symbol, digit_last(p.symbol) ? "_" : "",
                                    block + page_->first_block),
                        p.meaning, p.trait);
                }
            }
        }
    }
    while (static_cast<int>(result.size()) < n) add({}, {}, Trait::constant);
    return result;
}

int Model::slot_index(const std::vector<Slot>& slots, std::string_view name) {
    for (auto matches : {+[](std::string_view a, std::string_view b) { return a == b; }, &same_name}) {
        for (std::size_t i = 0; i < slots.size(); ++i) {
            if (matches(slots[i].symbol, name) || matches(slots[i].number, name)) return static_cast<int>(i);
        }
    }
    std::vector<std::string> known;
    for (const Slot& slot : slots) {
        known.push_back(slot.symbol == slot.number ? slot.number
                                                   : fmt::format("{} or {}", slot.number, slot.symbol));
    }
    throw Error(fmt::format("unknown parameter '{}'; the parameters are {}", name, fmt::join(known, ", ")));
}

} // namespace ansatz::host
