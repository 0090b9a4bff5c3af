// SPDX-License-Identifier: GPL-3.0-or-later
// A listing of an expression table for finding errors: two heading lines, the names of the columns,
// a line for each entry, columns separated by tabs.
#pragma once

#include <functional>
#include <span>
#include <string_view>

#include "parser/expression_table.h"

namespace kelvra::parser {

// Takes the listing line by line.
using LineSink = std::function<void(std::string_view line)>;

// Slot 0 of the table is not listed.
void DumpTable(std::span<const ExpressionEntry> table, const LineSink& sink);

}  // namespace kelvra::parser
