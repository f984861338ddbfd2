// When two names of models are the same.
#pragma once

#ifdef _WIN32
#define WIN32_LEAN_AND_MEAN
#include <windows.h>
#endif

#include <algorithm>
#include <string_view>

namespace ansatz {

#ifdef _WIN32
inline bool equal_ignoring_case(const char* a, const char* b) {
    return lstrcmpiA(a, b) == 0;
}
#else
/// Do two names agree in any mix of upper and lower case?
constexpr bool equal_ignoring_case(std::string_view a, std::string_view b) {
    const auto folded = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; };
    return std::ranges::equal(a, b, {}, folded, folded);
}
#endif

} // namespace ansatz
