// SPDX-License-Identifier: GPL-3.0-or-later
// The rules of all windows: created over the forms, and subscribed to what the measurement, the
// driver and the selection publish.
#pragma once

#include "driver/driver_library.h"
#include "driver/notices.h"
#include "driver/transfer.h"
#include "forms/forms.h"
#include "measure/cycle.h"
#include "measure/listener.h"
#include "measure/modes.h"
#include "measure/recorder.h"
#include "measure/sensor_commands.h"
#include "measure/trend_store.h"
#include "platform/host.h"
#include "sensors/sensor_table.h"
#include "ui/about_box.h"
#include "ui/calc_grid.h"
#include "ui/display_data.h"
#include "ui/display_lists.h"
#include "ui/edit_history.h"
#include "ui/edit_menu.h"
#include "ui/enabling.h"
#include "ui/error_strip.h"
#include "ui/main_window.h"
#include "ui/notice.h"
#include "ui/reading_age.h"
#include "ui/record_menu.h"
#include "ui/record_status.h"
#include "ui/result_table.h"
#include "ui/selection_lists.h"
#include "ui/sensor_commands.h"
#include "ui/sensor_name.h"
#include "ui/sensor_selection.h"
#include "ui/settings_copy.h"
#include "ui/settings_edits.h"
#include "ui/setup_dialog.h"
#include "ui/slot_display.h"
#include "ui/slot_table.h"
#include "ui/speed_label.h"
#include "ui/start_messages.h"
#include "ui/status_marks.h"
#include "ui/trace_display.h"
#include "ui/trend_data.h"
#include "ui/trend_limits.h"
#include "ui/trend_window.h"

namespace kelvra::app {

struct Windows {
    struct Parts {
        forms::Forms& forms;
        sensors::SensorTable& table;
        measure::MeasureState& state;
        measure::Cycle& cycle;
        measure::SensorCommands& commands;
        measure::Modes& modes;
        measure::Recorder& recorder;
        measure::TrendStore& trend;
        const driver::DriverLibrary& drivers;
        platform::Host& host;
    };

    explicit Windows(const Parts& parts);

    ui::Notice notice;
    ui::ErrorStrip errorStrip;
    ui::SensorSelection selection;
    ui::SelectionLists lists;
    ui::ReadingAge readingAge;
    ui::TrendLimits limits;
    ui::ResultTable results;
    ui::StatusMarks marks;
    ui::EditHistory history;
    ui::CalcGrid calcGrid;
    ui::SpeedLabel speed;
    ui::Enabling enabling;
    ui::RecordMenu recordMenu;
    ui::RecordStatus recordStatus;
    ui::DisplayLists displayLists;
    ui::MainWindow mainWindow;
    ui::StartMessages startMessages;
    ui::SensorName sensorName;
    ui::SettingsEdits edits;
    ui::EditMenu editMenu;
    ui::SetupDialog setupDialog;
    ui::TraceDisplay traceDisplay;
    ui::SlotDisplay slotDisplay;
    ui::SlotTable slotTable;
    ui::TrendWindow trendWindow;
    ui::DataForm dataForm;
    ui::DisplayData displayData;
    ui::TrendData trendData;
    ui::SettingsCopy settingsCopy;
    ui::SensorCommands sensorCommands;
    ui::AboutBox aboutBox;

    // Listeners are called in this order.
    void Subscribe(measure::News& news, driver::SessionNews& session);
};

}  // namespace kelvra::app
