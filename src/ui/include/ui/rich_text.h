// SPDX-License-Identifier: GPL-3.0-or-later
// Writing rich text: a document is built line by line, and then shown in a panel.
// controls/rtf_reader.h reads it.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "controls/colours.h"

namespace kelvra::ui {

enum class Alignment { Left, Right, Centre };

struct RtfLook {
    bool newLine = true;  // a line that ends here
    bool bold = false, italic = false, underline = false;
    controls::Colour colour = 0;  // those that the document has; any other is black
    Alignment alignment = Alignment::Left;
    std::optional<controls::Colour> highlight{};  // the same; any other is none
};

// What each document begins with: its colours and its font.
std::string RtfBeginning();

// Appends a text with its look. The text may hold any bytes.
void AddRtfLine(std::string& document, std::string_view text, const RtfLook& look = {});

// What a panel shows of the document.
std::string ShownRtf(const std::string& document);

}  // namespace kelvra::ui
