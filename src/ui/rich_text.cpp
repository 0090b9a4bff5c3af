// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/rich_text.h"

#include <algorithm>
#include <iterator>

#include "util/number_text.h"
#include "util/utf16.h"

namespace kelvra::ui {

namespace {

struct ColourCode {
    controls::Colour colour = 0;
    std::string_view code;
};

constexpr ColourCode TextCodes[] = {
    {controls::Red, "\\cf2"},  {controls::Green, "\\cf3"}, {controls::Grey, "\\cf4"},
    {controls::Blue, "\\cf4"}, {0x00C000, "\\cf5"},
};
constexpr std::string_view OtherText = "\\cf1";

constexpr ColourCode HighlightCodes[] = {
    {0, "\\highlight1"},
    {controls::Red, "\\highlight2"},
    {controls::Green, "\\highlight3"},
    {controls::Blue, "\\highlight4"},
    {controls::Grey, "\\highlight5"},
};

template <std::size_t Count>
std::string_view CodeOf(const ColourCode (&codes)[Count], controls::Colour colour,
                        std::string_view other) {
    const auto* found = std::find_if(std::begin(codes), std::end(codes),
                                     [&](const ColourCode& c) { return c.colour == colour; });
    return found == std::end(codes) ? other : found->code;
}

std::string_view AlignmentCode(Alignment alignment) {
    constexpr std::string_view codes[] = {"\\ql", "\\qr", "\\qc"};
    return codes[static_cast<int>(alignment)];
}

std::string Escaped(std::string_view text) {
    std::string escaped;
    for (const char16_t unit : util::Utf16(text)) {
        if (unit == u'\\' || unit == u'{' || unit == u'}') escaped += '\\';
        if (unit < 0x80)
            escaped += static_cast<char>(unit);
        else
            escaped += "\\u" + util::TrimmedNumberText(static_cast<std::int16_t>(unit)) + "?";
    }
    return escaped;
}

}  // namespace

std::string RtfBeginning() {
    return "{\\colortbl ;\\red0\\green0\\blue0;\\red255\\green0\\blue0;\\red0\\green255\\blue0;"
           "\\red127\\green127\\blue127;\\red0\\green127\\blue0;}"
           "{\\fonttbl{\\f0 Lucida Console;}}\\f0";
}

void AddRtfLine(std::string& document, std::string_view text, const RtfLook& look) {
    document += '{';
    if (look.bold) document += "\\b";
    if (look.italic) document += "\\i";
    if (look.underline) document += "\\ul";
    document += CodeOf(TextCodes, look.colour, OtherText);
    if (look.highlight) document += CodeOf(HighlightCodes, *look.highlight, {});
    document += AlignmentCode(look.alignment);
    document += ' ';
    document += Escaped(text);
    if (look.newLine) document += "\\par";
    document += '}';
}

std::string ShownRtf(const std::string& document) {
    return "{\\plain\\fs20" + document + "}";
}

}  // namespace kelvra::ui
