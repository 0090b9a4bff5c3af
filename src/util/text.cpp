// SPDX-License-Identifier: GPL-3.0-or-later
#include "util/text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>

namespace kelvra::util {

namespace {

char Upper(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}
char Lower(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

template <class Unwanted>
std::string_view TrimWhere(std::string_view text, Unwanted unwanted) {
    while (!text.empty() && unwanted(text.front())) text.remove_prefix(1);
    while (!text.empty() && unwanted(text.back())) text.remove_suffix(1);
    return text;
}

// The bytes that may follow a lead byte in valid UTF-8: how many, and the range of the first (which
// excludes overlong forms, surrogates and everything above U+10FFFF).
struct Utf8Lead {
    unsigned char first, last;
    int following;
    unsigned char low, high;
};
constexpr Utf8Lead Utf8Leads[] = {
    {0x00, 0x7F, 0, 0, 0},       {0xC2, 0xDF, 1, 0x80, 0xBF}, {0xE0, 0xE0, 2, 0xA0, 0xBF},
    {0xE1, 0xEC, 2, 0x80, 0xBF}, {0xED, 0xED, 2, 0x80, 0x9F}, {0xEE, 0xEF, 2, 0x80, 0xBF},
    {0xF0, 0xF0, 3, 0x90, 0xBF}, {0xF1, 0xF3, 3, 0x80, 0xBF}, {0xF4, 0xF4, 3, 0x80, 0x8F},
};

// Length of the valid sequence at the start of the bytes, 0 if there is none.
std::size_t Utf8Length(std::string_view bytes) {
    const auto at = [&](std::size_t i) { return static_cast<unsigned char>(bytes[i]); };
    const auto* lead = std::find_if(std::begin(Utf8Leads), std::end(Utf8Leads), [&](const auto& l) {
        return at(0) >= l.first && at(0) <= l.last;
    });
    if (lead == std::end(Utf8Leads)) return 0;
    const auto length = static_cast<std::size_t>(lead->following) + 1;
    if (bytes.size() < length) return 0;
    for (std::size_t i = 1; i < length; ++i) {
        const unsigned char low = i == 1 ? lead->low : 0x80;
        const unsigned char high = i == 1 ? lead->high : 0xBF;
        if (at(i) < low || at(i) > high) return 0;
    }
    return length;
}

}  // namespace

std::string_view TrimSpaces(std::string_view text) {
    return TrimWhere(text, [](char c) { return c == ' '; });
}

std::string_view TrimBlanks(std::string_view text) {
    return TrimWhere(text, [](char c) { return c == ' ' || c == '\t'; });
}

std::string CleanText(std::string_view text) {
    return std::string(TrimWhere(TrimSpaces(text), [](char c) { return c == '\r' || c == '\n'; }));
}

std::string_view TrimLineBreaks(std::string_view text) {
    const auto last = text.find_last_not_of("\r\n");
    return last == std::string_view::npos ? std::string_view{} : text.substr(0, last + 1);
}

std::string UpperCase(std::string_view text) {
    std::string result(text);
    std::transform(result.begin(), result.end(), result.begin(), Upper);
    return result;
}

std::string LowerCase(std::string_view text) {
    std::string result(text);
    std::transform(result.begin(), result.end(), result.begin(), Lower);
    return result;
}

// Compares from the end: names in one file often begin alike.
bool EqualNoCase(std::string_view a, std::string_view b) {
    return a.size() == b.size() && std::equal(a.rbegin(), a.rend(), b.rbegin(),
                                              [](char x, char y) { return Lower(x) == Lower(y); });
}

SplitText SplitAtFirst(std::string_view text, char separator) {
    const auto position = text.find(separator);
    if (position == std::string_view::npos) return {text, {}, false};
    return {text.substr(0, position), text.substr(position + 1), true};
}

std::string TextOfBuffer(std::string_view buffer) {
    const auto end = buffer.find('\0');
    if (end != std::string_view::npos) return std::string(buffer.substr(0, end));
    const auto last = buffer.find_last_not_of(' ');
    return std::string(last == std::string_view::npos ? std::string_view{}
                                                      : buffer.substr(0, last + 1));
}

std::string ShownText(std::string_view bytes) {
    std::string shown;
    shown.reserve(bytes.size());
    while (!bytes.empty()) {
        const std::size_t length = Utf8Length(bytes);
        if (length == 0) {
            shown += "\xEF\xBF\xBD";
            bytes.remove_prefix(1);
        } else {
            shown += bytes.substr(0, length);
            bytes.remove_prefix(length);
        }
    }
    return shown;
}

std::string HexText(std::uint32_t value) {
    std::array<char, 8> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value, 16).ptr;
    return UpperCase({digits.data(), end});
}

std::string CsvField(std::string_view text) {
    if (text.find_first_of(",;\"\r\n") == std::string_view::npos) return std::string(text);
    std::string field = "\"";
    for (const char c : text) field.append(c == '"' ? 2 : 1, c);
    return field + '"';
}

}  // namespace kelvra::util
