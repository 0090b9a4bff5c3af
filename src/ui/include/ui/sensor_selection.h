// SPDX-License-Identifier: GPL-3.0-or-later
// Which sensor is the current one: the sensor that the setup dialog shows and that the File menu
// loads and saves. Whoever shows something of it listens here.
#pragma once

#include <string>

#include "sensors/sensor_table.h"
#include "util/listeners.h"

namespace kelvra::ui {

class CurrentSensorListener {
public:
    virtual ~CurrentSensorListener() = default;

    // Another sensor is the current one, or it has another slot or name than before.
    virtual void CurrentSensorChanged() = 0;
};

class SensorSelection {
public:
    explicit SensorSelection(sensors::SensorTable& table) : table_(table) {}

    util::Listeners<CurrentSensorListener> listeners;

    // Makes a present sensor the current one, also one that is switched off.
    void Select(int slot);

    // After the table has changed. The current sensor stays the current one as long as it is
    // present, in every slot; after that the first one that is switched on is, if there is any.
    void Refresh();

private:
    // As the listeners know it.
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
