// SPDX-License-Identifier: GPL-3.0-or-later
// The names of sensors: the name that the user has given in the setup dialog, else the device
// list's name, else the channel number. The user's name is stored in the registry, where the
// device-list library finds it. If Kelvra keeps the registry itself, it reads the name there.
#pragma once

#include <map>
#include <string>

#include "forms/forms.h"
#include "measure/listener.h"
#include "platform/host.h"
#include "sensors/sensor_table.h"
#include "ui/notice.h"
#include "ui/result_table.h"
#include "ui/sensor_selection.h"

namespace kelvra::ui {

class SensorName final : public CurrentSensorListener, public measure::MeasurementListener {
public:
    struct Parts {
        forms::SetupForm& dialog;
        sensors::SensorTable& table;
        platform::Computer& computer;
        ResultTable& results;
        SensorSelection& selection;
        Notice& notice;
    };

    // Connects to the commit of the dialog's name box.
    explicit SensorName(const Parts& parts);

    void CurrentSensorChanged() override;
    // Sensors have changed places: those named by their slots get new names.
    void Started() override;

    // Call when a sensor has appeared in the slot: reads the user's name for it.
    void FindGivenName(int slot);
    // Names the slot's sensor; `listed` is its name in the device list. True if it had another
    // name.
    bool Name(int slot, const std::string& listed);

    // Takes the name box's text for the slot. A text without a visible character becomes the
    // channel number. A slot without a sensor gets no name, and a simulated sensor's name is not
    // stored. A name that can't be stored lasts as long as the sensor is plugged in.
    void StoreLogicalName(int slot);

private:
    void Store(int slot);

    Parts p_;
    std::map<std::string, std::string> given_;  // in this run, by SensorId; empty: by the slot
    std::string shownFor_;                      // the resource of the sensor in the name box
};

}  // namespace kelvra::ui
