// SPDX-License-Identifier: GPL-3.0-or-later
// Counts the memory blocks that this test program has asked for. Its own file, so that no compiler
// sees through the operators.
#pragma once

namespace kelvra::parser {

int AllocationCount();

}  // namespace kelvra::parser
