// SPDX-License-Identifier: GPL-3.0-or-later
#include "util/utf16.h"

#include "util/text.h"

namespace kelvra::util {

namespace {

constexpr char32_t HighSurrogates = 0xD800;  // to 0xDBFF
constexpr char32_t LowSurrogates = 0xDC00;   // to 0xDFFF
constexpr char32_t AboveUnits = 0x10000;     // from here on two units
constexpr char32_t Replacement = 0xFFFD;

bool IsHigh(char16_t unit) {
    return unit >= HighSurrogates && unit < LowSurrogates;
}
bool IsLow(char16_t unit) {
    return unit >= LowSurrogates && unit < LowSurrogates + 0x400;
}

void Append(std::u16string& text, char32_t point) {
    if (point < AboveUnits) {
        text += static_cast<char16_t>(point);
        return;
    }
    point -= AboveUnits;
    text += static_cast<char16_t>(HighSurrogates + (point >> 10));
    text += static_cast<char16_t>(LowSurrogates + (point & 0x3FF));
}

void Append(std::string& text, char32_t point) {
    const auto follow = [&](int shift) {
        text += static_cast<char>(0x80 | (point >> shift & 0x3F));
    };
    if (point < 0x80) {
        text += static_cast<char>(point);
    } else if (point < 0x800) {
        text += static_cast<char>(0xC0 | point >> 6);
        follow(0);
    } else if (point < AboveUnits) {
        text += static_cast<char>(0xE0 | point >> 12);
        follow(6);
        follow(0);
    } else {
        text += static_cast<char>(0xF0 | point >> 18);
        follow(12);
        follow(6);
        follow(0);
    }
}

}  // namespace

std::u16string Utf16(std::string_view utf8) {
    const std::string valid = ShownText(utf8);
    std::u16string text;
    text.reserve(valid.size());
    for (std::size_t i = 0; i < valid.size();) {
        const auto lead = static_cast<unsigned char>(valid[i++]);
        const int following = lead < 0x80 ? 0 : lead < 0xE0 ? 1 : lead < 0xF0 ? 2 : 3;
        char32_t point = following == 0 ? lead : lead & (0x3F >> following);
        for (int left = following; left > 0; --left)
            point = point << 6 | (static_cast<unsigned char>(valid[i++]) & 0x3F);
        Append(text, point);
    }
    return text;
}

std::string Utf8(std::u16string_view utf16) {
    std::string text;
    text.reserve(utf16.size());
    for (std::size_t i = 0; i < utf16.size(); ++i) {
        const char16_t unit = utf16[i];
        const bool pair = IsHigh(unit) && i + 1 < utf16.size() && IsLow(utf16[i + 1]);
        if (pair)
            Append(text,
                   AboveUnits + ((unit - HighSurrogates) << 10) + (utf16[++i] - LowSurrogates));
        else
            Append(text, IsHigh(unit) || IsLow(unit) ? Replacement : char32_t{unit});
    }
    return text;
}

}  // namespace kelvra::util
