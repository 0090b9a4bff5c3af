// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <chrono>
#include <cmath>
#include <random>

#include "formula.h"

namespace kelvra::parser {
namespace {

constexpr int Megabyte = 1'000'000;

// A megabyte takes milliseconds; seconds mean that the work grows with the square of the length.
TEST(HostileFormula, AMegabyteOfAnythingCompilesOrFailsAtOnce) {
    const struct {
        std::string formula, error;  // of compiling and evaluating
    } cases[] = {
        {Repeated(Megabyte, "("), "Not enough closing brackets"},
        {Repeated(Megabyte, ")", Repeated(Megabyte, "(", "", "7")), ""},
        {Repeated(Megabyte, ")"), "Too many closing brackets at pos  1"},
        {Repeated(Megabyte, "|"), "too many operations"},
        {Repeated(Megabyte, "!"), "missing argument"},
        {Repeated(Megabyte, "-"), "too many operations"},
        {Repeated(Megabyte, " "), ""},
        {Repeated(Megabyte, "9"),
         Repeated(Megabyte, "9", "variable name must start with a letter: ")},
        {Repeated(Megabyte, "0"), ""},
        {Repeated(Megabyte, "3", "."), ""},
        {Repeated(Megabyte, ","),
         Repeated(Megabyte, ",", "variable name must start with a letter: ")},
        {Repeated(Megabyte, ",", "1"), ""},
        {Repeated(Megabyte, "\xC3\xA4", "", ")"), "Too many closing brackets at pos  1000001"},
        {Repeated(Megabyte, "a"), ""},
        {Repeated(100, "!", Repeated(Megabyte, "a")), ""},
        {Repeated(Megabyte, "1+"), "too many operations"},
        {Repeated(Megabyte, "="), "missing argument"},
        {Repeated(Megabyte, ";"), "syntax error at pos: 1"},
        {Repeated(Megabyte, "E+"), ""},
    };
    const auto start = std::chrono::steady_clock::now();
    for (const auto& c : cases) {
        Formula formula(c.formula);
        formula.parser.Eval();
        EXPECT_TRUE(formula.Error() == c.error)
            << c.formula.substr(0, 3) << "...: " << formula.Error().substr(0, 60);
    }
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(20));
}

TEST(HostileFormula, TooLongForItsPositionsFails) {
    Formula formula(std::string(MaxLength + 1, '('));
    EXPECT_EQ(formula.Error(), "formula too long");
    EXPECT_EQ(formula.parser.ET().size(), 1U);
}

TEST(HostileFormula, SlowestFunctionsStayBounded) {
    Formula formula(Repeated(99, "+zeta(.0001)", "0"));
    EXPECT_FALSE(formula.compiles) << "198 entries";
    formula.parser.StoreExpression(Repeated(50, "+zeta(.3)", "0"));
    const auto start = std::chrono::steady_clock::now();
    formula.parser.Eval();
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(10));
}

// Pieces that mean something, in an order that doesn't: under the sanitizers this finds what reads
// or computes beyond an end.
TEST(HostileFormula, RandomPiecesNeverLeaveAnInfiniteValueOrAFailureWithoutMessage) {
    constexpr std::string_view pieces[] = {
        "x",    "1",    "2.5",   "E",      "+",      "-",     "*",  "/",  "%",
        "\\",   "^",    "!",     "(",      ")",      "|",     ";",  "<",  "=",
        ">",    " ",    "max(",  "a",      "sin(",   "comb(", "pi", "mV", "Hz",
        "gcd(", "1E99", "fact(", "gamma(", "round(", "ei(",   "[",  "}",  "\xFF",
    };
    std::mt19937 random(7);
    util::Random rnd(1);
    MathParser parser(rnd);
    int compiled = 0;
    for (int i = 0; i < 20000; ++i) {
        std::string text;
        for (auto length = random() % 12; length > 0; --length)
            text += pieces[random() % std::size(pieces)];
        const bool compiles = parser.StoreExpression(text);
        EXPECT_EQ(compiles, parser.ErrorDescription().empty()) << text;
        for (int v = 1; v <= parser.VarTop(); ++v) parser.VarValue(v, 1e5 * v);
        const double value = parser.Eval();
        EXPECT_TRUE(std::isfinite(value)) << text;
        compiled += compiles;
    }
    EXPECT_GT(compiled, 1000);
}

}  // namespace
}  // namespace kelvra::parser
