// SPDX-License-Identifier: GPL-3.0-or-later
// The whole program without a front end: creates the state and the rooms, wires them, starts up and
// exits. Front ends make one, call Start, run their event loop and mirror its forms.
#pragma once

#include "app/discovery.h"
#include "app/main_window.h"
#include "app/settings_commands.h"
#include "app/settings_store.h"
#include "driver/debug_log.h"
#include "driver/device_list.h"
#include "driver/driver_library.h"
#include "driver/session.h"
#include "driver/transfer.h"
#include "forms/forms.h"
#include "measure/calc_grid.h"
#include "measure/cycle.h"
#include "measure/readings.h"
#include "measure/result_table.h"
#include "measure/sensor_selection.h"
#include "measure/state.h"
#include "platform/host.h"
#include "sensors/sensor_table.h"
#include "ui/error_strip.h"
#include "ui/sensor_name.h"

namespace kelvra::app {

class Kelvra {
public:
    explicit Kelvra(platform::Host& host);

    // Start-up, once (startup.cpp).
    void Start();
    // The exit routine, once: ends a measurement, closes the session, saves the settings of the
    // present sensors, releases the device list, and ends the event loop. Handlers that are running
    // return at their next look (exit.cpp).
    void Exit();
    // Writes the settings of the present sensors, as exit does.
    void SaveSettings();

    platform::Host& host;

    // State
    forms::Forms forms;
    sensors::SensorTable table;
    driver::SessionState session;
    measure::MeasureState state;

    // Rooms, in the order in which they need each other
    driver::DebugLog log;
    driver::DriverLibrary library;
    driver::DeviceCatalogue catalogue;
    ui::ErrorStrip errorStrip;
    driver::Session driverSession;
    measure::SensorSelection selection;
    measure::ResultTable results;

private:
    // Marks a transfer in the result table, and lets the error strip act on how it went.
    class TransferEvents final : public driver::TransferMarks {
    public:
        TransferEvents(measure::ResultTable& results, ui::ErrorStrip& strip)
            : results_(results), strip_(strip) {}
        void TransferBegins(int slot) override;
        void TransferEnds(int slot) override;

    private:
        measure::ResultTable& results_;
        ui::ErrorStrip& strip_;
    };
    TransferEvents transferEvents_;

public:
    driver::ConfigurationTransfer transfer;
    measure::Readings readings;
    measure::CalcGrid calcGrid;
    SettingsStore store;
    MainWindow mainWindow;
    measure::Cycle cycle;
    Discovery discovery;

private:
    void ShowDelay(const std::string& text);
    void StartDebugLog();
    std::string Title();
    void CreateTable();
    void LayOutGrids();
    void StartDiscovery();

    ui::SensorName sensorName_;
    SettingsCommands settingsCommands_;
};

}  // namespace kelvra::app
