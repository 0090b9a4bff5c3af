// SPDX-License-Identifier: GPL-3.0-or-later
// A formula as a flat table: one entry for each operation, and the variables that feed it. The
// compiler fills it, the evaluation plan runs it, the dump lists it; nothing here computes.
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
struct ExprArg {
    std::int32_t Idx = 0;  // number of the variable that feeds it, 0 for constants and results
    std::string_view Name;
    double Value = 0;
};

struct ETEntry {
    std::string Fun;      // operator or function as written
    std::int32_t Id = 0;  // its code in the function table, -1 if there is none
    std::array<ExprArg, 2> Arg;
    std::int32_t ArgTop = 0;     // number of arguments, 1 or 2
    std::int32_t ArgOf = 0;      // entry that receives the result, 0 for the root
    std::int32_t ArgIdx = 0;     // which of its arguments (1 or 2) receives it
    double Value = 0;            // last result
    std::int32_t PosInExpr = 0;  // 1-based character that created the entry
    std::int32_t PriLvl = 0;     // higher is evaluated earlier
    std::int32_t PriIdx = 0;     // entry k holds the number of the entry to evaluate at step k
};

struct ExpressionTable {
    std::vector<ETEntry> ET;    // slot 0 is never used
    std::vector<ExprArg> Vars;  // slot 0 is never used
    int VarTop = 0;             // one above MaxVariables when a formula has failed for that
    std::string names;          // all tokens, one behind the other; never grows while in use

    int ETTop() const { return static_cast<int>(ET.size()) - 1; }
};

}  // namespace kelvra::parser
