// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/display_data.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "ui/sensor_text.h"

namespace kelvra::ui {

using controls::Graph;
using controls::Held;

namespace {

std::vector<double> TimesOf(const Graph::Plot& curve) {
    std::vector<double> times;
    for (std::size_t i = 0; i < curve.values.size(); ++i)
        times.push_back(curve.first + static_cast<double>(i) * curve.step);
    return times;
}

constexpr double None = std::numeric_limits<double>::quiet_NaN();

}  // namespace

DisplayData::DisplayData(forms::Forms& forms, const sensors::SensorTable& table, DataForm& dataForm,
                         Notice& notice, platform::Host& host)
    : forms_(forms), table_(table), host_(host), form_(dataForm), saver_(notice, host) {
    forms_.scopeDisp.CopyTraceData.click.Connect([this] { Copy(&DisplayData::TraceText); });
    forms_.timeSlotDisp.CopySlotData.click.Connect([this] { Copy(&DisplayData::SlotText); });
    forms_.scopeDisp.SaveTraceData.click.Connect(
        [this] { Save(forms_.scopeDisp.Scope_Sensorselect, "Trace", &DisplayData::TraceText); });
    forms_.timeSlotDisp.SaveSlotData.click.Connect([this] {
        Save(forms_.timeSlotDisp.Timeslot_Sensorselect, "TimeSlots", &DisplayData::SlotText);
    });
}

void DisplayData::Copy(Maker make) {
    form_.Ask([this, make] { host_.dialogs.CopyText((this->*make)()); });
}

void DisplayData::Save(const controls::List& sensors, const char* what, Maker make) {
    const int slot = sensors.Data();
    const std::string sensor =
        slot >= 0 && slot < table_.Slots() ? SensorText(table_, slot) : std::string("no sensor");
    form_.Ask([this, make, what, sensor] {
        saver_.Save({"Data of ", sensor, (this->*make)(), "Save data",
                     "Comma-separated (*.csv)|*.csv", std::string(what) + ".csv"});
    });
}

// A value that is not finite, or is missing, is empty.
std::string DisplayData::Text(const std::vector<Column>& columns) const {
    const char* separator = form_.Separator();
    std::string text;
    std::size_t rows = 0;
    for (const Column& column : columns) {
        text.append(&column == &columns.front() ? "" : separator).append(column.heading);
        rows = std::max(rows, column.values.size());
    }
    text += DataForm::LineEnd;
    for (std::size_t row = 0; row < rows; ++row) {
        for (const Column& column : columns) {
            if (&column != &columns.front()) text += separator;
            const double value = row < column.values.size() ? column.values[row] : None;
            text += form_.Number(value);
        }
        text += DataForm::LineEnd;
    }
    return text;
}

// A reference with other times than the trace has them beside it.
std::string DisplayData::TraceText() const {
    const Graph& graph = forms_.scopeDisp.Display;
    const Graph::Plot& trace = graph.Curve();
    std::vector<Column> columns{{"Time (ms)", TimesOf(trace)}, {"Power (dBm)", trace.values}};
    const std::pair<Held, const char*> held[] = {
        {Held::Maximum, "Maximum"}, {Held::Minimum, "Minimum"}, {Held::Reference, "Reference"}};
    for (const auto& [which, name] : held) {
        const Graph::Plot& curve = graph.HeldCurve(which);
        if (curve.values.empty()) continue;
        const bool sameTimes = curve.first == trace.first && curve.step == trace.step &&
                               curve.values.size() <= trace.values.size();
        if (!sameTimes) columns.push_back({std::string(name) + " time (ms)", TimesOf(curve)});
        columns.push_back({std::string(name) + " (dBm)", curve.values});
    }
    return Text(columns);
}

std::string DisplayData::SlotText() const {
    std::vector<Column> columns{{"Time slot", {}}, {"Power (dBm)", {}}, {"Max (dBm)", {}},
                                {"Min (dBm)", {}}, {"Mean (dBm)", {}},  {"Sigma (dB)", {}}};
    const int slot = forms_.timeSlotDisp.Timeslot_Sensorselect.Data();
    if (slot < 0 || slot >= table_.Slots()) return Text(columns);
    for (int number = 1; const sensors::ReadingRing& ring : table_[slot].slotStats) {
        const auto statistics =
            ring.Statistics().value_or(sensors::LevelStatistics{None, None, None, None});
        const double values[] = {static_cast<double>(number++),
                                 ring.Index() < 0 ? None : ring.LastLevel(),
                                 statistics.max,
                                 statistics.min,
                                 statistics.mean,
                                 statistics.sigma};
        for (std::size_t column = 0; column < columns.size(); ++column)
            columns[column].values.push_back(values[column]);
    }
    return Text(columns);
}

}  // namespace kelvra::ui
