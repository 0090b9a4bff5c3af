// SPDX-License-Identifier: GPL-3.0-or-later
// The trend window: draws what the trend keeps, in the span and unit that are chosen, ends at the
// present while sensors are measured, and stands still while it is paused. While it is hidden it
// does nothing; it catches up when it is shown. Limits are typed here (limit_entry.h), and
// the picture's data is copied and saved (trend_data.h).
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "forms/forms.h"
#include "measure/listener.h"
#include "measure/trend_store.h"
#include "platform/host.h"
#include "ui/limit_entry.h"
#include "ui/sensor_selection.h"
#include "ui/trend_limits.h"
#include "ui/trend_picture.h"
#include "ui/trend_table.h"

namespace kelvra::ui {

class TrendWindow final : public measure::MeasurementListener,
                          public measure::PassListener,
                          public CurrentSensorListener {
public:
    struct Parts {
        forms::Forms& forms;
        measure::TrendStore& store;
        const sensors::SensorTable& table;
        TrendLimits& limits;
        SensorSelection& selection;
        platform::Host& host;
    };

    // As many as a large screen has pixels for.
    static constexpr int Columns = 1200;

    explicit TrendWindow(const Parts& parts);

    // What is shown.
    const TrendPicture& Picture() const { return picture_; }
    TrendUnit Unit() const;

    void Started() override;
    void Stopped() override;
    void ModesChanged() override { Redraw(); }
    void Awaited(int slot, const std::string& complaint) override;
    void PassSeen(platform::Duration now, platform::Duration lasted) override;
    void CurrentSensorChanged() override { Redraw(); }
    void ListedChanged() override { Redraw(); }

private:
    void Connect();
    void SetUpLists();
    platform::Duration Present() const;
    void MoveTo(platform::Duration now);
    void Redraw();
    void PlaceAxis();
    void ListSensors();
    void TakePicture();
    void DrawCurves();
    void DrawLimits();
    void Choose(int sensor);
    int Chosen() const { return form_.TrendSensor.Data(); }  // in the picture; -1: none
    void TogglePause();
    void ToggleZoom();
    void ShowAll();
    void ShowPointed(double x);
    std::string ColumnText(const measure::TrendColumn& column) const;
    std::string PowerText(double powerW) const;
    platform::Duration Span() const;
    // Between the graph's x and the monotonic clock.
    double XOf(platform::Duration time) const;
    platform::Duration TimeOf(double x) const;

    Parts p_;
    forms::TrendForm& form_;
    controls::Graph& graph_;
    LimitEntry limitEntry_;
    TrendTable table_;
    TrendPicture picture_;
    std::string chosenKey_;
    bool measuring_ = false;
    platform::Duration stopped_{};             // when the last measurement ended
    platform::Duration end_{};                 // of the shown time
    std::optional<platform::Duration> drawn_;  // when it was drawn last
    double origin_ = 0;                        // x at the beginning of the monotonic clock
};

}  // namespace kelvra::ui
