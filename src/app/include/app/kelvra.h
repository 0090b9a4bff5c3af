// SPDX-License-Identifier: GPL-3.0-or-later
// The whole program without a front end: creates the state and the rooms, connects them, starts up
// and exits. A front end creates one, calls Start, runs its event loop and mirrors the forms.
#pragma once

#include "app/discovery.h"
#include "app/settings_commands.h"
#include "app/settings_store.h"
#include "app/windows.h"
#include "driver/debug_log.h"
#include "driver/device_list.h"
#include "driver/driver_library.h"
#include "driver/session.h"
#include "driver/transfer.h"
#include "forms/forms.h"
#include "measure/cycle.h"
#include "measure/listener.h"
#include "measure/readings.h"
#include "measure/recorder.h"
#include "measure/sensor_commands.h"
#include "measure/session_recovery.h"
#include "measure/state.h"
#include "platform/host.h"
#include "sensors/sensor_table.h"

namespace kelvra::app {

class Kelvra {
public:
    explicit Kelvra(platform::Host& host);

    // Start-up; call once (startup.cpp).
    void Start();
    // The exit routine, which runs once: ends a measurement, closes the session, saves the settings
    // of the present sensors, releases the device list, and ends the event loop. Running handlers
    // return when they next check (exit.cpp).
    void Exit();
    // The same at the user's request: a save that fails is shown in a message box.
    void ExitAsAsked();
    // Writes the settings of the present sensors, as the exit routine does.
    void SaveSettings();

    platform::Host& host;

    // State
    forms::Forms forms;
    sensors::SensorTable table;
    driver::SessionState session;
    measure::MeasureState state;
    measure::News news;

    // Rooms, each after those that it needs
    driver::DebugLog log;
    driver::DriverLibrary library;
    driver::DeviceCatalogue catalogue;
    driver::SessionNews sessionNews;
    driver::Session driverSession;
    driver::ConfigurationTransfer transfer;
    measure::Readings readings;
    measure::Modes modes;
    measure::Cycle cycle;
    measure::SessionRecovery recovery;
    measure::SensorCommands sensorCommands;
    measure::Recorder recorder;
    Windows windows;
    SettingsStore store;
    Discovery discovery;

private:
    void EndEverything();
    void Subscribe();
    void StartDebugLog();
    std::string Title();
    void CreateTable();
    void LayOutGrids();
    void StartDiscovery();

    SettingsCommands settingsCommands_;
};

}  // namespace kelvra::app
