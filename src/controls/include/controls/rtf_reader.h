// SPDX-License-Identifier: GPL-3.0-or-later
// What a reader sees of a rich text's source: paragraphs of runs with their look. Reads the part of
// RTF that Kelvra writes: groups, \b \i \ul \plain, \cf and \highlight with their colour table, the
// first font, \ql \qr \qc, \par, \uN?, and the escapes \\ \{ \}. Other control words are skipped,
// and so is what is damaged; sizes are the front end's.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "controls/colours.h"

namespace kelvra::controls {

struct RichLook {
    bool bold = false, italic = false, underline = false;
    std::optional<Colour> text, highlight;  // none: as the surroundings have it
    bool operator==(const RichLook&) const = default;
};

struct RichRun {
    std::string text;  // valid UTF-8 without control characters but TAB
    RichLook look;
};

enum class RichAlign { Left, Right, Centre };

struct RichParagraph {
    std::vector<RichRun> runs;  // neighbours differ in look
    RichAlign align = RichAlign::Left;
};

struct RichDocument {
    std::string font;  // empty: none is named
    std::vector<RichParagraph> paragraphs;
};

RichDocument ReadRtf(std::string_view source);

// The text of each paragraph.
std::vector<std::string> RtfLines(std::string_view source);

}  // namespace kelvra::controls
