// When two names of models are the same.
#pragma once

#ifdef _WIN32
#define WIN32_LEAN_AND_MEAN
#include <windows.h>
#endif

namespace ansatz {

#ifdef _WIN32
inline bool same_name(const char* a, const char* b) {
    return lstrcmpiA(a, b) == 0;
}
#else
constexpr char folded(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

/// In any mix of upper and lower case.
constexpr bool same_name(const char* a, const char* b) {
    for (; folded(*a) == folded(*b); ++a, ++b) {
        if (*a == '\0') return true;
    }
    return false;
}
#endif

} // namespace ansatz
