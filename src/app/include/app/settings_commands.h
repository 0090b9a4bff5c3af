// SPDX-License-Identifier: GPL-3.0-or-later
// The File menu's entries that load and save the current sensor's settings from and to a file of
// the user's choice. Measuring goes on while the file is chosen.
#pragma once

#include <functional>
#include <string>
#include <system_error>

#include "forms/forms.h"
#include "measure/modes.h"
#include "platform/host.h"
#include "sensors/sensor_table.h"
#include "ui/enabling.h"

namespace kelvra::app {

class SettingsCommands {
public:
    SettingsCommands(forms::Forms& forms, sensors::SensorTable& table, measure::Modes& modes,
                     ui::Enabling& enabling, platform::Host& host);

    // The settings are replaced, which counts as an edit: they reach the sensor before its next
    // measurement. A file that can't be read leaves them as they were. A message says so, and
    // also when the file has no settings, which sets the defaults.
    void LoadSensorSettings();
    // Keys of an existing file are overwritten, everything else in it stays. A message says when it
    // failed.
    void SaveSensorSettings();

private:
    // Asks for a file and goes on with it; not when cancelled, nor when the current sensor is
    // another one by then.
    void AskFile(const platform::FileQuestion& question,
                 std::function<void(const std::string& path)> goOn);
    void Load(const std::string& path);
    void Save(const std::string& path);
    std::error_code Write(const std::string& path);
    void Complain(const char* what, const std::string& path, const std::error_code& error);

    sensors::SensorTable& table_;
    measure::Modes& modes_;
    ui::Enabling& enabling_;
    platform::Host& host_;
};

}  // namespace kelvra::app
