// SPDX-License-Identifier: GPL-3.0-or-later
#include "parser/table_dump.h"

#include <string>

#include "util/number_text.h"

namespace kelvra::parser {

namespace {

std::string Text(std::int32_t value) {
    return util::TrimmedNumberText(std::int64_t{value});
}
std::string Text(double value) {
    return util::TrimmedNumberText(value);
}
std::string Text(std::string_view value) {
    return std::string(value);
}

// clang-format off
constexpr struct {
    std::string_view heading;
    std::string (*text)(const ExpressionEntry& entry);
} Columns[] = {
    {"Id",         [](const ExpressionEntry& entry) { return Text(entry.code); }},
    {"Fun",        [](const ExpressionEntry& entry) { return Text(entry.function); }},
    {"ArgTop",     [](const ExpressionEntry& entry) { return Text(entry.argumentCount); }},
    {"A0 Idx",     [](const ExpressionEntry& entry) { return Text(entry.arguments[0].variable); }},
    {"Arg0 Name",  [](const ExpressionEntry& entry) { return Text(entry.arguments[0].name); }},
    {"Arg0 Value", [](const ExpressionEntry& entry) { return Text(entry.arguments[0].value); }},
    {"A1 Idx",     [](const ExpressionEntry& entry) { return Text(entry.arguments[1].variable); }},
    {"Arg1 Name",  [](const ExpressionEntry& entry) { return Text(entry.arguments[1].name); }},
    {"Arg1 Value", [](const ExpressionEntry& entry) { return Text(entry.arguments[1].value); }},
    {"ArgOf",      [](const ExpressionEntry& entry) { return Text(entry.receiver); }},
    {"ArgIdx",     [](const ExpressionEntry& entry) { return Text(entry.receivingArgument); }},
    {"Value",      [](const ExpressionEntry& entry) { return Text(entry.value); }},
    {"PriLvl",     [](const ExpressionEntry& entry) { return Text(entry.priority); }},
    {"PosInExpr",  [](const ExpressionEntry& entry) { return Text(entry.position); }},
    {"PriIdx",     [](const ExpressionEntry& entry) { return Text(entry.order); }},
};
// clang-format on

template <class Cell>
std::string Line(Cell cell) {
    std::string line;
    for (const auto& column : Columns) {
        if (!line.empty()) line += '\t';
        line += cell(column);
    }
    return line;
}

}  // namespace

void DumpTable(std::span<const ExpressionEntry> table, const LineSink& sink) {
    sink("Dump Level ");
    sink("--------------------------------");
    sink(Line([](const auto& column) { return column.heading; }));
    for (const ExpressionEntry& entry : table.subspan(1))
        sink(Line([&](const auto& column) { return column.text(entry); }));
}

}  // namespace kelvra::parser
