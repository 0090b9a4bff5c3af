// SPDX-License-Identifier: GPL-3.0-or-later
#include "options/options.h"

#include <gtest/gtest.h>

#include "console/console.h"

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
        {{"-"}, "-", {}},
        {{"a.kel"}, "a.kel", {}},
        {{"DEBUG", "a.kel"}, "a.kel", {"DEBUG"}},
        {{"-DEBUGX", "-"}, "-", {"-DEBUGX"}},
        {{"/Debug", "--echo", "b c", "a.kel"}, "a.kel", {"/Debug", "b c"}},
        {{"DEBUG", "--seed", "7", "a.kel"}, "a.kel", {"DEBUG"}},
        {{"--driver-dir", "drivers", "DEBUG", "--data-dir", "data", "-"}, "-", {"DEBUG"}},
    };
    for (const auto& c : cases) {
        const options::Parsed parsed = Parse(c.words);
        ASSERT_TRUE(parsed.options) << parsed.message;
        const ScriptChoice choice = ChooseScript(parsed.options->words);
        EXPECT_EQ(choice.script, c.script);
        EXPECT_EQ(choice.commandLine, c.commandLine) << c.script;
    }
}

TEST(Options, ValuesArriveWhereTheyBelong) {
    const auto parsed =
        Parse({"--driver-dir", "a", "--data-dir=b", "--clock", "2004-02-29 23:59:58", "--seed",
               "18446744073709551615", "--echo", "x.kel"});
    ASSERT_TRUE(parsed.options) << parsed.message;
    EXPECT_EQ(parsed.options->driverDir, "a");
    EXPECT_EQ(parsed.options->dataDir, "b");
    EXPECT_EQ(parsed.options->seed, 18446744073709551615U);
    EXPECT_TRUE(parsed.options->echo);
    ASSERT_TRUE(parsed.options->clock);
    EXPECT_EQ(parsed.options->clock->day, 29);
    EXPECT_EQ(parsed.options->clock->SecondsSinceMidnight(), 86398);
}

TEST(Options, WrongUsageIsRefused) {
    const Words cases[] = {
        {"--unknown", "x.kel"},
        {"--clock"},
        {"--clock", "2005-03-07"},
        {"--clock", "2005-03-07T12:00:00"},
        {"--clock", "2005-02-29 12:00:00"},
        {"--clock", "2005-13-01 12:00:00"},
        {"--clock", "2005-03-07 24:00:00"},
        {"--clock", "2005-03-07 12:00:60"},
        {"--clock", "+005-03-07 12:00:00"},
        {"--seed", "many"},
        {"--seed", "-1"},
    };
    for (const Words& words : cases) {
        const options::Parsed parsed = Parse(words);
        EXPECT_FALSE(parsed.options) << words.back();
        EXPECT_EQ(parsed.exitStatus, 2) << words.back();
        EXPECT_NE(parsed.message, "") << words.back();
    }
}

}  // namespace
}  // namespace kelvra::console
