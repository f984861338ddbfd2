// Text of the user's, made fit to be shown: names, cells and file names may hold any byte.
#pragma once

#include <string>
#include <string_view>

namespace ansatz::host {

/// For a terminal: control characters and bytes that are not UTF-8 are written as \x1b.
std::string printable(std::string_view text);

/// For a picture: control characters, noncharacters and bytes that are not UTF-8 become U+FFFD each.
std::string drawable(std::string_view text);

} // namespace ansatz::host
