// SPDX-License-Identifier: GPL-3.0-or-later
// Small operations on text. Text is bytes: mostly UTF-8, but bytes from a file or a driver are kept
// as they came. Only ASCII letters have upper and lower case, in every locale.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace kelvra::util {

// Without the spaces at both ends.
std::string_view TrimSpaces(std::string_view text);

// Without the spaces and tabs at both ends, as profile strings are trimmed.
std::string_view TrimBlanks(std::string_view text);

// Surrounding spaces removed, then every CR and LF at both ends.
std::string CleanText(std::string_view text);

// The text without its CRs and LFs at the end.
std::string_view TrimLineBreaks(std::string_view text);

std::string UpperCase(std::string_view text);
std::string LowerCase(std::string_view text);
bool EqualNoCase(std::string_view a, std::string_view b);

// The text up to the first separator, and what follows it (nothing if there is no separator).
struct SplitText {
    std::string_view before;
    std::string_view after;
    bool found = false;
};
SplitText SplitAtFirst(std::string_view text, char separator);

// The text in a buffer that a library has filled: up to the first NUL, or without its trailing
// spaces if there is no NUL.
std::string TextOfBuffer(std::string_view buffer);

// Valid UTF-8 for display: each byte that belongs to no valid sequence becomes U+FFFD.
std::string ShownText(std::string_view bytes);

// A field of comma- or semicolon-separated values (RFC 4180): in quotes if it has a separator, a
// quote or a line break.
std::string CsvField(std::string_view text);

// The value in upper-case hexadecimal digits, without leading zeros: 255 -> "FF".
std::string HexText(std::uint32_t value);

}  // namespace kelvra::util
