// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/settings_commands.h"

#include <filesystem>
#include <optional>
#include <utility>

#include "driver/catalogue.h"
#include "platform/data_folder.h"
#include "platform/profile_file.h"
#include "sensors/settings_file.h"

namespace kelvra::app {

namespace {
constexpr const char* Stem = "Sensor";
}  // namespace

SettingsCommands::SettingsCommands(forms::Forms& forms, sensors::SensorTable& table,
                                   ui::SettingsEdits& edits, ui::Notice& notice,
                                   platform::Host& host)
    : table_(table), edits_(edits), notice_(notice), host_(host) {
    forms.mdiMain.Load_Sensor_Settings.click.Connect([this] { LoadSensorSettings(); });
    forms.mdiMain.Save_Sensor_Settings.click.Connect([this] { SaveSensorSettings(); });
}

void SettingsCommands::LoadSensorSettings() {
    platform::FileQuestion question;
    question.title = "Load sensor configuration";
    question.filter = "Sensor Configuration (*.ini)|*.ini|All files (*.*)|*.*";
    AskFile(question, [this](const std::string& path) { Load(path); });
}

void SettingsCommands::Load(const std::string& path) {
    platform::ProfileFile file(host_.files, path);
    if (file.LoadError()) return Complain("read", path, file.LoadError());
    sensors::SensorSettings settings = table_[table_.currentSensor].settings;
    sensors::TransferSettings(settings, file.Text(), Stem, sensors::Transfer::Read);
    edits_.Replace(table_.currentSensor, "loaded settings", settings);
    if (!driver::HasMode(sensors::TypeOf(table_[table_.currentSensor]), settings.Mode))
        host_.dialogs.Message({},
                              "This model does not have the mode that the file sets. Please choose "
                              "one of its modes.\r\n" +
                                  path,
                              platform::MessageIcon::Exclamation);
    if (sensors::HasSettings(file.Text(), Stem)) return Confirm("loaded from", path);
    host_.dialogs.Message({},
                          "The file has no sensor settings. The defaults have been set.\r\n" + path,
                          platform::MessageIcon::Exclamation);
}

void SettingsCommands::SaveSensorSettings() {
    platform::FileQuestion question;
    question.title = "Save sensor configuration";
    question.filter = "Sensor Configuration (*.ini)|*.ini";
    question.proposed = host_.computer.Join(host_.computer.ProgramFolder(), "Settings.ini");
    question.save = true;
    AskFile(question, [this](const std::string& path) { Save(path); });
}

void SettingsCommands::Save(const std::string& path) {
    const std::error_code error = Write(path);
    if (error) return Complain("saved", path, error);
    Confirm("saved to", path);
}

// In the data folder, another Kelvra may be changing the file.
std::error_code SettingsCommands::Write(const std::string& path) {
    std::optional<platform::FolderLock> lock;
    const std::string folder = host_.computer.ProgramFolder();
    if (std::filesystem::path(path).parent_path() == folder) lock.emplace(host_.files, folder);
    if (lock && lock->Error()) return lock->Error();
    const sensors::SensorSettings& stored = table_[table_.currentSensor].settings;
    sensors::SensorSettings saved = stored;
    const std::error_code error =
        sensors::TransferSettings(saved, host_.files, path, Stem, sensors::Transfer::Write);
    // Saving resets a setting that files don't keep.
    if (saved != stored) edits_.Replace(table_.currentSensor, "saved settings", saved);
    return error;
}

void SettingsCommands::AskFile(platform::FileQuestion question,
                               const std::function<void(const std::string& path)>& goOn) {
    const std::string sensor = table_[table_.currentSensor].resourceName;
    question.about = SensorText();
    host_.dialogs.AskFile(
        question, [this, sensor, goOn](const std::optional<platform::ChosenFile>& file) {
            if (!file || file->path.empty()) return;
            if (table_[table_.currentSensor].resourceName == sensor) return goOn(file->path);
            host_.dialogs.Message({}, "The current sensor has changed meanwhile. Please try again.",
                                  platform::MessageIcon::Exclamation);
        });
}

void SettingsCommands::Confirm(const char* what, const std::string& path) {
    notice_.ShowDone("Settings of " + SensorText() + " " + what + " " +
                     std::filesystem::path(path).filename().string());
}

void SettingsCommands::Complain(const char* what, const std::string& path,
                                const std::error_code& error) {
    host_.dialogs.Message({},
                          std::string("The settings could not be ") + what + ".\r\n" + path +
                              "\r\n" + error.message(),
                          platform::MessageIcon::Exclamation);
}

}  // namespace kelvra::app
