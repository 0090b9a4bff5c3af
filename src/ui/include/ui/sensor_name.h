// SPDX-License-Identifier: GPL-3.0-or-later
// What sensors are called: the name that the user has given in the setup dialog, else that of the
// device list, else the channel number. The user's name is kept where the device-list library finds
// it again; where Kelvra itself keeps that place, it is read from there.
#pragma once

#include <string>

#include "forms/forms.h"
#include "measure/listener.h"
#include "platform/host.h"
#include "sensors/sensor_table.h"
#include "ui/notice.h"
#include "ui/result_table.h"
#include "ui/selection_lists.h"

namespace kelvra::ui {

class SensorName final : public CurrentSensorListener, public measure::MeasurementListener {
public:
    struct Parts {
        forms::SetupForm& dialog;
        sensors::SensorTable& table;
        platform::Computer& computer;
        ResultTable& results;
        SensorSelection& selection;
        SelectionLists& lists;
        Notice& notice;
    };

    // Connects to the commit of the dialog's name box.
    explicit SensorName(const Parts& parts);

    void CurrentSensorChanged() override;
    // Sensors have changed places: those that are named by their slots get other names.
    void Started() override;

    // A sensor has appeared in the slot: looks for the user's name.
    void FindGivenName(int slot);
    // Names the slot's sensor, which the device list calls so; true when it had another name.
    bool Name(int slot, const std::string& listed);

    // Takes the name box's text for the slot; one without a visible character becomes the channel
    // number. A slot without a sensor has no name; a simulated sensor's is not stored. A name that
    // can't be stored is the sensor's name as long as it is plugged in.
    void StoreLogicalName(int slot);

private:
    void Store(int slot);

    Parts p_;
    std::string shownFor_;  // the resource of the sensor in the name box
};

}  // namespace kelvra::ui
