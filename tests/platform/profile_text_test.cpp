// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/profile_text.h"

#include <gtest/gtest.h>

namespace kelvra::platform {

using namespace std::string_literals;

// The tables have several cases in a line.
// clang-format off

TEST(ProfileText, ReadsWhatTheFirstKeyOfTheFirstSectionSays) {
    const struct { std::string bytes, section, key, value; } cases[] = {
        {"[s]\r\nk=v\r\n", "s", "k", "v"}, {"[s]\nk=v", "S", "K", "v"},
        {"[s]\rk=v\r[t]\rk=w", "t", "k", "w"},
        {" \t[ S ] rest\n \tk\t = \t v w \t\n", " s ", "k ", "v w"},
        {"[s]\nk=1\nK=2\n[S]\nk=3\nother=4", "s", "k", "1"},
        {"[s]\nk=1\n[t]\n[S]\nother=4", "s", "other", "none"}, {"k=0\n[s]\nj=1", "s", "k", "none"},
        {"[]\n=0\n", "", "", "0"}, {"[s]\n;k=1\n ; k=2\n", "s", ";k", "none"},
        {"[s]\nk=a=b;c", "s", "k", "a=b;c"},
        {"[s\nk=1\n", "s", "k", "none"}, {"[a]b]\nk=1\n", "a", "k", "1"},
        {"[s]\nk= \" v \" \n", "s", "k", " v "}, {"[s]\nk='\"v\"'\n", "s", "k", "\"v\""},
        {"[s]\nk=a\0b\xFF\n"s, "s", "k", "a\0b\xFF"s}, {"[\xC4]\nk=1\n", "\xE4", "k", "none"},
    };
    for (const auto& [bytes, section, key, value] : cases)
        EXPECT_EQ(ProfileText(bytes).Read(section, key, "none"), value) << bytes;
    const std::string longest(ProfileText::BufferSize - 1, 'x');
    EXPECT_EQ(ProfileText("[s]\nk=" + longest + 'x').Read("s", "k", ""), longest);
}

TEST(ProfileText, TheFallbackLosesBlanksAtItsEndAndItsQuotes) {
    const struct { std::string fallback, value; } cases[] = {
        {" none ", " none"}, {"\" v \" ", " v "}, {"'v", "'v"}, {"''", ""}, {"\xE9", "\xE9"},
    };
    for (const auto& [fallback, value] : cases)
        EXPECT_EQ(ProfileText("[s]\n k \n").Read("s", "k", fallback), value);
}

TEST(ProfileText, WritesInPlaceAndLeavesTheRest) {
    const struct { std::string before, section, key, value, after; } cases[] = {
        {"[s]\n K = old ; \n\nj=1", "S", "k", "new", "[s]\n K =new\n\nj=1"},
        {"[s]\nk=1\nk=2", "s", "k", "3", "[s]\nk=3\nk=2"},
        {"[s]\n[k\nk=1", "s", "[k", "]", "[s]\n[k=]\nk=1"},
        {"[s]\nk=", "s", "k", "3", "[s]\nk=3"}, {"[s]\rk=\rj=2", "s", "j", "3", "[s]\rk=\rj=3"},
        {"[s]\nk=\"1\"\n", "s", "k", "1", "[s]\nk=1\n"},
        {"[s]\nk = 1 \n", "s", "k", "1", "[s]\nk = 1 \n"},
        {"[s]\nk=1\n", "s", "k", " 1", "[s]\nk= 1\n"},
        {"\xFF\0\n[s]\nk=1\n;\0"s, "s", "k", "\0"s, "\xFF\0\n[s]\nk=\0\n;\0"s},
        {"[s]\nj=1\n;c\n\n \t\n[t]\n", "s", "k", "v", "[s]\nj=1\n;c\nk=v\r\n\n \t\n[t]\n"},
        {"[s]", "s", " k ", "v", "[s]\r\nk=v\r\n"},
        {"[s]\n[S]\nk=1\n", "s", "k", "v", "[s]\nk=v\r\n[S]\nk=1\n"},
        {"[s]\r;k=1\r\r", "s", "k", "v", "[s]\r;k=1\rk=v\r\n\r"},
        {"", "s", "k", "v", "[s]\r\nk=v\r\n"}, {"k=1", "s", "k", "v", "k=1\r\n[s]\r\nk=v\r\n"},
        {"[t]\nk=1\n\n", " s", "k", "v", "[t]\nk=1\n\n[s]\r\nk=v\r\n"},
    };
    for (const auto& [before, section, key, value, after] : cases) {
        ProfileText text(before);
        text.Write(section, key, value);
        EXPECT_EQ(text.Bytes(), after) << before;
        EXPECT_EQ(text.Changed(), before != after) << before;
    }
}

TEST(ProfileText, DeletesTheWholeLineAndShowsTheNextOfTheName) {
    ProfileText text("[s]\r\nk=1\r\nj=2\nk=3\rl=4");
    const struct { std::string key, after; } steps[] = {
        {"none", "[s]\r\nk=1\r\nj=2\nk=3\rl=4"}, {"K", "[s]\r\nj=2\nk=3\rl=4"},
        {"k", "[s]\r\nj=2\nl=4"}, {"l", "[s]\r\nj=2\n"},
    };
    for (const auto& [key, after] : steps) {
        text.DeleteKey("S", key);
        EXPECT_EQ(text.Bytes(), after);
    }
    ProfileText unended("[s]\nk=1");
    unended.Write("t", "j", "2");  // gives the last line its break
    unended.DeleteKey("s", "k");
    EXPECT_EQ(unended.Bytes(), "[s]\n[t]\r\nj=2\r\n");
}

}  // namespace kelvra::platform
