// SPDX-License-Identifier: GPL-3.0-or-later
// What goes into the console on its command line, and how it writes values out.
#include <gtest/gtest.h>

#include <cmath>

#include "console/console.h"
#include "console/json_line.h"
#include "console/output.h"
#include "options/options.h"

namespace kelvra::console {
namespace {

using Words = std::vector<std::string>;

options::Parsed Parse(const Words& words) {
    std::vector<const char*> arguments{"kelvra-console"};
    for (const std::string& word : words) arguments.push_back(word.c_str());
    return options::Parse(static_cast<int>(arguments.size()), arguments.data(),
                          {"kelvra-console", "", "", true});
}

TEST(Options, TheLastWordIsTheScriptAndThoseBeforeAreTheCommandLine) {
    const struct {
        Words words;
        std::string script;
        Words commandLine;
    } cases[] = {
        {{}, "-", {}},
        {{"/Debug", "--echo", "b c", "a.kel"}, "a.kel", {"/Debug", "b c"}},
        {{"--driver-dir", "drivers", "DEBUG", "--data-dir", "data", "-"}, "-", {"DEBUG"}},
    };
    for (const auto& [words, script, commandLine] : cases) {
        const options::Parsed parsed = Parse(words);
        ASSERT_TRUE(parsed.options) << parsed.message;
        const ScriptChoice choice = ChooseScript(parsed.options->words);
        EXPECT_EQ(choice.script, script);
        EXPECT_EQ(choice.commandLine, commandLine) << script;
    }
}

TEST(Options, WrongUsageIsRefused) {
    // clang-format off
    const Words cases[] = {
        {"--unknown", "x.kel"}, {"--clock"}, {"--clock", "2005-03-07T12:00:00"},
        {"--clock", "2005-02-29 12:00:00"}, {"--clock", "2005-03-07 24:00:00"},
        {"--clock", "+005-03-07 12:00:00"}, {"--seed", "many"}, {"--seed", "-1"},
    };
    // clang-format on
    for (const Words& words : cases) {
        const options::Parsed parsed = Parse(words);
        EXPECT_FALSE(parsed.options) << words.back();
        EXPECT_EQ(parsed.exitStatus, 2) << words.back();
        EXPECT_NE(parsed.message, "") << words.back();
    }
}

TEST(JsonLine, ValuesReadBackTheSameAndWhatIsNotFiniteIsNull) {
    const struct {
        double value;
        const char* text;
    } numbers[] = {{0, "0"},           {-0.5, "-0.5"}, {1e300, "1e+300"},
                   {5e-324, "5e-324"}, {NAN, "null"},  {-INFINITY, "null"}};
    for (const auto& [value, text] : numbers) EXPECT_EQ(JsonLine().Value(value).Text(), text);
    EXPECT_EQ(JsonLine().Value(INT64_MIN).Text(), "-9223372036854775808");
    EXPECT_EQ(JsonLine().Colour(controls::DarkBlue).Text(), "\"#0000C0\"");
    const struct {
        std::string text;
        std::string quoted;
    } texts[] = {
        {R"(a"b\c/)", R"("a\"b\\c/")"},
        {"\t\r\n", R"("\t\r\n")"},
        {std::string("\0\x1f\x7f", 3), "\"\\u0000\\u001F\x7f\""},
        {"\u00b5\u20ac\xff", "\"\u00b5\u20ac\ufffd\""},
    };
    for (const auto& [text, quoted] : texts) EXPECT_EQ(JsonLine().Value(text).Text(), quoted);
    EXPECT_EQ(OneLine("a\r\nb\nc\rd\n\re\r"), R"(a\nb\nc\nd\n\ne\n)");
}

}  // namespace
}  // namespace kelvra::console
