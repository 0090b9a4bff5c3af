// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/settings_commands.h"

#include <filesystem>

#include "platform/data_folder.h"
#include "platform/profile_file.h"
#include "sensors/settings_file.h"

namespace kelvra::app {

namespace {
constexpr const char* Stem = "Sensor";
}  // namespace

SettingsCommands::SettingsCommands(forms::Forms& forms, sensors::SensorTable& table,
                                   platform::Host& host)
    : table_(table), host_(host) {
    forms.mdiMain.Load_Sensor_Settings.click.Connect([this] { LoadSensorSettings(); });
    forms.mdiMain.Save_Sensor_Settings.click.Connect([this] { SaveSensorSettings(); });
}

void SettingsCommands::LoadSensorSettings() {
    platform::FileQuestion question;
    question.title = "Load sensor configuration";
    question.filter = "Sensor Configuration (*.ini)|*.ini|All files (*.*)|*.*";
    const auto path = AskFile(question);
    if (!path) return;
    platform::ProfileFile file(host_.files, *path);
    if (file.LoadError()) {
        Tell("read", *path, file.LoadError());
        return;
    }
    sensors::TransferSettings(table_[table_.currentSensor].settings, file.Text(), Stem,
                              sensors::Transfer::Read);
    if (!sensors::HasSettings(file.Text(), Stem))
        host_.dialogs.Message(
            {}, "The file has no sensor settings. The defaults have been set.\r\n" + *path,
            platform::MessageIcon::Exclamation);
}

void SettingsCommands::SaveSensorSettings() {
    platform::FileQuestion question;
    question.title = "Save sensor configuration";
    question.filter = "Sensor Configuration (*.ini)|*.ini";
    question.proposed = host_.computer.Join(host_.computer.ProgramFolder(), "Settings.ini");
    question.save = true;
    const auto path = AskFile(question);
    if (!path) return;
    if (const auto error = Save(*path)) Tell("saved", *path, error);
}

// Where Kelvra's own files are, others may be changing them.
std::error_code SettingsCommands::Save(const std::string& path) {
    std::optional<platform::FolderLock> lock;
    const std::string folder = host_.computer.ProgramFolder();
    if (std::filesystem::path(path).parent_path() == folder) lock.emplace(host_.files, folder);
    if (lock && lock->Error()) return lock->Error();
    return sensors::TransferSettings(table_[table_.currentSensor].settings, host_.files, path, Stem,
                                     sensors::Transfer::Write);
}

// Events run while the dialog is open: the sensor may be another one afterwards.
std::optional<std::string> SettingsCommands::AskFile(const platform::FileQuestion& question) {
    const std::string sensor = table_[table_.currentSensor].sensorId;
    auto path = host_.dialogs.AskFile(question);
    if (!path || path->empty()) return std::nullopt;
    if (table_[table_.currentSensor].sensorId == sensor) return path;
    host_.dialogs.Message({}, "The sensor has changed meanwhile. Nothing was done.",
                          platform::MessageIcon::Exclamation);
    return std::nullopt;
}

void SettingsCommands::Tell(const char* what, const std::string& path,
                            const std::error_code& error) {
    host_.dialogs.Message({},
                          std::string("The settings could not be ") + what + ".\r\n" + path +
                              "\r\n" + error.message(),
                          platform::MessageIcon::Exclamation);
}

}  // namespace kelvra::app
