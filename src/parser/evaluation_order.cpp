// SPDX-License-Identifier: GPL-3.0-or-later
#include "parser/evaluation_order.h"

#include <algorithm>
#include <array>
#include <utility>

namespace kelvra::parser {

namespace {

void Link(ExpressionEntry& entry, std::int32_t receiver, std::int32_t argument) {
    entry.receiver = receiver;
    entry.receivingArgument = argument;
}

}  // namespace

void SetEvaluationOrder(std::span<ExpressionEntry> table) {
    std::array<std::pair<std::int32_t, std::int32_t>, MaxEntries + 1> order;  // -priority, entry
    const auto count = static_cast<std::int32_t>(table.size());
    for (std::int32_t k = 1; k < count; ++k) order[k] = {-table[k].priority, k};
    std::sort(order.begin() + 1, order.begin() + count);
    for (std::int32_t k = 1; k < count; ++k) table[k].order = order[k].second;
}

void LinkResults(std::span<ExpressionEntry> table) {
    const auto end = static_cast<std::int32_t>(table.size());
    std::array<std::int32_t, MaxEntries + 2> left{}, right{};  // neighbours not yet linked
    for (std::int32_t k = 0; k <= end; ++k) {
        left[k] = k - 1;
        right[k] = k + 1;
    }
    for (std::int32_t k = 1; k < end; ++k) {
        const std::int32_t j = table[k].order;
        const std::int32_t l = left[j];
        const std::int32_t r = right[j];
        if (l > 0 && (r == end || table[l].priority >= table[r].priority))
            Link(table[j], l, table[l].argumentCount);
        else if (r < end)
            Link(table[j], r, 1);
        right[l] = r;
        left[r] = l;
    }
    for (std::int32_t k = 1; k < end; ++k) {
        if (table[k].receiver == 0) continue;
        Argument& receiver = table[table[k].receiver].arguments[table[k].receivingArgument - 1];
        receiver.variable = 0;
        receiver.name = {};
    }
}

}  // namespace kelvra::parser
