// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <vector>

#include "formula.h"

// The tables have several cases in a line.
// clang-format off

namespace kelvra::parser {
namespace {

std::string Variables(const MathParser& parser) {
    std::string names;
    for (int i = 1; i <= parser.VarTop(); ++i)
        names.append(i > 1 ? " " : "").append(parser.VarName(i));
    return names;
}

TEST(Compile, EachMistakeHasItsMessage) {
    const struct {
        std::string formula, message;
    } cases[] = {
        {"|x-3", "abs symbols |.| mismatch"}, {"(|x)", "abs symbols |.| mismatch"},
        {"(1+2))", "Too many closing brackets at pos  6"},
        {"1]", "Too many closing brackets at pos  2"}, {"x|3|", "syntax error at pos: 2"},
        {"1;2", "syntax error at pos: 2"}, {"max(min(a;b);c)", "syntax error at pos: 13"},
        {"max(1;2;3)", "syntax error at pos: 8"}, {"foo(3)", "Function <foo> unknown at pos  4"},
        {"  foo(3)", "Function <foo> unknown at pos  4"},
        {"2(3)", "Function <2> unknown at pos  2"}, {"(a)(b)", "Function <a> unknown at pos  4"},
        {"1/\xC3\xA4(3)", "Function <\xC3\xA4> unknown at pos  4"}, {"*3", "missing argument"},
        {"2**3", "missing argument"}, {"!", "missing argument"}, {"max(;2)", "missing argument"},
        {"a< =b", "missing argument"}, {"a<==b", "missing argument"},
        {"2a", "variable name must start with a letter: 2a"},
        {"5q+1", "variable name must start with a letter: 5q"},
        {"1.5.2", "variable name must start with a letter: 1.5.2"},
        {".", "variable name must start with a letter: ."},
        {"2d-1", "variable name must start with a letter: 2d"},
        {"1E", "variable name must start with a letter: 1E"},
        {"1E999", "variable name must start with a letter: 1E999"},
        {"_a", "variable name must start with a letter: _a"},
        {"\xC3\xA4+1", "variable name must start with a letter: \xC3\xA4"},
        {"(1", "Not enough closing brackets"}, {"sin(x", "Not enough closing brackets"},
        {SumOfVariables(101), "too many Vars"},
        {Repeated(101, "1+", "", "1"), "too many operations"},
        {Repeated(101, "sin("), "too many operations"},
        {Repeated(101, "!", "1"), "too many operations"},
        {Repeated(100, "1+", "", "1=1"), "too many operations"},
        {Repeated(101, "x0", "1"), "too many operations"},
    };
    for (const auto& c : cases) {
        Formula formula(c.formula);
        EXPECT_FALSE(formula.compiles) << c.formula;
        EXPECT_EQ(formula.Error(), c.message) << c.formula;
        EXPECT_EQ(formula.parser.Eval(), 0) << c.formula;
        EXPECT_EQ(formula.parser.Eval1(1), 0) << c.formula;
        EXPECT_EQ(formula.Error(), c.message) << c.formula << ": evaluation changes the message";
    }
}

TEST(Compile, VariablesAreNumberedByFirstAppearance) {
    const struct {
        std::string_view formula, names;
    } cases[] = {
        {"X2dB-X1dB", "X2dB X1dB"}, {"b+a*b-a", "b a"}, {"X1W+x1w", "X1W x1w"}, {"pi+PI+Pi", ""},
        {"x y", "xy"}, {"x2y", "x2 y"}, {"ae+1", "ae+1"}, {"a!b", "a ab"}, {"max(z1;z2)", "z1 z2"},
        {"", ""}, {"sin+1", "sin"}, {"(x)y", "xy"}, {"a.b,c+d_\xC3\xA4", "a.b,c d_\xC3\xA4"},
    };
    for (const auto& c : cases) {
        Formula formula(c.formula);
        EXPECT_TRUE(formula.compiles) << c.formula << ": " << formula.Error();
        EXPECT_EQ(Variables(formula.parser), c.names) << c.formula;
    }
}

TEST(Compile, HundredVariablesAndHundredEntriesFit) {
    Formula variables(SumOfVariables(100));
    ASSERT_TRUE(variables.compiles) << variables.Error();
    EXPECT_EQ(variables.parser.VarName(100), "v100");
    for (int i = 1; i <= 100; ++i) variables.parser.VarValue(i, i);
    EXPECT_EQ(variables.parser.Eval(), 5050);

    Formula entries(Repeated(100, "1+", "", "1"));
    ASSERT_TRUE(entries.compiles) << entries.Error();
    EXPECT_EQ(entries.parser.Eval(), 101);
}

TEST(Compile, OtherVariableNumbersAreHarmless) {
    Formula formula(SumOfVariables(101));
    EXPECT_EQ(formula.parser.VarTop(), 101);
    for (const int i : {-1, 0, 101, 102}) {
        formula.parser.VarValue(i, 7);
        EXPECT_EQ(formula.parser.VarName(i), "") << i;
        EXPECT_EQ(formula.parser.VarValue(i), 0) << i;
    }
}

TEST(Compile, NumbersAndUnitsHaveTheirValue) {
    const struct {
        std::string_view formula;
        double value;
    } cases[] = {
        {"1E-5", 1e-5}, {"2.5e+3", 2500}, {"1D3", 1000}, {"2d2", 200}, {".5", 0.5}, {"5.", 5},
        {"1,5", 1}, {"1,000.5", 1}, {"1 000", 1000}, {"1.5D2+1", 151}, {"10mV", 0.01},
        {"5KHz", 5000}, {"3Kg", 3}, {"2ms", 0.002}, {"7m", 7}, {"1mm", 0.001}, {"10Hz", 10},
        {"2MHz", 2e6}, {"3g", 0.003}, {"2Ohm", 2}, {"1pF", 1e-12}, {"4nA", 4e-9}, {"4us", 4e-6},
        {"5cm", 0.05}, {"5dm", 0.5}, {"5Dm", 50}, {"5HPa", 500}, {"1GHz", 1e9}, {"1TW", 1e12},
        {"2mbar", 0.002}, {"3Nm", 3}, {"1rad+1Rad", 2}, {"1RAD", 1}, {"1,5V", 1}, {"6S+1ohm", 7},
        {"pi", 3.14159265358979}, {"2*PI", 6.28318530717958},
    };
    for (const auto& c : cases) {
        Formula formula(c.formula);
        EXPECT_TRUE(formula.compiles) << c.formula << ": " << formula.Error();
        EXPECT_DOUBLE_EQ(formula.parser.Eval(), c.value) << c.formula;
    }
}

TEST(Compile, TableHoldsWhatTheFormulaSays) {
    Formula formula("  2x!<=Max(a;-3)");
    ASSERT_TRUE(formula.compiles) << formula.Error();
    const struct {
        std::string fun;
        int id, argTop, argOf, argIdx, position, level, order;
    } expected[] = {
        {"*", 2, 2, 3, 1, 2, 3, 5},      {"!", 30, 1, 1, 2, 3, 9, 4},  {"<=", 39, 2, 0, 0, 5, 1, 2},
        {"Max", 33, 2, 3, 2, 11, 10, 1}, {"-", 1, 2, 4, 2, 12, 12, 3},
    };
    const auto table = formula.parser.ET();
    ASSERT_EQ(table.size(), std::size(expected) + 1);
    for (std::size_t k = 1; k < table.size(); ++k) {
        const auto& row = expected[k - 1];
        EXPECT_EQ(table[k].Fun, row.fun);
        EXPECT_EQ(table[k].Id, row.id) << row.fun;
        EXPECT_EQ(table[k].ArgTop, row.argTop) << row.fun;
        EXPECT_EQ(table[k].ArgOf, row.argOf) << row.fun;
        EXPECT_EQ(table[k].ArgIdx, row.argIdx) << row.fun;
        EXPECT_EQ(table[k].PosInExpr, row.position) << row.fun;
        EXPECT_EQ(table[k].PriLvl, row.level) << row.fun;
        EXPECT_EQ(table[k].PriIdx, row.order) << row.fun;
    }
    EXPECT_EQ(table[4].Arg[0].Name, "a");
    EXPECT_EQ(table[4].Arg[0].Idx, 2);
    EXPECT_EQ(table[3].Arg[1].Name, "") << "receives a result";
    EXPECT_EQ(table[3].Arg[1].Idx, 0) << "receives a result";

    formula.parser.VarValue(1, 3);
    formula.parser.VarValue(2, 20);
    EXPECT_EQ(formula.parser.Eval(), 1);
    EXPECT_EQ(formula.parser.ET()[1].Value, 12);
    EXPECT_EQ(formula.parser.ET()[3].Arg[0].Value, 12);
    EXPECT_EQ(formula.parser.ET()[4].Arg[0].Value, 20);
}

TEST(Compile, LoneOperandIsAddedToNothing) {
    Formula formula("(abc)");
    const auto& entry = formula.parser.ET()[1];
    EXPECT_EQ(entry.Fun, "+");
    EXPECT_EQ(entry.PosInExpr, 1);
    EXPECT_EQ(entry.PriLvl, 1);
    EXPECT_EQ(entry.Arg[1].Name, "abc");
    formula.parser.VarValue(1, 7);
    EXPECT_EQ(formula.parser.Eval(), 7);
}

TEST(Compile, DumpListsEachEntryAndChangesNothing) {
    Formula formula("1+a");
    formula.parser.VarValue(1, 0.5);
    formula.parser.Eval();
    std::vector<std::string> lines;
    for (int i = 0; i < 2; ++i) {
        lines.clear();
        formula.parser.ET_Dump([&](std::string_view line) { lines.emplace_back(line); });
    }
    ASSERT_EQ(lines.size(), 4U);
    EXPECT_EQ(lines[0], "Dump Level ");
    EXPECT_EQ(lines[1], std::string(32, '-'));
    EXPECT_EQ(
        lines[2],
        "Id\tFun\tArgTop\tA0 Idx\tArg0 Name\tArg0 Value\tA1 Idx\tArg1 Name\tArg1 Value\tArgOf\t"
        "ArgIdx\tValue\tPriLvl\tPosInExpr\tPriIdx");
    EXPECT_EQ(lines[3], "0\t+\t2\t0\t\t1\t1\ta\t.5\t0\t0\t1.5\t2\t2\t1");
}

TEST(Compile, StoringAgainStartsAfresh) {
    Formula formula("a+b");
    EXPECT_EQ(formula.parser.Expression(), "a+b");
    formula.parser.VarValue(1, 3);
    EXPECT_TRUE(formula.parser.StoreExpression(formula.parser.Expression()));
    EXPECT_EQ(formula.parser.VarValue(1), 0);
    EXPECT_FALSE(formula.parser.StoreExpression("  1+c/0) "));
    EXPECT_EQ(formula.parser.Expression(), "1+c/0)");
    EXPECT_EQ(formula.parser.VarTop(), 1);
    EXPECT_TRUE(formula.parser.StoreExpression("7"));
    EXPECT_EQ(formula.Error(), "");
    EXPECT_EQ(formula.parser.VarTop(), 0);
    EXPECT_EQ(formula.parser.ET().size(), 2U);
    EXPECT_EQ(formula.parser.Eval(), 7);
}

}  // namespace
}  // namespace kelvra::parser
