// SPDX-License-Identifier: GPL-3.0-or-later
// The order in which the entries of a table are evaluated, and which entry receives each result.
// Depends on priority levels alone, not on texts or values.
#pragma once

#include <span>

#include "parser/expression_table.h"

namespace kelvra::parser {

// Fills order: higher levels first, equal levels from left to right. Leaves slot 0 alone.
void SetEvaluationOrder(std::span<ExpressionEntry> table);

// Fills receiver and receivingArgument. In evaluation order, each entry feeds the neighbour with
// the higher level among those not yet evaluated; on a tie, the left one. An argument that receives
// a result loses its variable.
void LinkResults(std::span<ExpressionEntry> table);

}  // namespace kelvra::parser
