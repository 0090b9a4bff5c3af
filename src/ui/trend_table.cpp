// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/trend_table.h"

#include <algorithm>
#include <string>

#include "util/figure.h"

namespace kelvra::ui {

namespace {

enum Column { NameColumn, LastColumn, MinColumn, MaxColumn, MeanColumn, OutsideColumn };

constexpr struct {
    const char* heading;
    const char* tooltip;
    int width;           // twips
    const char* sample;  // empty: by the unit
} Columns[] = {
    {"Sensor", "", 1200, "Sensor at port 2"},
    {"Last", "The newest reading", 900, ""},
    {"Min", "The smallest reading of the shown time", 900, ""},
    {"Max", "The largest reading of the shown time", 900, ""},
    {"Mean", "The mean power of the shown time", 900, ""},
    {"Outside", "Readings outside the limits, since the counts were reset", 900, "1000000"},
};

constexpr controls::Grid::Look Plain{};

std::int32_t Counted(std::int64_t readings) {
    return static_cast<std::int32_t>(std::min<std::int64_t>(readings, INT32_MAX));
}

}  // namespace

TrendTable::TrendTable(controls::Grid& grid, TrendLimits& limits, const util::NumberForm& numbers)
    : grid_(grid), limits_(limits), numbers_(numbers) {
    for (int column = 0; const auto& each : Columns) {
        grid_.SetWidth(column, each.width);
        grid_.SetSample(column, each.sample);
        grid_.SetCellTooltip(0, column++, each.tooltip);
    }
    WriteHeading(TrendUnit::Dbm);
}

void TrendTable::WriteHeading(TrendUnit unit) {
    const bool watts = unit == TrendUnit::Watts;
    controls::Grid::Look bold;
    bold.bold = true;
    for (int column = 0; const auto& each : Columns) {
        std::string text = each.heading;
        const bool isPower = column >= LastColumn && column <= MeanColumn;
        if (isPower) text += watts ? "\r\n[W]" : "\r\n[dBm]";
        grid_.SetCell(0, column, text, bold);
        if (isPower) grid_.SetSample(column, watts ? "0.0000E+00" : "-970.000");
        ++column;
    }
}

void TrendTable::Write(const TrendPicture& picture, TrendUnit unit) {
    WriteHeading(unit);
    grid_.SetRows(1 + static_cast<int>(picture.sensors.size()));
    for (int row = 1; const TrendPicture::Sensor& sensor : picture.sensors)
        WriteRow(row++, sensor, unit);
}

void TrendTable::WriteRow(int row, const TrendPicture::Sensor& sensor, TrendUnit unit) {
    grid_.SetCell(row, NameColumn, sensor.name, Plain);
    WritePower(row, LastColumn, sensor.last, unit);
    const auto statistics = TrendPicture::StatisticsOf(sensor);
    const auto of = [&](double TrendPicture::Statistics::*value) {
        return statistics ? std::optional((*statistics).*value) : std::nullopt;
    };
    WritePower(row, MinColumn, of(&TrendPicture::Statistics::min), unit);
    WritePower(row, MaxColumn, of(&TrendPicture::Statistics::max), unit);
    WritePower(row, MeanColumn, of(&TrendPicture::Statistics::mean), unit);
    const std::int64_t outside = limits_.Outside(sensor.key);
    if (outside > 0 || limits_.Of(sensor.key).Any())
        grid_.SetCell(row, OutsideColumn, util::CountFigure(Counted(outside), numbers_), Plain);
    else
        grid_.SetCell(row, OutsideColumn, "", Plain);
}

void TrendTable::WritePower(int row, int column, std::optional<double> powerW, TrendUnit unit) {
    if (!powerW) return grid_.SetCell(row, column, "", Plain);
    const double value = InUnit(*powerW, unit);
    grid_.SetCell(row, column,
                  unit == TrendUnit::Watts ? util::ScientificFigure(value, numbers_)
                                           : util::FixedFigure(value, numbers_),
                  Plain);
}

}  // namespace kelvra::ui
