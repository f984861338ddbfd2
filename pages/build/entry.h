// What a model's last lines make in the library of pages: the page. The law itself is compiled and left out.
#pragma once

#include "protocol/routine.h"

#include <ansatz/page.hpp>

namespace ansatz {

/// Where the page stands: ".../src/models/FAMILY/file.cpp".
constexpr Page located(Page page, std::string_view row, std::string_view file) {
    page.name = row;
    page.file = file.substr(file.rfind("src/models/"));
    page.family = page.file.substr(11, page.file.rfind('/') - 11);
    return page;
}

} // namespace ansatz

#define ANSATZ_MODEL(name, ...) [[maybe_unused]] constexpr auto ansatz_served_##name = &__VA_ARGS__::serve;

#define ANSATZ_PAGE(name, ...)                                                                                 \
    extern "C" const ansatz::Page ansatz_page_##name;                                                          \
    constexpr ansatz::Page ansatz_page_##name = ansatz::located(ansatz::Page{__VA_ARGS__}, #name, __FILE__);
