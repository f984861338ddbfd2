// The pages of all rows, and the search for one.

#include <ansatz/page.hpp>

#include <string>
#include <vector>

#define ENTRY(name, nIndep, nDep, nParams, routine) extern "C" const ansatz::Page ansatz_page_##name;
#include "catalogue/models.inc"

namespace ansatz {
namespace {

bool same_letter(char a, char b) {
    const auto folded = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; };
    return folded(a) == folded(b);
}

} // namespace

bool same_name(std::string_view a, std::string_view b) {
    return std::ranges::equal(a, b, same_letter);
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

std::span<const std::string_view> families() {
    static const std::vector<std::string_view> all = [] {
        std::vector<std::string_view> names;
        for (const Page& page : pages()) {
            if (std::ranges::find(names, page.family) == names.end()) names.push_back(page.family);
        }
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
