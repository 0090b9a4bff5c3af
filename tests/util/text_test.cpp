// SPDX-License-Identifier: GPL-3.0-or-later
#include "util/text.h"

#include <gtest/gtest.h>

namespace kelvra::util {

using namespace std::string_literals;

TEST(Text, IsTrimmedOfWhatTheRuleNamesAndOfNothingElse) {
    EXPECT_EQ(TrimSpaces("  a b\t "), "a b\t");
    EXPECT_EQ(TrimBlanks("\t a b\t "), "a b");
    EXPECT_EQ(TrimLineBreaks("\r\na\r\n\r\n"), "\r\na");
    EXPECT_EQ(CleanText("  \r\n a\r\nb \r\n  "), " a\r\nb ");
    EXPECT_EQ(CleanText(" \r\n "), "");
}

TEST(Text, OfABufferEndsAtItsNulOrBeforeItsBlanks) {
    const struct {
        std::string buffer, text;
    } cases[] = {{"abc  \0def"s, "abc  "}, {" abc   ", " abc"}, {"\0abc"s, ""}, {"    ", ""}};
    for (const auto& [buffer, text] : cases) EXPECT_EQ(TextOfBuffer(buffer), text) << buffer;
}

TEST(Text, KnowsNoLettersButThoseOfAscii) {
    EXPECT_EQ(UpperCase("a\xC3\xA4z{"), "A\xC3\xA4Z{");
    EXPECT_EQ(LowerCase("A\xC3\x84Z["), "a\xC3\x84z[");
    EXPECT_TRUE(EqualNoCase("Mode", "MODE"));
    EXPECT_FALSE(EqualNoCase("Mode", "Mod"));
    EXPECT_EQ(HexText(0), "0");
    EXPECT_EQ(HexText(static_cast<std::uint32_t>(-5)), "FFFFFFFB");
}

TEST(ShownText, ReplacesEachByteOfNoValidSequence) {
    const std::string bad = "\xEF\xBF\xBD";
    // clang-format off
    const struct { std::string bytes, shown; } cases[] = {
        {"\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80", "\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80"},
        {"a\xE4z", "a" + bad + "z"}, {"\xC3", bad}, {"\xE2\x82", bad + bad},
        {"\xC0\x80", bad + bad},                      // overlong
        {"\xED\xA0\x80", bad + bad + bad},            // surrogate
        {"\xF4\x90\x80\x80", bad + bad + bad + bad},  // above U+10FFFF
        {"\xF4\x8F\xBF\xBF", "\xF4\x8F\xBF\xBF"}, {"a\0b"s, "a\0b"s},
    };
    // clang-format on
    for (const auto& [bytes, shown] : cases) EXPECT_EQ(ShownText(bytes), shown);
}

}  // namespace kelvra::util
