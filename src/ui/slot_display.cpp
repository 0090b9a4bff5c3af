// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/slot_display.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <utility>
#include <vector>

#include "ui/level_axis.h"
#include "ui/trace_cursors.h"
#include "util/levels.h"
#include "util/number_text.h"

namespace kelvra::ui {

using controls::Graph;
using sensors::SensorEntry;
using sensors::SensorSettings;

namespace {
// Slot k is drawn from k - 0.5 to k + 0.5; the axis has some room on both sides.
constexpr double FirstEdge = 0.5;
constexpr double Room = 0.2;
}  // namespace

SlotDisplay::SlotDisplay(const Parts& parts)
    : p_(parts), form_(parts.forms.timeSlotDisp), graph_(form_.Display) {
    const sensors::DisplayScaling start;
    graph_.SetY({start.minTime, start.maxTime});
    p_.selection.listeners.Add(*this);
    p_.edits.listeners.Add(*this);
    form_.Timeslot_Sensorselect.click.Connect([this] { Choose(); });
    graph_.cursorChange.Connect([this](int, double, double level) { Dragged(level); });
    graph_.cursorRelease.Connect([this](int) { p_.edits.EndStep(); });
    graph_.nudge.Connect(
        [this](int steps) { graph_.MoveCursor(0, 0, graph_.CursorAt(0).y + steps * LevelStep); });
    graph_.pointed.Connect([this](double x, double) { ShowPointed(x); });
    graph_.left.Connect([this] { form_.lblPointed.caption = std::string(); });
    // These can show the window again.
    p_.forms.mdiMain.resize.Connect([this] { Redraw(); });
    p_.forms.mdiMain.WindowSlots.click.Connect([this] { Redraw(); });
    SayWhatIsAwaited(false);
}

// The sensor that the user chooses here becomes the current one.
void SlotDisplay::Choose() {
    p_.selection.Select(Slot());
    Redraw();
}

void SlotDisplay::ArrayArrived(int slot) {
    if (form_.visible && slot == Slot()) Draw(slot);
}

void SlotDisplay::SettingsEdited(int slot, const SensorSettings& before) {
    const SensorSettings& now = p_.table[slot].settings;
    if (slot == Slot() &&
        (now.TrigSource != before.TrigSource || now.TrigLevel != before.TrigLevel))
        Redraw();
}

void SlotDisplay::Redraw() {
    if (!form_.visible) return;
    const int slot = Slot();
    if (slot >= 0 && p_.table[slot].newSlotData) return Draw(slot);
    graph_.SetCurve({});
    PlaceLevel(nullptr);
}

void SlotDisplay::Draw(int slot) {
    DrawStairs(p_.table[slot]);
    PlaceLevel(&p_.table[slot]);
    Rescale(slot);
}

void SlotDisplay::DrawStairs(const SensorEntry& entry) {
    const auto slots = static_cast<std::size_t>(std::max<int>(entry.settings.TSlotCount, 0));
    std::vector<double> levels = entry.results;
    levels.resize(std::min(levels.size(), slots));
    util::ArrayW2dBm(levels);
    Graph::Plot stairs{FirstEdge, 1, {}};
    if (!levels.empty()) stairs.values.push_back(levels.front());
    stairs.values.insert(stairs.values.end(), levels.begin(), levels.end());
    graph_.SetCurve(std::move(stairs));
    const double end = static_cast<double>(levels.size()) + FirstEdge;
    graph_.SetX({FirstEdge - Room, end + Room});
}

// The only cursor, shown for the internal trigger.
void SlotDisplay::PlaceLevel(SensorEntry* entry) {
    const bool shown = entry != nullptr && entry->settings.TrigSource == sensors::InternalTrigger;
    const double level = entry == nullptr ? 0 : entry->settings.TrigLevel;
    if (graph_.CursorCount() == 0) graph_.AddCursor({.horizontal = true});
    graph_.SetCursor(0, {true, 0, level, shown, controls::CursorLook::Level});
    if (entry != nullptr) entry->slotTriggerCursor = static_cast<std::int16_t>(shown ? 1 : 0);
}

// The scale of the setup dialog is that of the sensor which the dialog shows.
void SlotDisplay::Rescale(int slot) {
    if (slot != p_.table.currentSensor || !p_.dialog.TimeSlotScaleShown()) return;
    const sensors::DisplayScaling& scaling = p_.table.scaling[static_cast<std::size_t>(slot)];
    SetLevelAxis(graph_, scaling.autoScaleTime, {scaling.minTime, scaling.maxTime});
}

void SlotDisplay::Dragged(double level) {
    const int slot = Slot();
    if (slot < 0) return;
    const SensorSettings& now = p_.table[slot].settings;
    const SensorSettings after = AfterDrag(now, TrigLevelCursor, 0, level);
    const CursorValue value = ValueOf(after, TrigLevelCursor);
    if (after == now)
        Redraw();  // the cursor goes back
    else
        p_.edits.Replace(slot, value.what, after, &graph_);
    form_.lblPointed.caption = value.what + " " +
                               util::FixedText(value.value, 1, p_.host.computer.Numbers()) + " " +
                               value.unit;
}

void SlotDisplay::ShowPointed(double x) {
    const double number = std::nearbyint(x);
    const std::vector<double>& stairs = graph_.Curve().values;  // the first slot has two values
    const bool isSlot = number >= 1 && number < static_cast<double>(stairs.size());
    const util::NumberForm& numbers = p_.host.computer.Numbers();
    constexpr int decimals = 3;
    form_.lblPointed.caption =
        !isSlot ? std::string()
                : "Slot " + util::FixedText(number, 0, numbers) + ": " +
                      util::FixedText(stairs[static_cast<std::size_t>(number)], decimals, numbers) +
                      " dBm";
}

void SlotDisplay::SayWhatIsAwaited(bool measuring) {
    graph_.emptyText =
        measuring ? "Waiting for the first time slots" : "Start measures the time slots";
}

}  // namespace kelvra::ui
