// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/rich_text.h"

#include <gtest/gtest.h>

#include "controls/rtf_reader.h"

namespace kelvra::ui {

TEST(RichText, EveryLineIsAGroupOfCodesAndText) {
    const struct {
        std::string text;
        RtfLook look;
        std::string group;
    } cases[] = {
        {"a b", {}, R"({\cf1\ql a b\par})"},
        {"", {.italic = true}, R"({\i\cf1\ql \par})"},
        {"x",
         {.newLine = false, .bold = true, .italic = true, .underline = true},
         R"({\b\i\ul\cf1\ql x})"},
        {"C:\\{x}", {.colour = 0x0000FF}, R"({\cf2\ql C:\\\{x\}\par})"},
        {"x", {.colour = 0x00FF00, .alignment = Alignment::Right}, R"({\cf3\qr x\par})"},
        {"x", {.colour = 0xC0C0C0, .alignment = Alignment::Centre}, R"({\cf4\qc x\par})"},
        {"x", {.colour = 0xFF0000, .highlight = 0}, R"({\cf4\highlight1\ql x\par})"},
        {"x", {.colour = 0x00C000, .highlight = 0x0000FF}, R"({\cf5\highlight2\ql x\par})"},
        {"x", {.colour = 0xFFFFFF, .highlight = 0x00FF00}, R"({\cf1\highlight3\ql x\par})"},
        {"x", {.highlight = 0xFF0000}, R"({\cf1\highlight4\ql x\par})"},
        {"x", {.highlight = 0xC0C0C0}, R"({\cf1\highlight5\ql x\par})"},
        {"x", {.highlight = 0xFFFFFF}, R"({\cf1\ql x\par})"},
        {"µ € \U0001D11E \xFF", {}, R"({\cf1\ql \u181? \u8364? \u-10188?\u-8930? \u-3?\par})"},
    };
    for (const auto& c : cases) {
        std::string document = "before";
        AddRtfLine(document, c.text, c.look);
        EXPECT_EQ(document, "before" + c.group);
    }
    EXPECT_EQ(ShownRtf("x"), R"({\plain\fs20x})");
}

// The document in brackets: [bold|italic|underline colour/highlight text], a line a paragraph.
std::string Described(std::string_view source) {
    std::string text;
    for (const controls::RichParagraph& paragraph : controls::ReadRtf(source).paragraphs) {
        text += "<>^"[static_cast<int>(paragraph.align)];
        for (const controls::RichRun& run : paragraph.runs) {
            text += '[';
            if (run.look.bold) text += 'b';
            if (run.look.italic) text += 'i';
            if (run.look.underline) text += 'u';
            if (run.look.text) text += std::to_string(*run.look.text);
            if (run.look.highlight) text += "/" + std::to_string(*run.look.highlight);
            text += ':' + run.text + ']';
        }
    }
    return text;
}

TEST(RichText, IsReadAsItIsMeantHoweverDamaged) {
    const std::string colours = R"({\colortbl ;\red0\green0\blue0;\red255\green1\blue0;})";
    const struct {
        std::string source, seen;
    } cases[] = {
        {R"({\b\cf2\ql a}{\i\highlight2\qr b\par}c)", ">[b:a][i:b]<[:c]"},  // no colours are named
        {colours + R"({\b\cf2\ql a}{\i\highlight2\qr b\par}c)", ">[b511:a][i/511:b]<[:c]"},
        {R"({\b x\b0 y{\ul z}}\plain w)", "<[b:x][:y][u:z][:w]"},
        {R"({\b x\plain y}\par\par)", "<[b:x][:y]<"},
        {R"(a\\\{\}\~\'41b)", "<[:a\\{}41b]"},
        {R"(\u181?\u-10188?\u-8930?\u8364?x\u55348?)", "<[:µ\U0001D11E€x\uFFFD]"},
        {"a\r\nb\tc\x01\xFF", "<[:ab\tc\uFFFD]"},
        {R"(x{\fonttbl{\f0 One;}{\f1 Two;}}{\*\other hidden}{\unknown y}\fs20 z)", "<[:xyz]"},
        {"}}a{{{b", "<[:ab]"},
        {R"(\cf99999999999999999999 a\cf-1 b\u99999999999? c\)", "<[:ab\u4240 c]"},
        {R"({\colortbl;\red999\green-5\blue0;}\cf1 a)", "<[255:a]"},
        {"", ""},
    };
    for (const auto& c : cases) EXPECT_EQ(Described(c.source), c.seen) << c.source;
    EXPECT_EQ(controls::ReadRtf(ShownRtf(RtfBeginning())).font, "Lucida Console");
}

}  // namespace kelvra::ui
