// The pages of all rows, and the search for one.

#include "catalogue/name.h"

#include <ansatz/page.hpp>

#include <iterator>
#include <string>
#include <utility>
#include <vector>

#define ENTRY(name, nIndep, nDep, nParams, routine) extern "C" const ansatz::Page ansatz_page_##name;
#include "catalogue/models.inc"

namespace ansatz {

bool same_name(std::string_view a, std::string_view b) {
    return equal_ignoring_case(a, b);
}

std::string_view trait_name(Trait trait) {
    switch (trait) {
    case Trait::offset: return "offset";
    case Trait::level: return "level";
    case Trait::ceiling: return "ceiling";
    case Trait::amplitude: return "amplitude";
    case Trait::area: return "area";
    case Trait::slope: return "slope";
    case Trait::coefficient: return "coefficient";
    case Trait::position: return "position";
    case Trait::log_position: return "log_position";
    case Trait::threshold: return "threshold";
    case Trait::width: return "width";
    case Trait::log_width: return "log_width";
    case Trait::time: return "time";
    case Trait::rate: return "rate";
    case Trait::half_point: return "half_point";
    case Trait::period: return "period";
    case Trait::base: return "base";
    case Trait::exponent: return "exponent";
    case Trait::shape: return "shape";
    case Trait::fraction: return "fraction";
    case Trait::phase: return "phase";
    case Trait::angle: return "angle";
    case Trait::correlation: return "correlation";
    case Trait::reference: return "reference";
    case Trait::response: return "response";
    case Trait::inverse_level: return "inverse_level";
    case Trait::log_level: return "log_level";
    case Trait::constant: return "constant";
    }
    return {};
}

std::span<const Page> pages() {
    static const Page all[] = {
#define ENTRY(name, nIndep, nDep, nParams, routine) ansatz_page_##name,
#include "catalogue/models.inc"
    };
    return all;
}

const Page* find_page(std::string_view name) {
    const auto all = pages();
    const auto found = std::ranges::find_if(all, [&](const Page& page) { return same_name(page.name, name); });
    return found == all.end() ? nullptr : &*found;
}

std::string_view latex(const Page& page) {
    static constexpr std::pair<std::string_view, std::string_view> formulas[] = {
#include "latex.inc"
        {"", ""}};
    const auto found =
        std::ranges::find(formulas, page.name, [](const auto& formula) { return formula.first; });
    return found == std::end(formulas) ? std::string_view{} : found->second;
}

std::span<const std::string_view> families() {
    static const std::vector<std::string_view> all = [] {
        std::vector<std::string_view> names;
        for (const Page& page : pages()) {
            if (std::ranges::find(names, page.family) == names.end()) names.push_back(page.family);
        }
        std::ranges::sort(names);
        return names;
    }();
    return all;
}

std::string family_title(std::string_view family) {
    std::string title(family);
    std::ranges::replace(title, '_', ' ');
    if (!title.empty() && title[0] >= 'a' && title[0] <= 'z')
        title[0] = static_cast<char>(title[0] - 'a' + 'A');
    return title;
}

} // namespace ansatz
