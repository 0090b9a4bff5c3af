// SPDX-License-Identifier: GPL-3.0-or-later
// In which order the entries of a table are evaluated, and which entry receives the result of
// which. Works on priority levels alone; neither texts nor values matter here.
#pragma once

#include <span>

#include "parser/expression_table.h"

namespace kelvra::parser {

// Fills order: higher levels first, equal ones from left to right. Slot 0 is left alone.
void SetEvaluationOrder(std::span<ExpressionEntry> table);

// Fills receiver and receivingArgument: each entry in evaluation order feeds the neighbour, among
// those not yet evaluated, with the higher level, on a tie the left one. Arguments that receive a
// result lose their variable.
void LinkResults(std::span<ExpressionEntry> table);

}  // namespace kelvra::parser
