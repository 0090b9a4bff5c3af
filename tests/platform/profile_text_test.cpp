// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/profile_text.h"

#include <gtest/gtest.h>

#include <chrono>

namespace kelvra::platform {

using namespace std::string_literals;

TEST(ProfileText, ReadsWhatTheFirstKeyOfTheFirstSectionSays) {
    const struct {
        std::string bytes, section, key, value;
    } cases[] = {
        {"[s]\r\nk=v\r\n", "s", "k", "v"},
        {"[s]\nk=v", "S", "K", "v"},
        {"[s]\rk=v\r[t]\rk=w", "t", "k", "w"},
        {" \t[ S ] rest\n \tk\t = \t v w \t\n", " s ", "k ", "v w"},
        {"[s]\nk=1\nK=2\n[S]\nk=3\nother=4", "s", "k", "1"},
        {"[s]\nk=1\n[t]\n[S]\nother=4", "s", "other", "none"},
        {"k=0\n[s]\nj=1", "s", "k", "none"},
        {"k=0\n", "", "k", "none"},
        {"[]\n=0\n", "", "", "0"},
        {"[s]\n;k=1\n ; k=2\n", "s", ";k", "none"},
        {"[s]\nk\nk=1", "s", "k", "1"},
        {"[s]\nk=a=b;c", "s", "k", "a=b;c"},
        {"[s]\nk=\n", "s", "k", ""},
        {"[s\nk=1\n", "s", "k", "none"},
        {"[a]b]\nk=1\n", "a", "k", "1"},
        {"[s]\nk= \" v \" \n", "s", "k", " v "},
        {"[s]\nk='\"v\"'\n", "s", "k", "\"v\""},
        {"[s]\nk=\"v'\n", "s", "k", "\"v'"},
        {"[s]\nk=\"\n", "s", "k", "\""},
        {"[s]\nk=\"\"\n", "s", "k", ""},
        {"[s]\nk=a\0b\xFF\n"s, "s", "k", "a\0b\xFF"s},
        {"[\xC4]\nk=1\n", "\xE4", "k", "none"},
        {"[a]\nb=1\n", "a\nb", "", "none"},
        {"", "s", "k", "none"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(ProfileText(c.bytes).Read(c.section, c.key, "none"), c.value) << c.bytes;
}

TEST(ProfileText, CutsValueAndFallbackToTheBuffer) {
    const std::string longText(800, 'x');
    const ProfileText text("[s]\nk='" + longText + "'\n");
    EXPECT_EQ(text.Read("s", "k", ""), longText.substr(0, 749));
    EXPECT_EQ(text.Read("s", "none", longText), longText.substr(0, 749));
}

TEST(ProfileText, WritesInPlaceAndLeavesTheRest) {
    const struct {
        std::string before, section, key, value, after;
    } cases[] = {
        // the value alone
        {"[s]\n K = old ; \n\nj=1", "S", "k", "new", "[s]\n K =new\n\nj=1"},
        {"[s]\nk=1\nk=2", "s", "k", "3", "[s]\nk=3\nk=2"},
        {"[s]\nk=", "s", "k", "3", "[s]\nk=3"},
        {"[s]\rk=\rj=2", "s", "j", "3", "[s]\rk=\rj=3"},
        {"[s]\nk=\"1\"\n", "s", "k", "1", "[s]\nk=1\n"},
        {"[s]\nk = 1 \n", "s", "k", "1", "[s]\nk = 1 \n"},
        {"[s]\nk=1\n", "s", "k", " 1", "[s]\nk= 1\n"},
        {"\xFF\0\n[s]\nk=1\n;\0"s, "s", "k", "\0"s, "\xFF\0\n[s]\nk=\0\n;\0"s},
        // a new key
        {"[s]\nj=1\n;c\n\n \t\n[t]\n", "s", "k", "v", "[s]\nj=1\n;c\nk=v\r\n\n \t\n[t]\n"},
        {"[s]", "s", " k ", "v", "[s]\r\nk=v\r\n"},
        {"[s]\n[S]\nk=1\n", "s", "k", "v", "[s]\nk=v\r\n[S]\nk=1\n"},
        {"[s]\r;k=1\r\r", "s", "k", "v", "[s]\r;k=1\rk=v\r\n\r"},
        // a new section
        {"", "s", "k", "v", "[s]\r\nk=v\r\n"},
        {"k=1", "s", "k", "v", "k=1\r\n[s]\r\nk=v\r\n"},
        {"[t]\nk=1\n\n", " s", "k", "v", "[t]\nk=1\n\n[s]\r\nk=v\r\n"},
        {"[t]\r", "s", "k", "'v'", "[t]\r[s]\r\nk='v'\r\n"},
    };
    for (const auto& c : cases) {
        ProfileText text(c.before);
        text.Write(c.section, c.key, c.value);
        EXPECT_EQ(text.Bytes(), c.after) << c.before;
        EXPECT_EQ(text.Changed(), c.before != c.after) << c.before;
    }
}

TEST(ProfileText, DeletesTheWholeLineAndShowsTheNextOfTheName) {
    ProfileText text("[s]\r\nk=1\r\nj=2\nk=3\rl=4");
    const struct {
        std::string key, after;
    } steps[] = {
        {"none", "[s]\r\nk=1\r\nj=2\nk=3\rl=4"},
        {"K", "[s]\r\nj=2\nk=3\rl=4"},
        {"k", "[s]\r\nj=2\nl=4"},
        {"l", "[s]\r\nj=2\n"},
    };
    for (const auto& step : steps) {
        text.DeleteKey("S", step.key);
        EXPECT_EQ(text.Bytes(), step.after);
    }
    EXPECT_EQ(text.Read("s", "j", ""), "2");
}

TEST(ProfileText, KnowsTheLineBreakThatANewSectionGaveToTheLastLine) {
    ProfileText text("[s]\nk=1");
    text.Write("t", "j", "2");
    text.DeleteKey("s", "k");
    EXPECT_EQ(text.Bytes(), "[s]\n[t]\r\nj=2\r\n");
}

TEST(ProfileText, AKeyLineThatBecomesASectionTakesTheNameFromALaterOne) {
    for (const std::string before : {"[s]\n", "[s]\n[a=\n"}) {
        ProfileText text(before + "[a=b]\nk=1\n");
        text.Write("s", "[a", "b]");
        EXPECT_EQ(text.Read("a=b", "k", "none"), "none") << text.Bytes();
    }
}

// Names and values that make lines of their own: what is found is what a fresh reader would find.
TEST(ProfileText, FindsWhatTheBytesSayAfterAnyEdit) {
    const std::string words[] = {"s",      "t",   "k",       "a=b",   "[s",          "x]",
                                 ";",      "",    "\n[t]\n", "\nk=9", "v\r",         "\nq",
                                 "[n]\nk", " b ", "[",       "]",     "longer value"};
    constexpr std::size_t count = std::size(words);
    ProfileText edited("[s\n[t]\rk=\n[s=1\n\n[s]\nk=1");
    std::uint32_t state = 1;
    const auto word = [&]() -> const std::string& {
        state = state * 1664525 + 1013904223;
        return words[(state >> 16) % count];
    };
    for (int i = 0; i < 3000; ++i) {
        const std::string &section = word(), &key = word(), &value = word();
        ProfileText fresh(edited.Bytes());
        if (i % 5 == 4) {
            edited.DeleteKey(section, key);
            fresh.DeleteKey(section, key);
        } else {
            edited.Write(section, key, value);
            fresh.Write(section, key, value);
        }
        ASSERT_EQ(edited.Bytes(), fresh.Bytes()) << i;
        if (edited.Bytes().size() > 3000) edited = ProfileText("[t]\n[s=1\n[s]");
    }
}

TEST(ProfileText, WritesABlockIntoALargeFileWithoutAScanForEachKey) {
    std::string bytes;
    for (int i = 0; i < 20000; ++i)
        bytes += "[section " + std::to_string(i) + "]\r\nkey one=value of one key in here\r\n";
    const auto start = std::chrono::steady_clock::now();
    ProfileText text(bytes);
    const auto parsed = std::chrono::steady_clock::now();
    for (int i = 0; i < 52; ++i) {
        text.Write("section 5", "key one", std::to_string(i));
        text.Write("section 5", "new key " + std::to_string(i), "value");
    }
    const auto written = std::chrono::steady_clock::now();
    EXPECT_EQ(text.Read("section 19999", "key one", ""), "value of one key in here");
    EXPECT_EQ(text.Read("section 5", "new key 51", ""), "value");
    // 104 scans would take a hundred times as long as the first.
    EXPECT_LT(written - parsed, 20 * (parsed - start));
}

}  // namespace kelvra::platform
