// SPDX-License-Identifier: GPL-3.0-or-later
// Which controls of the main window and the setup dialog can be used: one function that determines
// it from the state, and one writer. Nothing else enables or disables these controls.
#pragma once

#include "driver/catalogue.h"
#include "forms/forms.h"
#include "sensors/sensor_settings.h"

namespace kelvra::ui {

// What Kelvra is doing.
enum class Activity {
    Idle,
    Opening,    // Start opens the sensors and sends their settings
    Measuring,  // passes run
    Held,       // Start has failed; Stop ends this
    Command,    // a self test, or a look at the information entries runs
    Zeroing,    // which Stop can end
};

struct Situation {
    Activity activity = Activity::Idle;
    bool simulation = false;
    // The current sensor's.
    driver::Capabilities model = driver::Capabilities::Unknown;
    bool takesTrigger = true;   // and its mode's settings
    bool takesAdvanced = true;  // range, sampling, continuous measurement
    sensors::SensorSettings settings;
};

struct EnableStates {
    bool start = false;
    bool stop = false;
    bool commands = false;   // zero, zero all, self test, information: frame and pictures
    bool averaging = false;  // the averaging controls, except for the switch
    bool averagingSlot = false;
    bool traceAveraging = false;  // the same for the trace mode
    bool dutyCycle = false;
    bool triggerPage = false;
    bool advancedPage = false;
    bool triggerLevel = false;

    bool operator==(const EnableStates&) const = default;
};

EnableStates FindEnableStates(const Situation& situation);

void ApplyEnableStates(forms::Forms& forms, const EnableStates& states);

}  // namespace kelvra::ui
