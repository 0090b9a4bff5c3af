// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <cmath>
#include <limits>

#include "formula.h"

// The tables have several cases in a line.
// clang-format off

namespace kelvra::parser {
namespace {

TEST(Evaluation, OperatorsBindAndComputeByTheirRules) {
    ExpectValues({
        {"", 0}, {"1+2*3", 7}, {"[1+{2}]*3", 9}, {"10-4-3", 3}, {"2^3^2", 64}, {"-2^2", -4},
        {"2*-3", -3}, {"2^-1", 0}, {"24/4/3", 2}, {"2*3!", 12}, {"3!!", 720}, {"2x3", 0},
        {"||1-3|-5|", 3}, {"5%3", 2}, {"-5%3", -2}, {"7.5%2", 0}, {"-7\\2", -3}, {"(-7)%2", -1},
        {"3>2", 1}, {"2>2", 0}, {"2>=2", 1}, {"1=>2", 0}, {"2<3", 1}, {"2<=2", 1}, {"3=<2", 0},
        {"2=2", 1}, {"2<>3", 1}, {"1<-2", 0}, {"0^0", 1}, {"(-2)^3", -8}, {"max(1;min(7;3))", 3},
        {"max(3)", 3}, {"sin()", 0}, {"(-2147483648)%(-1)", 0},
    });
}

TEST(Evaluation, WholeNumberAndLogicalFunctionsAreExact) {
    ExpectValues({
        {"abs(-2)", 2}, {"fix(-2.5)", -2}, {"int(-2.5)", -3}, {"sgn(-.1)", -1}, {"dec(-2.5)", -.5},
        {"mod(-7;4)", -3}, {"fact(3.5)", 24}, {"fact(-1)", 1}, {"fact(170)", 7.257415615307999e306},
        {"comb(5;7)", 1}, {"comb(5.9;2.9)", 10}, {"comb(-4;2)", 1}, {"comb(29;14)", 77558760},
        {"comb(2147483647;1)", 2147483647}, {"min(1;2)", 1}, {"max(1;2)", 2}, {"gcd(12;18)", 6},
        {"mcd(-12;18)", 6}, {"gcd(-4;0)", -4}, {"lcm(4;6)", 12}, {"mcm(4.4;6)", 13.2},
        {"and(2;3)", 1}, {"and(2;0)", 0}, {"or(0;.5)", 1}, {"not(0)", 1}, {"xor(2;3)", 0},
        {"xor(0;3)", 1}, {"round(-2.5;0)", -3}, {"round(1.2345;2)", 1.23}, {"round(1250;-2)", 1200},
        {"deg(pi)", 180}, {"rad(180)", 3.14159265358979}, {"acos(-1)", 3.14159265358979},
        {"asin(-1)", -1.570796326794895}, {"ei(-3)", 0}, {"GCD(8;12)", 4}, {"erf(0)", 0},
    });
}

TEST(Evaluation, FailureNamesTheOperationAndItsPlace) {
    const struct { std::string_view text, message; } cases[] = {
        {"sqr(-4)", "Evaluation error <sqr(-4)> at pos: 4"},
        {"2+Root(2;0)", "Evaluation error <Root(2 , 0)> at pos: 9"},
        {"1><.00001", "Evaluation error <1 >< 1E-05> at pos: 3"},
        {"1/(1/3-1/3)", "Evaluation error <1 / 0> at pos: 2"},
        {"(1/3)%0", "Evaluation error <0.333333333333333 % 0> at pos: 6"},
    };
    for (const auto& [text, message] : cases) {
        Formula formula(text);
        EXPECT_EQ(formula.parser.Eval(), 0) << text;
        EXPECT_EQ(formula.Error(), message);
    }
    Formula local("sqr(-1.5)", {",", ""});
    local.parser.Eval();
    EXPECT_EQ(local.Error(), "Evaluation error <sqr(-1,5)> at pos: 4");
}

TEST(Evaluation, WhatHasNoResultFails) {
    const std::string_view cases[] = {
        "1%.4", "1\\0", "3000000000%2", "(-2147483648)\\(-1)", "mod(1;0)", "(-8)^.5",
        "0^-1*1^0/0", "0^(-1)", "exp(710)", "ln(0)", "log(0)", "sqr(-1)", "acos(1.1)", "asin(-1.1)",
        "cosh(-711)", "sinh(711)", "tanh(711)", "acosh(.9)", "acosh(1E200)", "asinh(-1E9)",
        "asinh(1E200)", "atanh(-1)", "atanh(2)", "fact(3000000000)", "comb(30;15)",
        "comb(3000000000;1)", "lcm(.4;0)", "gcd(3000000000;1)", "gamma(-3)", "gamma(-20.5)",
        "gamma(172)", "gammaln(0)", "gammaln(1E10)", "digamma(-7)", "digamma(-8.5)",
        "digamma(1E15)", "beta(0;1)", "zeta(1)", "zeta(200)", "zeta(-2000)", "ei(710)", "erf(-100)",
        "csc(0)", "cot(0)", "csch(800)", "sech(800)", "coth(0)", "acsc(.5)", "asec(.5)", "acsch(0)",
        "asech(2)", "acoth(.5)", "cbr(-8)", "root(1;0)", "root(-8;3)", "round(1;-400)",
        "round(1;3000000000)", "deg(1E308)",
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

struct Value {
    std::string_view formula;
    double value;          // to 17 digits, from arithmetic of 30 digits
    double error = 2e-15;  // relative, and absolute below 1
};

constexpr Value Values[] = {
    {"atn(-2.5)", -1.1902899496825317}, {"cos(100)", 0.86231887228768393},
    {"sin(-2.5)", -0.59847214410395649}, {"tan(3)", -0.14254654307427781},
    {"exp(-700)", 9.8596765437597709e-305}, {"ln(1E300)", 690.77552789821371},
    {"log(.5)", -0.3010299956639812}, {"sqr(2)", 1.414213562373095},
    {"acos(-.9)", 2.6905658417935308}, {"asin(-.9)", -1.1197695149986342},
    {"cosh(-2.5)", 6.1322894796636861}, {"sinh(.5)", 0.52109530549374736},
    {"tanh(-3)", -0.99505475368673045}, {"acosh(1.5)", 0.96242365011920689},
    {"asinh(-3)", -1.8184464592320668}, {"asinh(1E100)", 230.95165647996451},
    {"atanh(-.9)", -1.4722194895832202}, {"csc(-2.5)", -1.6709215455586799},
    {"sec(-2.5)", -1.2482156514688178}, {"cot(3)", -7.0152525514345335},
    {"acsc(-4)", -0.25268025514207865}, {"asec(-4)", 1.8234765819369753},
    {"acot(-2)", 2.6779450445889871}, {"csch(.5)", 1.9190347513349437},
    {"sech(.5)", 0.88681888397007391}, {"coth(.5)", 2.1639534137386528},
    {"acsch(1.5)", 0.62514511725041669}, {"asech(.5)", 1.3169578969248167},
    {"acoth(-4)", -0.25541281188299534}, {"cbr(2)", 1.2599210498948732},
    {"erf(-.25)", -0.27632639016823693}, {"erf(2)", 0.99532226501895273},
    {"erf(2.01)", 0.99552484935524824}, {"erf(30)", 1.0}, {"gamma(.001)", 999.42377248459547},
    {"gamma(-1.5)", 2.3632718012073547, 4e-12}, {"gamma(20.25)", 2.5604013332847647e+17, 5e-15},
    {"gamma(171.5)", 9.4833675668247993e+307, 4e-13}, {"gammaln(.001)", 6.9071788853838537},
    {"gammaln(3)", 0.69314718055994531, 5e-15}, {"gammaln(1E8)", 1742068066.1038347},
    {"digamma(.001)", -1000.5755719318103}, {"digamma(8)", 2.01564147795561},
    {"digamma(8.01)", 2.0169719639065193}, {"digamma(-2.5)", 1.1031566406452432, 6e-13},
    {"zeta(1.5)", 2.6123753486854883}, {"zeta(100)", 1.0}, {"zeta(.5)", -1.4603545088095868},
    {"zeta(0)", -0.5}, {"zeta(-.5)", -0.20788622497735457}, {"ei(1E-31)", -70.802922217913883},
    {"ei(1)", 1.8951178163559368}, {"ei(34.5)", 28742753558304.71},
    {"ei(34.6)", 31670928831104.527}, {"ei(700)", 1.4509787360525609e+301},
    {"root(2;-5)", 0.87055056329612414}, {"beta(.5;.5)", 3.1415926535897932},
    {"beta(100;50)", 1.4904121110955479e-42}, {"2^.5", 1.414213562373095},
};

TEST(FunctionValues, AreTrueToTheDigitsTheirMethodLeaves) {
    for (const auto& c : Values) {
        Formula formula(c.formula);
        const double bound = c.error * std::max(1.0, std::abs(c.value));
        EXPECT_NEAR(formula.parser.Eval(), c.value, bound) << c.formula << ' ' << formula.Error();
    }
}

}  // namespace
}  // namespace kelvra::parser
