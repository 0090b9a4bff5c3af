// SPDX-License-Identifier: GPL-3.0-or-later
// The window of a sensor's information entries: names and values side by side, to be copied or
// saved as text. It keeps showing what was read, also when the sensor has gone.
#pragma once

#include <string>
#include <vector>

#include "forms/forms.h"
#include "measure/command_listener.h"
#include "platform/host.h"
#include "ui/text_saver.h"

namespace kelvra::ui {

class InfoWindow {
public:
    InfoWindow(forms::Forms& forms, Notice& notice, platform::Host& host);

    // `sensor` as texts name it: "sensor 2 (Antenna)".
    void Show(const std::string& sensor, const std::vector<measure::InfoEntry>& entries);

private:
    void Copy();
    void Save();
    // A line for each entry.
    std::string Lines(const char* separator, const char* lineEnd) const;

    forms::SensInfoForm& form_;
    const controls::Window& dialog_;
    platform::Host& host_;
    TextSaver saver_;
    std::string sensor_;
    std::vector<measure::InfoEntry> entries_;  // as shown
};

}  // namespace kelvra::ui
