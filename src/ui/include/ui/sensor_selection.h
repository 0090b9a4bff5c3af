// SPDX-License-Identifier: GPL-3.0-or-later
// Which sensor is the current one: the sensor that the setup dialog shows and that the File menu
// loads and saves. Code that shows it listens here.
#pragma once

#include <string>

#include "sensors/sensor_table.h"
#include "util/listeners.h"

namespace kelvra::ui {

class CurrentSensorListener {
public:
    virtual ~CurrentSensorListener() = default;

    // Another sensor has become the current one, or its slot or name has changed.
    virtual void CurrentSensorChanged() {}
    // Who is to be listed, or a name, is another one.
    virtual void ListedChanged() {}
};

class SensorSelection {
public:
    explicit SensorSelection(sensors::SensorTable& table) : table_(table) {}

    util::Listeners<CurrentSensorListener> listeners;

    // Makes a present sensor the current one, even if it is switched off.
    void Select(int slot);

    // The user has switched or named a sensor.
    void TellListed();

    // Call after the table has changed. The current sensor remains the current one while it is
    // present, even in another slot. After that it is the first sensor that is switched on, if any.
    void Refresh();

private:
    // The current sensor, as last reported to the listeners.
    struct Known {
        int slot = -1;
        std::string sensor;
        std::string name;
        bool operator==(const Known&) const = default;
    };

    void Tell();

    sensors::SensorTable& table_;
    Known known_;
};

}  // namespace kelvra::ui
