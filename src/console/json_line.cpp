// SPDX-License-Identifier: GPL-3.0-or-later
#include "console/json_line.h"

#include <cmath>

#include "util/number_text.h"
#include "util/text.h"

namespace kelvra::console {

namespace {

// A byte in hexadecimal digits, for colours and control characters.
std::string HexByte(std::uint32_t byte) {
    const std::string digits = util::HexText(byte & 0xFF);
    return digits.size() < 2 ? "0" + digits : digits;
}

void AppendEscaped(std::string& text, char c) {
    switch (c) {
        case '"':
            text += "\\\"";
            break;
        case '\\':
            text += "\\\\";
            break;
        case '\n':
            text += "\\n";
            break;
        case '\r':
            text += "\\r";
            break;
        case '\t':
            text += "\\t";
            break;
        default:
            if (static_cast<unsigned char>(c) < 0x20)
                text += "\\u00" + HexByte(static_cast<unsigned char>(c));
            else
                text += c;
    }
}

}  // namespace

void JsonLine::Separate() {
    if (needsComma_) text_ += ',';
    needsComma_ = false;
}

JsonLine& JsonLine::Begin(char bracket) {
    Separate();
    text_ += bracket;
    return *this;
}

JsonLine& JsonLine::End(char bracket) {
    text_ += bracket;
    needsComma_ = true;
    return *this;
}

JsonLine& JsonLine::Key(std::string_view key) {
    Value(key);
    text_ += ':';
    needsComma_ = false;
    return *this;
}

JsonLine& JsonLine::Raw(std::string_view value) {
    Separate();
    text_ += value;
    needsComma_ = true;
    return *this;
}

JsonLine& JsonLine::Value(double value) {
    return std::isfinite(value) ? Raw(util::ShortestNumberText(value)) : Null();
}

JsonLine& JsonLine::Value(std::string_view text) {
    std::string quoted = "\"";
    for (const char c : util::ShownText(text)) AppendEscaped(quoted, c);
    return Raw(quoted + "\"");
}

JsonLine& JsonLine::Colour(controls::Colour colour) {
    return Value("#" + HexByte(colour) + HexByte(colour >> 8) + HexByte(colour >> 16));
}

}  // namespace kelvra::console
