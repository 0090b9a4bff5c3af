// SPDX-License-Identifier: GPL-3.0-or-later
// A formula as a flat table: one entry for each operation, and the variables that feed it. The
// compiler fills it, the evaluation plan runs it, the dump lists it; this file computes nothing.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace kelvra::parser {

inline constexpr int MaxVariables = 100;
inline constexpr int MaxEntries = 100;

// Longest formula in bytes: positions and priority levels (ten for each bracket) stay in 32 bits.
inline constexpr std::size_t MaxLength = 100'000'000;

// An argument of an entry, or a variable. Names are views into ExpressionTable::names.
struct Argument {
    std::int32_t variable = 0;  // number of the variable that feeds it, 0 for constants and results
    std::string_view name;
    double value = 0;
    std::int32_t place = -1;  // of a variable: its first character, from 0
};

struct ExpressionEntry {
    std::string function;   // operator or function as written
    std::int32_t code = 0;  // its code in the function table, -1 if there is none
    std::array<Argument, 2> arguments;
    std::int32_t argumentCount = 0;      // number of arguments, 1 or 2
    std::int32_t receiver = 0;           // entry that receives the result, 0 for the root
    std::int32_t receivingArgument = 0;  // which of the receiver's arguments (1 or 2) that is
    double value = 0;                    // last result
    std::int32_t position = 0;           // 1-based character that created the entry
    std::int32_t priority = 0;           // higher is evaluated earlier
    std::int32_t order = 0;  // entry k holds the number of the entry to evaluate at step k
};

struct ExpressionTable {
    std::vector<ExpressionEntry> entries;  // slot 0 is never used
    std::vector<Argument> variables;       // slot 0 is never used
    int variableCount = 0;  // MaxVariables + 1 after a formula has failed for too many
    std::string names;      // all tokens, one after the other; never grows while in use

    int LastEntry() const { return static_cast<int>(entries.size()) - 1; }
};

}  // namespace kelvra::parser
