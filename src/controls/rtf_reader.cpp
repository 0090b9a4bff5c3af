// SPDX-License-Identifier: GPL-3.0-or-later
// Format: Microsoft, Rich Text Format (RTF), version 1.9.1.
#include "controls/rtf_reader.h"

#include <algorithm>
#include <utility>

#include "util/text.h"
#include "util/utf16.h"

namespace kelvra::controls {

namespace {

bool IsLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}
bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

// Line breaks, too: only \par ends a paragraph.
bool IsControl(char16_t unit) {
    return (unit < 0x20 && unit != u'\t') || unit == 0x7F;
}

// What a group is for: text to show, or a table.
enum class Destination { Text, Colours, Fonts, Skipped };

// What a group's end restores.
struct State {
    RichLook look;
    RichAlign align = RichAlign::Left;
    Destination destination = Destination::Text;
};

class Reader {
public:
    explicit Reader(std::string_view source) : source_(source) {}

    RichDocument Read() {
        while (at_ < source_.size()) Step(source_[at_++]);
        if (!paragraph_.runs.empty() || !pending_.empty() || !units_.empty()) EndParagraph();
        return std::move(document_);
    }

private:
    void Step(char c) {
        if (c == '\\') {
            Control();
        } else if (c == '{') {
            Flush();
            outer_.push_back(now_);
        } else if (c == '}') {
            Flush();
            if (outer_.empty()) return;
            now_ = outer_.back();
            outer_.pop_back();
        } else {
            Plain(c);
        }
    }

    // Behind a backslash: an escape, a word with an optional number and one blank, or another sign.
    void Control() {
        if (at_ == source_.size()) return;
        const std::size_t start = at_;
        while (at_ < source_.size() && IsLetter(source_[at_])) ++at_;
        if (at_ == start) {
            const char sign = source_[at_++];
            if (sign == '\\' || sign == '{' || sign == '}') Plain(sign);
            if (sign == '*') now_.destination = Destination::Skipped;
            return;
        }
        const std::string_view word = source_.substr(start, at_ - start);
        const std::optional<int> number = Number();
        if (at_ < source_.size() && source_[at_] == ' ') ++at_;
        Word(word, number);
    }

    // No number is so large that it could overflow.
    std::optional<int> Number() {
        constexpr int largest = 1'000'000;
        const bool minus = at_ < source_.size() && source_[at_] == '-';
        std::size_t digit = at_ + (minus ? 1 : 0);
        if (digit >= source_.size() || !IsDigit(source_[digit])) return std::nullopt;
        int number = 0;
        for (; digit < source_.size() && IsDigit(source_[digit]); ++digit)
            number = std::min(number * 10 + (source_[digit] - '0'), largest);
        at_ = digit;
        return minus ? -number : number;
    }

    void Word(std::string_view word, std::optional<int> number) {
        if (word == "u" && number) return Unit(*number);
        Flush();
        const bool on = number != 0;
        if (word == "par") {
            if (now_.destination == Destination::Text) EndParagraph();
        } else if (word == "plain") {
            now_.look = {};
        } else if (word == "b") {
            now_.look.bold = on;
        } else if (word == "i") {
            now_.look.italic = on;
        } else if (word == "ul") {
            now_.look.underline = on;
        } else if (word == "cf") {
            now_.look.text = ColourOf(number);
        } else if (word == "highlight") {
            now_.look.highlight = ColourOf(number);
        } else if (word == "ql" || word == "qr" || word == "qc") {
            now_.align = word == "ql"   ? RichAlign::Left
                         : word == "qr" ? RichAlign::Right
                                        : RichAlign::Centre;
        } else if (now_.destination == Destination::Colours) {
            ColourPart(word, number.value_or(0));
        } else if (word == "colortbl") {
            now_.destination = Destination::Colours;
        } else if (word == "fonttbl") {
            now_.destination = Destination::Fonts;
        }
    }

    // A unit of UTF-16, negative from 0x8000 on. One sign for readers without Unicode follows.
    void Unit(int number) {
        const auto unit = static_cast<char16_t>(number);
        if (now_.destination == Destination::Text && !IsControl(unit)) {
            if (units_.empty()) FlushText();
            units_ += unit;
        }
        const bool instead = at_ < source_.size() && source_[at_] != '\\' && source_[at_] != '{' &&
                             source_[at_] != '}';
        if (instead) ++at_;
    }

    void Plain(char c) {
        if (IsControl(static_cast<unsigned char>(c))) return;
        switch (now_.destination) {
            case Destination::Text:
                if (!units_.empty()) FlushUnits();
                pending_ += c;
                break;
            case Destination::Colours:
                if (c == ';') colours_.push_back(std::exchange(colour_, std::nullopt));
                break;
            case Destination::Fonts:
                if (c == ';')
                    fontNamed_ = true;
                else if (!fontNamed_)
                    document_.font += c;
                break;
            case Destination::Skipped:
                break;
        }
    }

    void ColourPart(std::string_view word, int value) {
        const struct {
            std::string_view name;
            int shift;
        } parts[] = {{"red", 0}, {"green", 8}, {"blue", 16}};
        for (const auto& part : parts)
            if (word == part.name)
                colour_ = colour_.value_or(0) | static_cast<Colour>(std::clamp(value, 0, 255))
                                                    << part.shift;
    }

    // By its place in the table; the first place is for the colour of the surroundings.
    std::optional<Colour> ColourOf(std::optional<int> number) const {
        const auto place = static_cast<std::size_t>(std::max(number.value_or(0), 0));
        return place < colours_.size() ? colours_[place] : std::nullopt;
    }

    void Append(const std::string& text) {
        if (text.empty()) return;
        std::vector<RichRun>& runs = paragraph_.runs;
        if (runs.empty() || runs.back().look != now_.look) runs.push_back({{}, now_.look});
        runs.back().text += text;
    }
    void FlushText() { Append(util::ShownText(std::exchange(pending_, {}))); }
    void FlushUnits() { Append(util::Utf8(std::exchange(units_, {}))); }
    // Of the two, one at most has something.
    void Flush() {
        FlushText();
        FlushUnits();
    }

    void EndParagraph() {
        Flush();
        paragraph_.align = now_.align;
        document_.paragraphs.push_back(std::exchange(paragraph_, {}));
    }

    std::string_view source_;
    std::size_t at_ = 0;
    State now_;
    std::vector<State> outer_;
    std::vector<std::optional<Colour>> colours_;
    std::optional<Colour> colour_;  // being read
    bool fontNamed_ = false;
    std::string pending_;   // bytes with the look of now
    std::u16string units_;  // the same as UTF-16
    RichParagraph paragraph_;
    RichDocument document_;
};

}  // namespace

RichDocument ReadRtf(std::string_view source) {
    return Reader(source).Read();
}

std::vector<std::string> RtfLines(std::string_view source) {
    std::vector<std::string> lines;
    for (const RichParagraph& paragraph : ReadRtf(source).paragraphs) {
        std::string& line = lines.emplace_back();
        for (const RichRun& run : paragraph.runs) line += run.text;
    }
    return lines;
}

}  // namespace kelvra::controls
