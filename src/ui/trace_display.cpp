// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/trace_display.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <tuple>
#include <utility>

#include "measure/slot_powers.h"
#include "ui/level_axis.h"
#include "util/levels.h"

namespace kelvra::ui {

using controls::Graph;
using sensors::SensorEntry;
using sensors::SensorSettings;

namespace {

constexpr double MsPerSecond = 1000;
constexpr const char* ZoomedTag = "zoomed";

// What a redraw shows of the settings besides the trace itself.
auto Drawn(const SensorSettings& s) {
    return std::tie(s.TrigSource, s.TrigLevel, s.TrigDelay, s.TSlotCount, s.TSlotWidth,
                    s.TSlotExclStart, s.TSlotExclStop, s.TSlotExclDispInSlot);
}

// Decimals of a time in ms that tell neighbouring points apart, to 1 ns.
int DecimalsFor(double step) {
    constexpr double fewest = 3, most = 6;
    if (!(step > 0)) return static_cast<int>(fewest);
    return static_cast<int>(std::clamp(1 - std::floor(std::log10(step)), fewest, most));
}

// The shown index of a value nearest to x, -1 without one.
int NearestTo(const Graph::Plot& curve, double x) {
    const double last = static_cast<double>(curve.values.size()) - 1;
    if (last < 0) return -1;
    const double place = curve.step > 0 ? (x - curve.first) / curve.step : 0;
    return static_cast<int>(std::clamp(std::nearbyint(place), 0.0, last));
}

}  // namespace

TraceDisplay::TraceDisplay(const Parts& parts)
    : p_(parts),
      form_(parts.forms.scopeDisp),
      graph_(form_.Display),
      held_(form_),
      pulses_(form_, parts.host.computer.Numbers()),
      cursorEntry_(form_, parts.host.computer.Numbers()) {
    const sensors::DisplayScaling start;
    graph_.SetY({start.minScope, start.maxScope});
    p_.selection.listeners.Add(*this);
    p_.edits.listeners.Add(*this);
    form_.Scope_Sensorselect.click.Connect([this] { Choose(); });
    for (controls::CheckBox* box : {&form_.ShowTSlotMarkers, &form_.chkAddBoundingBox})
        box->click.Connect([this] { Redraw(); });
    form_.ShowPulse.click.Connect([this] {
        form_.PulseFrame.visible = form_.ShowPulse.Checked();
        Redraw();
    });
    form_.Scope_Zoom_Button.click.Connect([this] { ToggleZoom(); });
    graph_.cursorChange.Connect([this](int cursor, double x, double y) { Dragged(cursor, x, y); });
    graph_.cursorRelease.Connect([this](int) { Released(); });
    graph_.nudge.Connect([this](int) { drag_.reset(); });
    graph_.pointed.Connect([this](double x, double) { ShowPointed(x); });
    graph_.left.Connect([this] { form_.lblPointed.caption = std::string(); });
    // These can show the window again.
    p_.forms.mdiMain.resize.Connect([this] { Redraw(); });
    p_.forms.mdiMain.WindowTrace.click.Connect([this] { Redraw(); });
    SayWhatIsAwaited(false);
}

bool TraceDisplay::Zoomed() const {
    return form_.Scope_Zoom_Button.tag.Get() == ZoomedTag;
}

int TraceDisplay::ShownIndex(TraceCursor cursor) const {
    const int index = cursor;
    return index < graph_.CursorCount() && graph_.CursorAt(index).visible ? index : -1;
}

// The sensor that the user chooses here becomes the current one.
void TraceDisplay::Choose() {
    p_.selection.Select(Slot());
    Redraw();
}

void TraceDisplay::ArrayArrived(int slot) {
    if (form_.visible && slot == Slot()) Draw(slot);
}

void TraceDisplay::SettingsEdited(int slot, const SensorSettings& before) {
    if (slot == Slot() && Drawn(before) != Drawn(p_.table[slot].settings)) Redraw();
}

void TraceDisplay::Redraw() {
    if (!form_.visible) return;
    const int slot = Slot();
    if (const std::string sensor = slot < 0 ? "" : p_.table[slot].resourceName;
        std::exchange(drawnSensor_, sensor) != sensor) {
        held_.SensorChanged();
        if (graph_.Zoomed()) graph_.ZoomOut();
    }
    if (slot >= 0 && p_.table[slot].newTraceData)
        Draw(slot);
    else
        Clear();
}

void TraceDisplay::Clear() {
    graph_.SetCurve({});
    graph_.SetBox(std::nullopt);
    ShowLabels({}, 0);
    for (int cursor = 0; cursor < graph_.CursorCount(); ++cursor) {
        Graph::Cursor hidden = graph_.CursorAt(cursor);
        hidden.visible = false;
        graph_.SetCursor(cursor, hidden);
    }
    cursorEntry_.Refresh(0);
    pulses_.Show({});
}

void TraceDisplay::Draw(int slot) {
    SensorEntry& entry = p_.table[slot];
    const bool slots = form_.ShowTSlotMarkers.Checked();
    DrawCurve(entry);
    PlaceCursors(graph_, entry.settings, slots);
    entry.traceTriggerCursor = static_cast<std::int16_t>(ShownIndex(TrigLevelCursor) < 0 ? 0 : 1);
    Rescale(slot);
    ShowLabels(slots ? measure::SlotPowers(entry.results, entry.settings) : std::vector<double>(),
               entry.settings.TSlotWidth);
    ShowBox(entry.settings);
    held_.TraceDrawn();
    cursorEntry_.Refresh(entry.settings.TrigDelay * MsPerSecond);
    if (pulses_.Wanted()) ShowPulses(entry);
}

// The time axis stays while the zoom is on; a part that is shown stays anyway.
void TraceDisplay::DrawCurve(const SensorEntry& entry) {
    const SensorSettings& settings = entry.settings;
    std::vector<double> levels = entry.results;
    util::ArrayW2dBm(levels);
    const double first = settings.ScopeOffset * MsPerSecond;
    const double points = std::max(static_cast<double>(levels.size()), 1.0);
    if (!graph_.SetCurve({first, settings.ScopeTime * MsPerSecond / points, std::move(levels)}))
        graph_.SetCurve({});  // times beyond all measure
    const Graph::Axis& time = graph_.WholeAxes().x;
    if (!Zoomed() || graph_.Zoomed() || time.min == time.max)
        graph_.SetX({first, (settings.ScopeTime + settings.ScopeOffset) * MsPerSecond});
}

// The scale of the setup dialog is that of the sensor which the dialog shows.
void TraceDisplay::Rescale(int slot) {
    if (slot != p_.table.currentSensor || !p_.dialog.TraceScaleShown()) return;
    const sensors::DisplayScaling& scaling = p_.table.scaling[static_cast<std::size_t>(slot)];
    SetLevelAxis(graph_, scaling.autoScaleScope, {scaling.minScope, scaling.maxScope});
}

// A caption in the middle of each slot, at the upper end of the level axis.
void TraceDisplay::ShowLabels(const std::vector<double>& powers, double width) {
    const util::NumberForm& numbers = p_.host.computer.Numbers();
    const double top = graph_.WholeAxes().y.max;
    int label = 0;
    for (const double power : powers) {
        constexpr double middle = 0.5;
        Graph::Text text{(label + middle) * width * MsPerSecond, top,
                         util::FixedText(power, 2, numbers)};
        if (label < static_cast<int>(graph_.Labels().size()))
            graph_.SetLabel(label, std::move(text));
        else
            graph_.AddLabel(std::move(text));
        ++label;
    }
    while (static_cast<int>(graph_.Labels().size()) > label)
        graph_.RemoveLabel(static_cast<int>(graph_.Labels().size()) - 1);
}

// Around the trace between the exclusion lines.
void TraceDisplay::ShowBox(const SensorSettings& settings) {
    if (!form_.chkAddBoundingBox.Checked()) return void(graph_.SetBox(std::nullopt));
    const Graph::Axis zone = ExclusionZone(settings);
    const Graph::Plot& curve = graph_.Curve();
    Graph::Axis levels{std::numeric_limits<double>::infinity(),
                       -std::numeric_limits<double>::infinity()};
    for (std::size_t i = 0; i < curve.values.size(); ++i) {
        const double x = curve.first + static_cast<double>(i) * curve.step;
        if (x < zone.min || x > zone.max || !std::isfinite(curve.values[i])) continue;
        levels.min = std::min(levels.min, curve.values[i]);
        levels.max = std::max(levels.max, curve.values[i]);
    }
    if (!graph_.SetBox(Graph::Axes{zone, levels})) graph_.SetBox(std::nullopt);
}

void TraceDisplay::ShowPulses(const SensorEntry& entry) {
    const Graph::Plot& curve = graph_.Curve();
    measure::Gate gate;
    if (form_.ShowTSlotMarkers.Checked()) {
        const Graph::Axis zone = ExclusionZone(entry.settings);
        gate = {(zone.min - curve.first) / MsPerSecond, (zone.max - curve.first) / MsPerSecond};
    }
    pulses_.Show(measure::ReadPulses(entry.results, curve.step / MsPerSecond, gate));
}

void TraceDisplay::ToggleZoom() {
    const bool zoom = !Zoomed();
    form_.Scope_Zoom_Button.picture = zoom ? "zoomedPic" : "zoomPic";
    form_.Scope_Zoom_Button.tag = zoom ? ZoomedTag : "";
    graph_.SetTrack(zoom ? controls::TrackMode::ZoomRectangle : controls::TrackMode::CursorEvents);
    if (!zoom) Redraw();
}

void TraceDisplay::Dragged(int cursor, double x, double y) {
    const int slot = Slot();
    if (slot < 0) return;
    const SensorSettings& now = p_.table[slot].settings;
    if (!drag_) drag_ = Drag{p_.table[slot].resourceName, ValueOf(now, cursor)};
    if (drag_->sensor != p_.table[slot].resourceName) return;
    const SensorSettings after = AfterDrag(now, cursor, x, y);
    if (after == now)
        Redraw();  // the cursor goes back
    else
        p_.edits.Replace(slot, drag_->began.what, after, &graph_);
    ShowDrag(ValueOf(after, cursor));
}

void TraceDisplay::Released() {
    drag_.reset();
    p_.edits.EndStep();
}

void TraceDisplay::ShowDrag(const CursorValue& now) {
    const util::NumberForm& numbers = p_.host.computer.Numbers();
    constexpr int decimals = 3;
    const double change = now.value - drag_->began.value;
    form_.lblPointed.caption = now.what + " " + util::FixedText(now.value, decimals, numbers) +
                               " " + now.unit + " (" + (change < 0 ? "" : "+") +
                               util::FixedText(change, decimals, numbers) + ")";
}

void TraceDisplay::ShowPointed(double x) {
    const Graph::Plot& curve = graph_.Curve();
    const int nearest = NearestTo(curve, x);
    if (nearest < 0 || drag_) return;
    const util::NumberForm& numbers = p_.host.computer.Numbers();
    constexpr int levelDecimals = 2;
    form_.lblPointed.caption =
        util::FixedText(curve.first + nearest * curve.step, DecimalsFor(curve.step), numbers) +
        " ms: " +
        util::FixedText(curve.values[static_cast<std::size_t>(nearest)], levelDecimals, numbers) +
        " dBm";
}

void TraceDisplay::SayWhatIsAwaited(bool measuring) {
    graph_.emptyText = measuring ? "Waiting for the first trace" : "Start measures a trace";
}

}  // namespace kelvra::ui
