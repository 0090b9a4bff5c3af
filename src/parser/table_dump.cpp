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
    std::string (*text)(const ETEntry& entry);
} Columns[] = {
    {"Id",         [](const ETEntry& entry) { return Text(entry.Id); }},
    {"Fun",        [](const ETEntry& entry) { return Text(entry.Fun); }},
    {"ArgTop",     [](const ETEntry& entry) { return Text(entry.ArgTop); }},
    {"A0 Idx",     [](const ETEntry& entry) { return Text(entry.Arg[0].Idx); }},
    {"Arg0 Name",  [](const ETEntry& entry) { return Text(entry.Arg[0].Name); }},
    {"Arg0 Value", [](const ETEntry& entry) { return Text(entry.Arg[0].Value); }},
    {"A1 Idx",     [](const ETEntry& entry) { return Text(entry.Arg[1].Idx); }},
    {"Arg1 Name",  [](const ETEntry& entry) { return Text(entry.Arg[1].Name); }},
    {"Arg1 Value", [](const ETEntry& entry) { return Text(entry.Arg[1].Value); }},
    {"ArgOf",      [](const ETEntry& entry) { return Text(entry.ArgOf); }},
    {"ArgIdx",     [](const ETEntry& entry) { return Text(entry.ArgIdx); }},
    {"Value",      [](const ETEntry& entry) { return Text(entry.Value); }},
    {"PriLvl",     [](const ETEntry& entry) { return Text(entry.PriLvl); }},
    {"PosInExpr",  [](const ETEntry& entry) { return Text(entry.PosInExpr); }},
    {"PriIdx",     [](const ETEntry& entry) { return Text(entry.PriIdx); }},
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

void DumpTable(std::span<const ETEntry> table, const LineSink& sink) {
    sink("Dump Level ");
    sink("--------------------------------");
    sink(Line([](const auto& column) { return column.heading; }));
    for (const ETEntry& entry : table.subspan(1))
        sink(Line([&](const auto& column) { return column.text(entry); }));
}

}  // namespace kelvra::parser
