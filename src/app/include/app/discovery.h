// SPDX-License-Identifier: GPL-3.0-or-later
// Finds sensors while the program runs. Twice a second it reads which are connected, keeps each in
// its slot, loads and saves settings, and without any sensor offers two simulated ones. It never
// calls the measurement driver, and does nothing during a measurement or a sensor command.
#pragma once

#include <string>
#include <vector>

#include "app/settings_store.h"
#include "app/windows.h"
#include "driver/device_list.h"
#include "driver/session.h"
#include "forms/forms.h"
#include "measure/modes.h"
#include "measure/state.h"
#include "sensors/sensor_table.h"

namespace kelvra::app {

struct DiscoveryParts {
    forms::Forms& forms;
    sensors::SensorTable& table;
    driver::DeviceCatalogue& catalogue;
    driver::SessionState& session;
    measure::MeasureState& state;
    measure::Modes& modes;
    Windows& windows;
    SettingsStore& store;
};

class Discovery {
public:
    explicit Discovery(const DiscoveryParts& parts) : p_(parts) {}

    // The handler of the search timer. Does nothing if it is running already, or if there is no
    // table yet.
    void Search();

private:
    void Tick();
    bool Rests() const;
    void ShowConnection();
    void SaveWhatHasGone();
    void SizeTable();
    void RealSensors();
    void AssignDevices();
    void FindPresent();
    void Appear(int slot, const driver::DeviceListEntry& device);
    void NameSensor(int slot, const driver::DeviceListEntry& device);
    void Simulation();
    void EnterSimulation();
    void SwitchPresentOn();
    void ReleasePresent();
    void Repaint();
    const driver::DeviceListEntry* DeviceOf(const sensors::SensorEntry& entry) const;

    DiscoveryParts p_;
    bool running_ = false;
    bool changed_ = false;   // in this tick: the table must be painted
    bool vanished_ = false;  // in this tick: a known sensor has gone
};

}  // namespace kelvra::app
