#include <ansatz/host/description.hpp>

#include <ansatz/host/model.hpp>

#include "../descriptions/families.hpp"

#include <map>

namespace ansatz::host {
namespace {

struct CaselessOrder {
    using is_transparent = void;
    bool operator()(std::string_view a, std::string_view b) const {
        const auto folded = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; };
        return std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end(),
                                            [&](char l, char r) { return folded(l) < folded(r); });
    }
};

} // namespace

std::span<const Family> families() {
    namespace d = descriptions;
    static const std::vector<Family> all = {d::peaks(),
                                            d::sigmoids(),
                                            d::growth(),
                                            d::exponentials(),
                                            d::handbook(),
                                            d::handbook_asymptotic(),
                                            d::handbook_one_parameter(),
                                            d::handbook_two_parameter(),
                                            d::handbook_three_parameter(),
                                            d::polynomials(),
                                            d::powers(),
                                            d::distributions(),
                                            d::surfaces(),
                                            d::multi(),
                                            d::testing(),
                                            d::reserved()};
    return all;
}

Described describe(std::string_view name) {
    static const auto index = [] {
        std::map<std::string_view, Described, CaselessOrder> entries;
        for (const Family& family : families()) {
            for (const Description& model : family.models) entries[model.name] = {&model, family.title};
        }
        return entries;
    }();
    const auto found = index.find(name);
    return found == index.end() ? Described{} : found->second;
}

} // namespace ansatz::host
