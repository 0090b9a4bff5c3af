// SPDX-License-Identifier: GPL-3.0-or-later
#include "formula.h"

// The tables have several cases in a line.
// clang-format off

namespace kelvra::parser {
namespace {

TEST(Compile, EachMistakeHasItsMessage) {
    const std::string letter = "variable name must start with a letter: ";
    const struct { std::string text, message; } cases[] = {
        {"(|x)", "abs symbols |.| mismatch"}, {"(1+2))", "Too many closing brackets at pos  6"},
        {"x|3|", "syntax error at pos: 2"}, {"1;2", "syntax error at pos: 2"},
        {"max(min(a;b);c)", "syntax error at pos: 13"}, {"(1", "Not enough closing brackets"},
        {"foo(3)", "Function <foo> unknown at pos  4"}, {"2(3)", "Function <2> unknown at pos  2"},
        {"!", "missing argument"}, {"max(;2)", "missing argument"}, {"a< =b", "missing argument"},
        {"2a", letter + "2a"}, {"1.5.2", letter + "1.5.2"}, {".", letter + "."},
        {"1E", letter + "1E"}, {SumOfVariables(101), "too many Vars"},
        {Repeated(101, "1+", "", "1"), "too many operations"},
        {Repeated(101, "!", "1"), "too many operations"},
    };
    for (const auto& [text, message] : cases) {
        Formula formula(text);
        EXPECT_FALSE(formula.compiles) << text;
        EXPECT_EQ(formula.parser.Eval() + formula.parser.Eval1(1), 0) << text;
        EXPECT_EQ(formula.Error(), message) << text;  // evaluation doesn't change it
    }
}

TEST(Compile, EachMistakeHasItsPlaceInTheTextThatWasGiven) {
    const struct { std::string text; int place; } cases[] = {
        {"1+2", -1}, {" (|x)", 2}, {"\xC3\xA4+|x", 2}, {"(1+2))", 5}, {"x|3|", 1}, {"1;2", 1},
        {"  (1 ", 4}, {"1+foo(3)", 2}, {"1 + 2 (3)", 4}, {"!", 0}, {"max(;2)", 4}, {"1+*2", 2},
        {"a< =b", 3}, {"1+ 2a", 3}, {"1+2a+1", 2}, {" \xC3\xA4+1", 1}, {"x1+*2", 3}, {"1/0", -1},
        {SumOfVariables(101), 392}, {Repeated(101, "1+", "", "1"), 201},
        {std::string(MaxLength + 1, '('), -1},
    };
    for (const auto& [text, place] : cases) {
        Formula formula(text);
        formula.parser.Eval();
        EXPECT_EQ(formula.parser.ErrorPlace(), place) << text.substr(0, 100) << formula.Error();
    }
    Formula variables(" 1+X1W - y");
    EXPECT_EQ(variables.parser.VarPlace(1), 3);
    EXPECT_EQ(variables.parser.VarPlace(2), 9);
    EXPECT_EQ(variables.parser.VarPlace(3), -1);
}

TEST(Compile, VariablesAreNumberedByFirstAppearance) {
    const struct { std::string text, names; } cases[] = {
        {"X2dB-X1dB", "X2dB X1dB"}, {"b+a*b-a", "b a"}, {"X1W+x1w", "X1W x1w"}, {"pi+PI+Pi", ""},
        {"x y", "xy"}, {"x2y", "x2 y"}, {"ae+1", "ae+1"}, {"a!b", "a ab"}, {"max(z1;z2)", "z1 z2"},
        {"sin+1", "sin"}, {"(x)y", "xy"}, {"a.b,c+d_\xC3\xA4", "a.b,c d_\xC3\xA4"},
    };
    for (const auto& [text, names] : cases) {
        Formula formula(text);
        EXPECT_TRUE(formula.compiles) << text << ": " << formula.Error();
        std::string found;
        for (int i = 1; i <= formula.parser.VarTop(); ++i)
            found.append(i > 1 ? " " : "").append(formula.parser.VarName(i));
        EXPECT_EQ(found, names) << text;
    }
}

TEST(Compile, HundredVariablesAndHundredEntriesFit) {
    Formula variables(SumOfVariables(100));
    ASSERT_TRUE(variables.compiles) << variables.Error();
    for (int i = 1; i <= 100; ++i) variables.parser.VarValue(i, i);
    EXPECT_EQ(variables.parser.Eval(), 5050);
    EXPECT_EQ(Formula(Repeated(100, "1+", "", "1")).parser.Eval(), 101);
}

TEST(Compile, NumbersAndUnitsHaveTheirValue) {
    ExpectValues({
        {"1E-5", 1e-5}, {"2.5e+3", 2500}, {"1D3", 1000}, {".5", 0.5}, {"5.", 5}, {"1,5", 1},
        {"1 000", 1000}, {"10mV", 0.01}, {"5KHz", 5000}, {"2ms", 0.002}, {"1mm", 0.001},
        {"2MHz", 2e6}, {"3g", 0.003}, {"2Ohm", 2}, {"1pF", 1e-12}, {"4us", 4e-6}, {"5dm", 0.5},
        {"5Dm", 50}, {"5HPa", 500}, {"1GHz", 1e9}, {"1TW", 1e12}, {"6S+1ohm", 7},
        {"pi", 3.14159265358979},
    });
}

std::string Many(std::string_view text, std::string_view before = {}, std::string_view after = {}) {
    return Repeated(1'000'000, text, before, after);
}

// Milliseconds each; work that grows with the square of the length would not end.
TEST(Compile, AMegabyteOfAnythingCompilesOrFails) {
    constexpr std::string_view noLetter = "variable name must start with a letter: ";
    const struct { std::string text, message; } cases[] = {
        {Many("("), "Not enough closing brackets"}, {Many(")", Many("(", "", "7")), ""},
        {Many("|"), "too many operations"}, {Many("!"), "missing argument"}, {Many(" "), ""},
        {Many("-"), "too many operations"}, {Many("9"), Many("9", noLetter)}, {Many("3", "."), ""},
        {Many(",", "1"), ""}, {Many("a"), ""}, {Repeated(100, "!", Many("a")), ""},
        {Many("\xC3\xA4", "", ")"), "Too many closing brackets at pos  1000001"},
        {Many(";"), "syntax error at pos: 1"}, {Many("E+"), ""},
    };
    for (const auto& [text, message] : cases) {
        Formula formula(text);
        formula.parser.Eval();
        EXPECT_TRUE(formula.Error() == message)
            << text.substr(0, 3) << "...: " << formula.Error().substr(0, 60);
    }
    Formula tooLong(std::string(MaxLength + 1, '('));
    EXPECT_EQ(tooLong.Error(), "formula too long");
}

}  // namespace
}  // namespace kelvra::parser
