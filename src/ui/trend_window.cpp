// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/trend_window.h"

#include <algorithm>
#include <chrono>
#include <cmath>

#include "ui/trend_time.h"
#include "util/levels.h"
#include "util/number_text.h"

namespace kelvra::ui {

using controls::Graph;
using platform::Duration;

namespace {

constexpr Duration DrawingPause = std::chrono::milliseconds(100);
constexpr Duration LongestPause = std::chrono::seconds(1);
constexpr double ClockSlack = 0.01;   // s: the wall clock is read to the millisecond
constexpr double FarthestTime = 1e9;  // s
constexpr const char* ZoomedTag = "zoomed";

constexpr struct {
    const char* name;
    int minutes;
} Spans[] = {
    {"1 minute", 1},  {"10 minutes", 10}, {"1 hour", 60},
    {"8 hours", 480}, {"1 day", 1440},    {"1 week", 10'080},
};
constexpr int StartSpan = 1;

constexpr std::int64_t PointerReach = 10;  // columns

constexpr const char* Units[] = {"dBm", "W"};  // in the order of TrendUnit

}  // namespace

TrendWindow::TrendWindow(const Parts& parts)
    : p_(parts),
      form_(parts.forms.trendForm),
      graph_(form_.TrendGraph),
      limitEntry_(form_, parts.limits, parts.host.computer.Numbers()),
      table_(form_.TrendValues, parts.limits, parts.host.computer.Numbers()) {
    SetUpLists();
    Connect();
    graph_.SetY({-100, 0});
    graph_.emptyText = std::string("Start measures readings");
}

void TrendWindow::SetUpLists() {
    for (int i = 0; const auto& span : Spans) form_.TrendSpan.Add(span.name, i++);
    form_.TrendSpan.Preselect(StartSpan);
    for (int i = 0; const char* unit : Units) form_.TrendUnit.Add(unit, i++);
    form_.TrendUnit.Preselect(0);
}

void TrendWindow::Connect() {
    p_.selection.listeners.Add(*this);
    form_.TrendSensor.click.Connect([this] { Choose(form_.TrendSensor.Data()); });
    form_.TrendValues.click.Connect([this](int row, int) { Choose(row - 1); });
    for (controls::List* list :
         std::initializer_list<controls::List*>{&form_.TrendSpan, &form_.TrendUnit})
        list->click.Connect([this] { ShowAll(); });
    form_.TrendPause.click.Connect([this] { TogglePause(); });
    form_.TrendZoom.click.Connect([this] { ToggleZoom(); });
    form_.ResetCounts.click.Connect([this] {
        p_.limits.ResetCounts();
        Redraw();
    });
    form_.ClearTrend.click.Connect([this] {
        p_.store.Clear();
        Redraw();
    });
    graph_.zoomIn.Connect([this](Graph::Axis, Graph::Axis) { Redraw(); });
    graph_.zoomOut.Connect([this] { Redraw(); });
    graph_.pointed.Connect([this](double x, double) { ShowPointed(x); });
    graph_.left.Connect([this] { form_.lblPointed.caption = std::string(); });
    limitEntry_.onEdit = [this] { Redraw(); };
    p_.forms.mdiMain.WindowTrend.click.Connect([this] {
        MoveTo(Present());
        Redraw();
    });
}

void TrendWindow::Started() {
    measuring_ = true;
    graph_.emptyText = std::string("Waiting for the first reading");
    MoveTo(p_.host.clock.Monotonic());
    Redraw();
}

void TrendWindow::Stopped() {
    measuring_ = false;
    graph_.emptyText = std::string("Start measures readings");
    stopped_ = p_.host.clock.Monotonic();
    MoveTo(stopped_);
    Redraw();
}

void TrendWindow::Awaited(int /*slot*/, const std::string& /*complaint*/) {
    if (form_.visible) PassSeen(p_.host.clock.Monotonic(), {});
}

// Slow spans need no fast drawing.
void TrendWindow::PassSeen(Duration now, Duration /*lasted*/) {
    if (!form_.visible || form_.TrendPause.Checked()) return;
    constexpr int shareOfColumn = 4;
    const Duration pause = std::clamp(picture_.width / shareOfColumn, DrawingPause, LongestPause);
    if (drawn_ && now - *drawn_ < pause) return;
    MoveTo(now);
    Redraw();
}

// After a measurement, the time of its end: nothing comes then.
Duration TrendWindow::Present() const {
    return measuring_ ? p_.host.clock.Monotonic() : stopped_;
}

void TrendWindow::MoveTo(Duration now) {
    if (!form_.TrendPause.Checked()) end_ = now;
}

void TrendWindow::Redraw() {
    if (!form_.visible) return;
    drawn_ = p_.host.clock.Monotonic();
    PlaceAxis();
    TakePicture();
    ListSensors();
    DrawCurves();
    table_.Write(picture_, Unit());
    limitEntry_.Show(Chosen() < 0 ? std::string() : chosenKey_);
}

Duration TrendWindow::Span() const {
    const int index = std::max(form_.TrendSpan.Data(), 0);
    return std::chrono::minutes(Spans[index].minutes);
}

TrendUnit TrendWindow::Unit() const {
    return form_.TrendUnit.Data() == 1 ? TrendUnit::Watts : TrendUnit::Dbm;
}

double TrendWindow::XOf(Duration time) const {
    return origin_ + std::chrono::duration<double>(time).count();
}

Duration TrendWindow::TimeOf(double x) const {
    const double time = std::clamp(x - origin_, -FarthestTime, FarthestTime);
    return std::chrono::microseconds(std::llround(time * 1e6));
}

// While a part is shown, or the picture stands still, times keep their places even if the wall
// clock is set. Columns begin at multiples of their width, so that they move as a whole.
void TrendWindow::PlaceAxis() {
    const double origin =
        LocalSeconds(p_.host.clock.At(end_)) - std::chrono::duration<double>(end_).count();
    if (!graph_.Zoomed() && !form_.TrendPause.Checked() && std::abs(origin - origin_) > ClockSlack)
        origin_ = origin;
    const Duration width = Span() / Columns;
    const Duration end = end_ - end_ % width + width;
    graph_.SetX({XOf(end - Span()), XOf(end)});
}

void TrendWindow::TakePicture() {
    const Graph::Axis& shown = graph_.ShownAxes().x;
    picture_.from = TimeOf(shown.min);
    const Duration length = TimeOf(shown.max) - picture_.from;
    picture_.width = std::max<Duration>(length / Columns, Duration(1));
    const Duration end = std::min(picture_.At(Columns), end_ + Duration(1));  // with what is at it
    picture_.sensors.clear();
    const auto add = [&](const std::string& key, const std::string& name) {
        TrendPicture::Sensor sensor;
        sensor.key = key;
        sensor.name = name;
        if (const measure::TrendSeries* series = p_.store.Find(key)) {
            sensor.place = series->Place();
            sensor.last = series->LastBefore(end);
            sensor.columns = series->Query(picture_.from, picture_.width, Columns, end);
        }
        picture_.sensors.push_back(std::move(sensor));
    };
    for (int slot = 0; slot < p_.table.Slots(); ++slot)
        if (p_.table[slot].present) add(sensors::KeyOf(p_.table[slot]), p_.table[slot].logicalName);
    for (const auto& series : p_.store.All())
        if (std::none_of(picture_.sensors.begin(), picture_.sensors.end(),
                         [&](const auto& sensor) { return sensor.key == series->Key(); }))
            add(series->Key(), series->name);
}

// The chosen sensor remains chosen while it is listed.
void TrendWindow::ListSensors() {
    std::vector<controls::List::Item> items;
    int chosen = 0;
    for (const TrendPicture::Sensor& sensor : picture_.sensors) {
        if (sensor.key == chosenKey_) chosen = static_cast<int>(items.size());
        items.push_back({sensor.name, static_cast<int>(items.size())});
    }
    const bool any = !items.empty();
    if (form_.TrendSensor.Items() != items) form_.TrendSensor.Fill(std::move(items));
    if (form_.TrendSensor.Index() != (any ? chosen : -1)) form_.TrendSensor.Preselect(chosen);
    if (any) chosenKey_ = picture_.sensors[static_cast<std::size_t>(chosen)].key;
}

void TrendWindow::DrawCurves() {
    const bool watts = Unit() == TrendUnit::Watts;
    graph_.yTitle = watts ? "Power (W)" : "Power (dBm)";
    graph_.prefixes = watts;
    std::vector<Graph::Series> all;
    Graph::Plot plot{XOf(picture_.from + picture_.width / 2),
                     std::chrono::duration<double>(picture_.width).count(),
                     {}};
    for (int i = 0; const TrendPicture::Sensor& sensor : picture_.sensors) {
        const bool chosen = i++ == Chosen();
        if (sensor.columns.empty()) continue;
        Graph::Series series = SeriesOf(sensor, Unit());
        series.front = chosen;
        if (chosen) plot.values = series.values;
        all.push_back(std::move(series));
    }
    DrawLimits();
    if (const auto axis = AxisAround(all, graph_.Limits(), Unit())) graph_.SetY(*axis);
    graph_.SetCurve(std::move(plot));
    graph_.SetSeries(std::move(all));
}

void TrendWindow::DrawLimits() {
    Graph::Band band;
    if (Chosen() >= 0) {
        const LevelLimits& limits = p_.limits.Of(chosenKey_);
        const auto shown = [&](const std::optional<double>& level) {
            return level && Unit() == TrendUnit::Watts ? std::optional(util::DbmToW(*level))
                                                       : level;
        };
        band = {shown(limits.low), shown(limits.high)};
    }
    graph_.SetLimits(band);
}

void TrendWindow::Choose(int sensor) {
    if (sensor < 0 || sensor >= static_cast<int>(picture_.sensors.size())) return;
    chosenKey_ = picture_.sensors[static_cast<std::size_t>(sensor)].key;
    Redraw();
}

// Stands still at the present.
void TrendWindow::TogglePause() {
    end_ = Present();
    Redraw();
}

void TrendWindow::ToggleZoom() {
    const bool zoom = form_.TrendZoom.tag.Get() != ZoomedTag;
    form_.TrendZoom.picture = zoom ? "zoomedPic" : "zoomPic";
    form_.TrendZoom.tag = zoom ? ZoomedTag : "";
    graph_.SetTrack(zoom ? controls::TrackMode::ZoomRectangle : controls::TrackMode::CursorEvents);
    if (!zoom) Redraw();
}

// Another span or unit shows all of the graph.
void TrendWindow::ShowAll() {
    if (graph_.Zoomed())
        graph_.ZoomOut();
    else
        Redraw();
}

// The column of the mouse, and for each sensor the nearest one with readings: the chosen one first.
void TrendWindow::ShowPointed(double x) {
    const std::int64_t column = (TimeOf(x) - picture_.from) / picture_.width;
    const platform::LocalTime time = p_.host.clock.At(TimeOf(x));
    const bool fine = picture_.width < std::chrono::seconds(1);
    std::string text;
    for (int i = 0; const TrendPicture::Sensor& sensor : picture_.sensors) {
        const auto near = TrendPicture::NearestTo(column, sensor, PointerReach);
        const bool chosen = i++ == Chosen();
        if (!near) continue;
        std::string own = "; " + sensor.name + " " + ColumnText(sensor.columns[*near]);
        if (chosen)
            text.insert(0, own);
        else
            text += own;
    }
    form_.lblPointed.caption = DayText(time) + " " + ClockText(time, fine) + text;
}

// "-10.02 dBm", and the range of several readings.
std::string TrendWindow::ColumnText(const measure::TrendColumn& column) const {
    const char* unit = Units[static_cast<int>(Unit())];
    std::string text = PowerText(column.mean) + " " + unit;
    if (column.count == 1) return text;
    return text + " (" + PowerText(column.min) + " to " + PowerText(column.max) + ")";
}

std::string TrendWindow::PowerText(double powerW) const {
    const util::NumberForm& numbers = p_.host.computer.Numbers();
    constexpr int decimals = 2;
    return Unit() == TrendUnit::Watts
               ? util::ScientificText(powerW, numbers)
               : util::FixedText(InUnit(powerW, TrendUnit::Dbm), decimals, numbers);
}

}  // namespace kelvra::ui
