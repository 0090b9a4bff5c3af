// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "formula.h"

// The tables have several cases in a line.
// clang-format off

namespace kelvra::parser {
namespace {

TEST(Evaluation, OperatorsBindAndComputeByTheirRules) {
    const struct {
        std::string_view formula;
        double value;
    } cases[] = {
        {"", 0}, {"1+2*3", 7}, {"(1+2)*3", 9}, {"[1+{2}]*3", 9}, {"10-4-3", 3}, {"2^3^2", 64},
        {"10-2*3-1", 3},
        {"-2^2", -4}, {"2*-3", -3}, {"2^-1", 0}, {"24/4/3", 2}, {"3!+1", 7}, {"2*3!", 12},
        {"3!!", 720}, {"2x3", 0}, {"|2-5|*2", 6}, {"||1-3|-5|", 3}, {"5%3", 2}, {"-5%3", -2},
        {"7.5%2", 0}, {"-7\\2", -3}, {"(-7)\\2", -3}, {"(-7)%2", -1}, {"3>2", 1}, {"2>3", 0},
        {"2>2", 0}, {"2>=2", 1}, {"1=>2", 0}, {"2<3", 1}, {"3<2", 0}, {"2<=2", 1}, {"3=<2", 0},
        {"2=2", 1}, {"2<>2", 0}, {"2<>3", 1}, {"1+1=2", 1}, {"1<-2", 0}, {"0^0", 1}, {"(-2)^3", -8},
        {"(0-8)^2", 64}, {"+5", 5}, {"max(1;min(7;3))", 3}, {"max(3)", 3}, {"sin()", 0},
        {"2*(3)", 6}, {"(-2147483648)%(-1)", 0}, {"1 = 1", 1},
    };
    for (const auto& c : cases) {
        Formula formula(c.formula);
        EXPECT_EQ(formula.parser.Eval(), c.value) << c.formula;
        EXPECT_EQ(formula.Error(), "") << c.formula;
    }
}

TEST(Evaluation, WholeNumberAndLogicalFunctionsAreExact) {
    const struct {
        std::string_view formula;
        double value;
    } cases[] = {
        {"abs(-2)", 2}, {"fix(-2.5)", -2}, {"int(-2.5)", -3}, {"sgn(-.1)", -1}, {"sgn(0)", 0},
        {"sgn(7)", 1}, {"dec(-2.5)", -.5}, {"mod(5;3)", 2}, {"mod(-7;4)", -3}, {"fact(3.5)", 24},
        {"fact(2.5)", 2}, {"fact(-1)", 1}, {"fact(170)", 7.257415615307999e306}, {"comb(5;2)", 10},
        {"comb(5;7)", 1}, {"comb(5;-1)", 1}, {"comb(0;0)", 1}, {"comb(6;3)", 20}, {"comb(6;5)", 6},
        {"comb(5.9;2.9)", 10}, {"comb(-4;2)", 1}, {"comb(29;14)", 77558760}, {"comb(31;29)", 465},
        {"comb(2147483647;1)", 2147483647}, {"min(2;1)", 1}, {"min(1;2)", 1}, {"max(2;1)", 2},
        {"max(1;2)", 2}, {"gcd(12;18)", 6}, {"mcd(-12;18)", 6}, {"gcd(-4;0)", -4}, {"gcd(0;0)", 0},
        {"lcm(4;6)", 12}, {"mcm(4.4;6)", 13.2}, {"and(2;3)", 1}, {"and(2;0)", 0}, {"or(0;0)", 0},
        {"or(0;.5)", 1}, {"not(0)", 1}, {"not(2)", 0}, {"xor(2;3)", 0}, {"xor(0;3)", 1},
        {"xor(1;0)", 1}, {"xor(0;0)", 0}, {"round(2.5;0)", 2}, {"round(2.51;0)", 3},
        {"round(-2.5;0)", -3}, {"round(1.2345;2)", 1.23}, {"round(1250;-2)", 1200},
        {"deg(pi)", 180}, {"rad(180)", 3.14159265358979}, {"acos(1)", 0},
        {"acos(-1)", 3.14159265358979}, {"asin(-1)", -1.570796326794895}, {"ei(0)", 0},
        {"ei(-3)", 0}, {"GCD(8;12)", 4}, {"erf(0)", 0},
    };
    for (const auto& c : cases) {
        Formula formula(c.formula);
        EXPECT_DOUBLE_EQ(formula.parser.Eval(), c.value) << c.formula;
        EXPECT_EQ(formula.Error(), "") << c.formula;
    }
}

TEST(Evaluation, FailureNamesTheOperationAndItsPlace) {
    const struct {
        std::string_view formula, message;
    } cases[] = {
        {"1/0", "Evaluation error <1 / 0> at pos: 2"},
        {"sqr(-4)", "Evaluation error <sqr(-4)> at pos: 4"},
        {"2+Root(2;0)", "Evaluation error <Root(2 , 0)> at pos: 9"},
        {"|1/0.0|", "Evaluation error <1 / 0> at pos: 3"},
        {"200!", "Evaluation error <!(200)> at pos: 4"},
        {"1==1.5", "Evaluation error <1 == 1.5> at pos: 3"},
        {"1><.00001", "Evaluation error <1 >< 0.00001> at pos: 3"},
        {"ln(0)/0.1", "Evaluation error <ln(0)> at pos: 3"},
        {"1E308*10", "Evaluation error <1E+308 * 10> at pos: 6"},
        {"1/(1/3-1/3)", "Evaluation error <1 / 0> at pos: 2"},
        {"(1/3)%0", "Evaluation error <0.333333333333333 % 0> at pos: 6"},
    };
    for (const auto& c : cases) {
        Formula formula(c.formula);
        EXPECT_TRUE(formula.compiles) << c.formula;
        EXPECT_EQ(formula.parser.Eval(), 0) << c.formula;
        EXPECT_EQ(formula.Error(), c.message);
    }
    Formula local("sqr(-1.5)", {",", ""});
    local.parser.Eval();
    EXPECT_EQ(local.Error(), "Evaluation error <sqr(-1,5)> at pos: 4");
}

TEST(Evaluation, WhatHasNoResultFails) {
    const std::string_view cases[] = {
        "1%0", "1%.4", "1\\0", "3000000000%2", "(-2147483648)\\(-1)", "mod(1;0)", "(-8)^.5",
        "0^-1*1^0/0", "0^(-1)", "exp(710)", "ln(0)", "ln(-1)", "log(0)", "sqr(-1)", "acos(1.1)",
        "asin(-1.1)", "cosh(-711)", "sinh(711)", "tanh(711)", "acosh(.9)", "acosh(-2)",
        "acosh(1E200)", "asinh(-1E9)", "asinh(1E200)", "atanh(1)", "atanh(-1)", "atanh(2)",
        "fact(171)", "fact(3000000000)", "comb(30;15)", "comb(3000000000;1)", "lcm(0;0)",
        "lcm(.4;0)", "gcd(3000000000;1)", "gamma(0)", "gamma(-3)", "gamma(-.5)", "gamma(-20.5)",
        "gamma(172)", "gammaln(0)", "gammaln(1E10)", "digamma(0)", "digamma(-7)", "digamma(-8.5)",
        "digamma(1E15)", "beta(0;1)", "zeta(1)", "zeta(200)", "zeta(-2000)", "ei(710)", "erf(-100)",
        "erf(1E200)", "csc(0)", "cot(0)", "csch(0)", "csch(800)", "sech(800)", "coth(0)",
        "coth(800)", "acsc(0)", "acsc(.5)", "asec(.5)", "acsch(0)", "asech(0)", "asech(2)",
        "acoth(0)", "acoth(.5)", "cbr(-8)", "root(2;0)", "root(1;0)", "root(-8;3)", "round(1;400)",
        "round(1;-400)", "round(1;3000000000)", "deg(1E308)", "a==b", "9E307*2",
    };
    for (const auto formula : cases) {
        Formula f(formula);
        EXPECT_TRUE(f.compiles) << formula << ": " << f.Error();
        EXPECT_EQ(f.parser.Eval(), 0) << formula;
        EXPECT_TRUE(f.Error().starts_with("Evaluation error <")) << formula << ": " << f.Error();
    }
}

TEST(Evaluation, RunsAgainWithNewValuesAlsoAfterAFailure) {
    Formula formula("ABS(X1dB-X2dB)/X3");
    const struct {
        double x1, x2, x3, value;
    } cases[] = {{1, 3, 2, 1}, {1, 3, 0, 0}, {-10, -30, 4, 5}, {1e308, -1e308, 1, 0}, {0, 0, 1, 0}};
    for (const auto& c : cases) {
        formula.parser.VarValue(1, c.x1);
        formula.parser.VarValue(2, c.x2);
        formula.parser.VarValue(3, c.x3);
        EXPECT_EQ(formula.parser.Eval(), c.value) << c.x1 << ' ' << c.x2 << ' ' << c.x3;
        EXPECT_EQ(formula.parser.VarValue(1), c.x1);
    }
    EXPECT_TRUE(formula.Error().ends_with("at pos: 9")) << "stays until a formula is stored";
}

TEST(Evaluation, ValuesThatAreNotFiniteFailInsteadOfSpreading) {
    const double values[] = {std::numeric_limits<double>::infinity(),
                             -std::numeric_limits<double>::infinity(),
                             std::numeric_limits<double>::quiet_NaN()};
    for (const auto text :
         {"x", "x+1", "comb(x;2)", "fact(x)", "gamma(x)", "zeta(x)", "round(x;2)"})
        for (const double value : values) {
            Formula formula(text);
            formula.parser.VarValue(1, value);
            EXPECT_EQ(formula.parser.Eval(), 0) << text << ' ' << value;
            EXPECT_NE(formula.Error(), "") << text << ' ' << value;
        }
}

TEST(Evaluation, Eval1SetsTheOneVariable) {
    Formula square("x*x");
    EXPECT_EQ(square.parser.Eval1(3), 9);
    EXPECT_EQ(square.parser.VarValue(1), 0);
    EXPECT_EQ(square.parser.Eval(), 0);
    EXPECT_EQ(Formula("7").parser.Eval1(3), 7);
    Formula two("x*a");
    EXPECT_EQ(two.parser.Eval1(3), 0);
    EXPECT_EQ(two.Error(), "too many variables");
    util::Random random(1);
    EXPECT_EQ(MathParser(random).Eval1(1) + MathParser(random).Eval(), 0);
}

TEST(Evaluation, RndScalesTheNextRandomNumber) {
    util::Random same(1);
    Formula formula("rnd(10)+100*rnd(2)");
    for (int i = 0; i < 3; ++i) {
        const double first = same.Next();
        const double second = same.Next();
        EXPECT_EQ(formula.parser.Eval(), 10 * first + 100 * (2 * second));
    }
}

}  // namespace
}  // namespace kelvra::parser
