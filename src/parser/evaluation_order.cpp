// SPDX-License-Identifier: GPL-3.0-or-later
#include "parser/evaluation_order.h"

#include <algorithm>
#include <array>
#include <utility>

namespace kelvra::parser {

namespace {

void Link(ETEntry& entry, std::int32_t receiver, std::int32_t argument) {
    entry.ArgOf = receiver;
    entry.ArgIdx = argument;
}

}  // namespace

void SetEvaluationOrder(std::span<ETEntry> table) {
    std::array<std::pair<std::int32_t, std::int32_t>, MaxEntries + 1> order;  // -PriLvl, entry
    const auto count = static_cast<std::int32_t>(table.size());
    for (std::int32_t k = 1; k < count; ++k) order[k] = {-table[k].PriLvl, k};
    std::sort(order.begin() + 1, order.begin() + count);
    for (std::int32_t k = 1; k < count; ++k) table[k].PriIdx = order[k].second;
}

void LinkResults(std::span<ETEntry> table) {
    const auto end = static_cast<std::int32_t>(table.size());
    std::array<std::int32_t, MaxEntries + 2> left{}, right{};  // neighbours not yet linked
    for (std::int32_t k = 0; k <= end; ++k) {
        left[k] = k - 1;
        right[k] = k + 1;
    }
    for (std::int32_t k = 1; k < end; ++k) {
        const std::int32_t j = table[k].PriIdx;
        const std::int32_t l = left[j];
        const std::int32_t r = right[j];
        if (l > 0 && (r == end || table[l].PriLvl >= table[r].PriLvl))
            Link(table[j], l, table[l].ArgTop);
        else if (r < end)
            Link(table[j], r, 1);
        right[l] = r;
        left[r] = l;
    }
    for (std::int32_t k = 1; k < end; ++k) {
        if (table[k].ArgOf == 0) continue;
        ExprArg& receiver = table[table[k].ArgOf].Arg[table[k].ArgIdx - 1];
        receiver.Idx = 0;
        receiver.Name = {};
    }
}

}  // namespace kelvra::parser
