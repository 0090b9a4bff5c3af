// SPDX-License-Identifier: GPL-3.0-or-later
// Writes one JSON value on one line: keys in the order of the calls, numbers as the shortest
// decimals that read back the same.
#pragma once

#include <concepts>
#include <cstdint>
#include <string>
#include <string_view>

#include "controls/colours.h"

namespace kelvra::console {

class JsonLine {
public:
    JsonLine& BeginObject() { return Begin('{'); }
    JsonLine& EndObject() { return End('}'); }
    JsonLine& BeginList() { return Begin('['); }
    JsonLine& EndList() { return End(']'); }
    JsonLine& Key(std::string_view key);

    JsonLine& Value(bool value) { return Raw(value ? "true" : "false"); }
    JsonLine& Value(double value);  // null if it is not finite
    template <std::integral Int>
    JsonLine& Value(Int value) {
        return Raw(std::to_string(value));
    }
    // Bytes that are not valid UTF-8 become U+FFFD.
    JsonLine& Value(std::string_view text);
    JsonLine& Value(const std::string& text) { return Value(std::string_view(text)); }
    JsonLine& Value(const char* text) { return Value(std::string_view(text)); }
    JsonLine& Null() { return Raw("null"); }
    JsonLine& Colour(controls::Colour colour);  // "#RRGGBB"

    template <class T>
    JsonLine& Member(std::string_view key, const T& value) {
        return Key(key).Value(value);
    }

    const std::string& Text() const { return text_; }

private:
    JsonLine& Begin(char bracket);
    JsonLine& End(char bracket);
    JsonLine& Raw(std::string_view value);
    void Separate();

    std::string text_;
    bool needsComma_ = false;
};

}  // namespace kelvra::console
