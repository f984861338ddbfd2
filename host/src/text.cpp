#include <ansatz/host/text.hpp>

#include <fmt/format.h>

#include <cstddef>

namespace ansatz::host {
namespace {

struct Character {
    std::size_t size; ///< in bytes
    char32_t code;
};
constexpr char32_t malformed = 0xffffffff;

/// The character in front of a text that is not empty; one malformed byte where there is none.
Character front(std::string_view text) {
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const unsigned lead = byte(0);
    if (lead < 0x80) return {1, lead};
    const std::size_t size = lead >= 0xf0 ? 4 : lead >= 0xe0 ? 3 : 2;
    if (lead < 0xc2 || lead > 0xf4 || size > text.size()) return {1, malformed};
    char32_t code = lead & (0xffU >> (size + 1));
    for (std::size_t i = 1; i < size; ++i) {
        if ((byte(i) & 0xc0U) != 0x80) return {1, malformed};
        code = code << 6U | (byte(i) & 0x3fU);
    }
    constexpr char32_t smallest[] = {0, 0, 0x80, 0x800, 0x10000};
    const bool surrogate = code >= 0xd800 && code < 0xe000;
    if (code < smallest[size] || code > 0x10ffff || surrogate) return {1, malformed};
    return {size, code};
}

bool is_shown(char32_t code) {
    return code != malformed && code >= 0x20 && (code < 0x7f || code >= 0xa0);
}

bool is_noncharacter(char32_t code) {
    return (code & 0xfffeU) == 0xfffe || (code >= 0xfdd0 && code < 0xfdf0);
}

} // namespace

std::string printable(std::string_view text) {
    std::string result;
    while (!text.empty()) {
        const auto [size, code] = front(text);
        for (const char c : text.substr(0, size)) {
            result +=
                is_shown(code) ? std::string(1, c) : fmt::format("\\x{:02x}", static_cast<unsigned char>(c));
        }
        text.remove_prefix(size);
    }
    return result;
}

std::string drawable(std::string_view text) {
    std::string result;
    while (!text.empty()) {
        const auto [size, code] = front(text);
        result += is_shown(code) && !is_noncharacter(code) ? text.substr(0, size) : "\xef\xbf\xbd";
        text.remove_prefix(size);
    }
    return result;
}

} // namespace ansatz::host
