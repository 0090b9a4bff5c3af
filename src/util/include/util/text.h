// SPDX-License-Identifier: GPL-3.0-or-later
// Small operations on texts. A text is bytes: mostly UTF-8, but whatever a file or a driver sent
// is kept as it came. Letters are told apart in ASCII alone, whatever the locale.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace kelvra::util {

// Without blanks (spaces alone) at both ends.
std::string_view TrimSpaces(std::string_view text);

// Without spaces and tabs at both ends, as the rules of profile strings have it.
std::string_view TrimBlanks(std::string_view text);

// Surrounding spaces removed, then every CR and LF at both ends.
std::string CleanText(std::string_view text);

// The text without its CRs and LFs at the end.
std::string_view TrimLineBreaks(std::string_view text);

std::string UpperCase(std::string_view text);
std::string LowerCase(std::string_view text);
bool EqualNoCase(std::string_view a, std::string_view b);

// Up to the first occurrence of the separator, and what follows it (nothing without one).
struct SplitText {
    std::string_view before;
    std::string_view after;
    bool found = false;
};
SplitText SplitAtFirst(std::string_view text, char separator);

// A buffer that a library has filled: up to its first NUL, or without one up to its trailing
// blanks.
std::string TextOfBuffer(std::string_view buffer);

// Valid UTF-8 for people to read: each byte that belongs to no valid sequence becomes U+FFFD.
std::string ShownText(std::string_view bytes);

// Bytes as upper-case hexadecimal digits of a 32-bit word, without leading zeros: 255 -> "FF".
std::string HexText(std::uint32_t value);

}  // namespace kelvra::util
