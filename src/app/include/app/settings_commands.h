// SPDX-License-Identifier: GPL-3.0-or-later
// The File menu's entries that load and save the current sensor's settings from and to a file of
// the user's choice.
#pragma once

#include <optional>
#include <string>
#include <system_error>

#include "forms/forms.h"
#include "platform/host.h"
#include "sensors/sensor_table.h"

namespace kelvra::app {

class SettingsCommands {
public:
    SettingsCommands(forms::Forms& forms, sensors::SensorTable& table, platform::Host& host);

    // The settings in memory are replaced; they reach the sensor with its next transfer. A file
    // that can't be read leaves them as they were; that is reported, and so is one without
    // settings, which sets the defaults.
    void LoadSensorSettings();
    // Keys of an existing file are overwritten, everything else in it stays. A failure is told.
    void SaveSensorSettings();

private:
    // Asks for a file; nothing when cancelled, or when the current sensor has gone meanwhile.
    std::optional<std::string> AskFile(const platform::FileQuestion& question);
    std::error_code Save(const std::string& path);
    void Tell(const char* what, const std::string& path, const std::error_code& error);

    sensors::SensorTable& table_;
    platform::Host& host_;
};

}  // namespace kelvra::app
