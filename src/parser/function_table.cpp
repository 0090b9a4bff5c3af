// SPDX-License-Identifier: GPL-3.0-or-later
#include "parser/function_table.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "parser/arithmetic.h"
#include "parser/constants.h"
#include "parser/elementary_functions.h"
#include "parser/integer_functions.h"
#include "parser/results.h"
#include "parser/special_functions.h"
#include "util/text.h"

namespace kelvra::parser {

namespace {

using OfOne = double (*)(double);
using OfTwo = double (*)(double, double);

constexpr Function Operator(int id, std::string_view name, int level, OfTwo ofTwo) {
    return {id, NameList::Operators, 2, level, name, nullptr, ofTwo};
}
constexpr Function Postfix(int id, std::string_view name, int level, OfOne ofOne) {
    return {id, NameList::Operators, 1, level, name, ofOne, nullptr};
}
constexpr Function One(int id, std::string_view name, OfOne ofOne) {
    return {id, NameList::OneArgument, 1, 0, name, ofOne, nullptr};
}
constexpr Function Two(int id, std::string_view name, OfTwo ofTwo) {
    return {id, NameList::TwoArguments, 2, 0, name, nullptr, ofTwo};
}

constexpr double Truth(bool value) {
    return value ? 1 : 0;
}
constexpr bool IsTrue(double value) {
    return value != 0;
}

// clang-format off
constexpr Function Functions[] = {
    //       id  name   level
    Operator( 0, "+",       2, Sum),
    Operator( 1, "-",       2, Difference),
    Operator( 2, "*",       3, Product),
    Operator( 3, "/",       3, Ratio),
    Operator( 4, "%",       3, Remainder),
    Operator( 5, "\\",      3, Quotient),
    Operator( 6, "^",       4, Power),
    One(      7, "abs",        [](double a) { return std::abs(a); }),
    One(      8, "atn",        [](double a) { return std::atan(a); }),
    One(      9, "cos",        [](double a) { return std::cos(a); }),
    One(     11, "sin",        [](double a) { return std::sin(a); }),
    One(     12, "exp",        [](double a) { return std::exp(a); }),
    One(     13, "fix",        [](double a) { return std::trunc(a); }),
    One(     14, "int",        [](double a) { return std::floor(a); }),
    One(     15, "ln",         [](double a) { return std::log(a); }),
    One(     16, "log",        [](double a) { return std::log(a) / std::log(10.0); }),
    One(     17, "rnd",        nullptr),
    One(     18, "sgn",        Sign),
    One(     19, "sqr",        [](double a) { return std::sqrt(a); }),
    One(     20, "tan",        [](double a) { return std::tan(a); }),
    One(     21, "acos",       ArcCosine),
    One(     22, "asin",       ArcSine),
    One(     23, "cosh",       HyperbolicCosine),
    One(     24, "sinh",       HyperbolicSine),
    One(     25, "tanh",       HyperbolicTangent),
    One(     26, "acosh",      AreaCosine),
    One(     27, "asinh",      AreaSine),
    One(     28, "atanh",      AreaTangent),
    Two(     29, "mod",        Remainder),
    One(     30, "fact",       Factorial),
    Postfix( 30, "!",       9, Factorial),
    Two(     31, "comb",       Combinations),
    Two(     32, "min",        [](double a, double b) { return a >= b ? b : a; }),
    Two(     33, "max",        [](double a, double b) { return a <= b ? b : a; }),
    Two(     34, "mcd",        CommonDivisor),
    Two(     34, "gcd",        CommonDivisor),
    Two(     35, "mcm",        CommonMultiple),
    Two(     35, "lcm",        CommonMultiple),
    Operator(36, ">",       1, [](double a, double b) { return Truth(a > b); }),
    Operator(37, ">=",      1, [](double a, double b) { return Truth(a >= b); }),
    Operator(37, "=>",      1, [](double a, double b) { return Truth(a >= b); }),
    Operator(38, "<",       1, [](double a, double b) { return Truth(a < b); }),
    Operator(39, "<=",      1, [](double a, double b) { return Truth(a <= b); }),
    Operator(39, "=<",      1, [](double a, double b) { return Truth(a <= b); }),
    Operator(40, "=",       1, [](double a, double b) { return Truth(a == b); }),
    Operator(41, "<>",      1, [](double a, double b) { return Truth(a != b); }),
    Two(     42, "and",        [](double a, double b) { return Truth(IsTrue(a) && IsTrue(b)); }),
    Two(     43, "or",         [](double a, double b) { return Truth(IsTrue(a) || IsTrue(b)); }),
    One(     44, "not",        [](double a) { return Truth(!IsTrue(a)); }),
    Two(     45, "xor",        [](double a, double b) { return Truth(IsTrue(a) != IsTrue(b)); }),
    One(     46, "erf",        ErrorFunction),
    One(     47, "gamma",      Gamma),
    One(     48, "gammaln",    GammaLn),
    One(     49, "digamma",    Digamma),
    Two(     50, "beta",       Beta),
    One(     51, "zeta",       Zeta),
    One(     52, "ei",         ExponentialIntegral),
    One(     53, "csc",        [](double a) { return 1 / std::sin(a); }),
    One(     54, "sec",        [](double a) { return 1 / std::cos(a); }),
    One(     55, "cot",        [](double a) { return 1 / std::tan(a); }),
    One(     56, "acsc",       [](double a) { return ArcSine(1 / a); }),
    One(     57, "asec",       [](double a) { return ArcCosine(1 / a); }),
    One(     58, "acot",       [](double a) { return Pi / 2 - std::atan(a); }),
    One(     59, "csch",       [](double a) { return 1 / Checked(HyperbolicSine(a)); }),
    One(     60, "sech",       [](double a) { return 1 / Checked(HyperbolicCosine(a)); }),
    One(     61, "coth",       [](double a) { return 1 / HyperbolicTangent(a); }),
    One(     62, "acsch",      [](double a) { return AreaSine(1 / a); }),
    One(     63, "asech",      [](double a) { return AreaCosine(1 / a); }),
    One(     64, "acoth",      [](double a) { return AreaTangent(1 / a); }),
    One(     65, "cbr",        [](double a) { return Power(a, 1.0 / 3); }),
    Two(     66, "root",       [](double a, double b) { return Power(a, Checked(1 / b)); }),
    One(     67, "dec",        [](double a) { return a - std::trunc(a); }),
    One(     68, "rad",        [](double a) { return a * Pi / 180; }),
    One(     69, "deg",        [](double a) { return a * 180 / Pi; }),
    Two(     70, "round",      RoundTo),
};
// clang-format on

constexpr int LastId = 70;

// Rows by their code: a formula is bound to its functions at every compile.
constexpr auto RowsById = [] {
    std::array<const Function*, LastId + 1> rows{};
    for (const Function& row : Functions)
        if (rows[row.id] == nullptr) rows[row.id] = &row;
    return rows;
}();

}  // namespace

const Function* FindFunction(std::string_view name) {
    const auto* row = std::find_if(std::begin(Functions), std::end(Functions), [&](const auto& f) {
        return f.name.size() == name.size() && util::EqualNoCase(f.name, name);
    });
    return row == std::end(Functions) ? nullptr : row;
}

const Function* FindFunction(std::int32_t id) {
    return id >= 0 && id <= LastId ? RowsById[id] : nullptr;
}

std::int32_t FunctionId(std::string_view name) {
    const Function* row = FindFunction(name);
    return row == nullptr ? -1 : row->id;
}

bool IsInList(std::string_view name, NameList list) {
    const Function* row = FindFunction(name);
    return row != nullptr && row->list == list;
}

}  // namespace kelvra::parser
