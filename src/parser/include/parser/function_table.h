// SPDX-License-Identifier: GPL-3.0-or-later
// The one table of operators and functions: code, name, where it may appear, how it is computed. A
// new function is a row here and, if no existing function fits, a function elsewhere.
#pragma once

#include <cstdint>
#include <string_view>

namespace kelvra::parser {

// Which names may precede an opening bracket, and with how many arguments.
enum class NameList { Operators, OneArgument, TwoArguments };

struct Function {
    std::int32_t id = -1;
    NameList list = NameList::Operators;
    std::int32_t argTop = 2;
    std::int32_t level = 0;  // added to ten times the bracket depth
    std::string_view name;   // lower case

    // The one for the number of arguments is set; "rnd" has neither. A value that is not finite is
    // a failure, see results.h.
    double (*ofOne)(double) = nullptr;
    double (*ofTwo)(double, double) = nullptr;
};

// The row of a name in any case; null if there is none.
const Function* FindFunction(std::string_view name);

// The first row with the code; null if there is none.
const Function* FindFunction(std::int32_t id);

// Code of a name in any case, -1 if there is none.
std::int32_t FunctionId(std::string_view name);

bool IsInList(std::string_view name, NameList list);

}  // namespace kelvra::parser
