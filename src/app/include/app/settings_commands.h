// SPDX-License-Identifier: GPL-3.0-or-later
// The File menu's entries that load the current sensor's settings from a file and save them to one.
// A measurement goes on while the user chooses the file. The notice confirms what has been done.
#pragma once

#include <functional>
#include <string>
#include <system_error>

#include "forms/forms.h"
#include "platform/host.h"
#include "sensors/sensor_table.h"
#include "ui/notice.h"
#include "ui/sensor_text.h"
#include "ui/settings_edits.h"

namespace kelvra::app {

class SettingsCommands {
public:
    SettingsCommands(forms::Forms& forms, sensors::SensorTable& table, ui::SettingsEdits& edits,
                     ui::Notice& notice, platform::Host& host);

    // Replaces the settings, which counts as an edit: they are sent to the sensor before its next
    // measurement. A file that can't be read leaves them as they were, with a message. A file
    // without settings sets the defaults, with a message.
    void LoadSensorSettings();
    // Overwrites the settings' keys of an existing file and keeps everything else in it. A failure
    // gives a message.
    void SaveSensorSettings();

private:
    // Of the current sensor.
    std::string SensorText() const { return ui::SensorText(table_, table_.currentSensor); }
    void Confirm(const char* what, const std::string& path);
    // Asks for a file and passes it to goOn; not if the user cancels, nor if the current sensor is
    // a different one by then.
    void AskFile(platform::FileQuestion question,
                 const std::function<void(const std::string& path)>& goOn);
    void Load(const std::string& path);
    void Save(const std::string& path);
    std::error_code Write(const std::string& path);
    void Complain(const char* what, const std::string& path, const std::error_code& error);

    sensors::SensorTable& table_;
    ui::SettingsEdits& edits_;
    ui::Notice& notice_;
    platform::Host& host_;
};

}  // namespace kelvra::app
