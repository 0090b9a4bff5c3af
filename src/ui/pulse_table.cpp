// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/pulse_table.h"

#include <iterator>
#include <optional>
#include <string>

#include "util/levels.h"

namespace kelvra::ui {

using measure::PulseReadings;

namespace {

enum class Unit { Level, Percent, Time };

struct Row {
    const char* name;
    std::optional<double> PulseReadings::*reading;
    Unit unit;
    const char* tooltip;
};

constexpr Row Rows[] = {
    {"Peak", &PulseReadings::peak, Unit::Level, "The largest value of the trace"},
    {"Average", &PulseReadings::average, Unit::Level,
     "The mean power between the exclusion lines, or of the whole trace if they are not shown"},
    {"Top", &PulseReadings::top, Unit::Level, "The power while the pulse is on"},
    {"Base", &PulseReadings::base, Unit::Level, "The power between pulses"},
    {"Overshoot", &PulseReadings::overshoot, Unit::Percent,
     "How far the pulse exceeds its top, in percent of the step from base to top"},
    {"Rise time", &PulseReadings::riseTime, Unit::Time, "From 10 % to 90 % of the step"},
    {"Fall time", &PulseReadings::fallTime, Unit::Time, "From 90 % to 10 % of the step"},
    {"Width", &PulseReadings::width, Unit::Time, "From edge to edge at 50 % of the step"},
    {"Period", &PulseReadings::period, Unit::Time, "From an edge to the next like it"},
    {"Duty cycle", &PulseReadings::dutyCycle, Unit::Percent, "Width in percent of the period"},
};

constexpr int NameColumn = 0, ValueColumn = 1;

std::string TextOf(const std::optional<double>& reading, Unit unit, const util::NumberForm& form) {
    if (!reading) return "-";
    switch (unit) {
        case Unit::Level:
            return *reading > 0 ? util::FixedText(util::WToDbm(*reading), 2, form) + " dBm" : "-";
        case Unit::Percent:
            return util::FixedText(*reading, 1, form) + " %";
        case Unit::Time:
            break;
    }
    constexpr double micro = 1e6, milli = 1e3, changes = 1e-3;
    return *reading < changes ? util::FixedText(*reading * micro, 2, form) + " \u00B5s"
                              : util::FixedText(*reading * milli, 3, form) + " ms";
}

}  // namespace

PulseTable::PulseTable(forms::ScopeDisp& form, const util::NumberForm& numbers)
    : form_(form), numbers_(numbers) {
    controls::Grid& grid = form_.PulseReadings;
    grid.SetRows(1 + static_cast<int>(std::size(Rows)));
    controls::Grid::Look heading;
    heading.bold = true;
    grid.SetCell(0, NameColumn, "Reading", heading);
    grid.SetCell(0, ValueColumn, "Value", heading);
    grid.SetSample(NameColumn, "Duty cycle");
    grid.SetSample(ValueColumn, "-000.00 dBm");
    for (int row = 1; const Row& each : Rows) {
        grid.SetCell(row, NameColumn, each.name, {});
        grid.SetCellTooltip(row++, NameColumn, each.tooltip);
    }
    Show({});
}

void PulseTable::Show(const PulseReadings& readings) {
    for (int row = 1; const Row& each : Rows)
        form_.PulseReadings.SetCell(row++, ValueColumn,
                                    TextOf(readings.*each.reading, each.unit, numbers_), {});
}

}  // namespace kelvra::ui
