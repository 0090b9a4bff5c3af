// SPDX-License-Identifier: GPL-3.0-or-later
// Where the lines of a profile text end.
#pragma once

#include <cstddef>
#include <string_view>

namespace kelvra::platform {

inline bool IsLineBreak(char c) {
    return c == '\r' || c == '\n';
}

// From within a line. Written as a loop because the library's search for one of several characters
// is several times slower.
inline std::size_t EndOfLine(std::string_view text, std::size_t at) {
    while (at < text.size() && !IsLineBreak(text[at])) ++at;
    return at;
}

// From the end of a line to the beginning of the next one.
inline std::size_t BehindLineBreak(std::string_view text, std::size_t at) {
    if (at < text.size() && text[at] == '\r') ++at;
    if (at < text.size() && text[at] == '\n') ++at;
    return at;
}

}  // namespace kelvra::platform
