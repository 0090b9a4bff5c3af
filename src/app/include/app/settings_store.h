// SPDX-License-Identifier: GPL-3.0-or-later
// The application INI file: what it keeps for each slot and each sensor. A save that fails loses
// nothing that was stored; the notice and the log report it until a save succeeds. Settings that
// could not be saved are saved the next time, and settings that could not be read are not
// overwritten. Another Kelvra may change the file as well, so a save writes only what this one has
// changed.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

#include "driver/debug_log.h"
#include "platform/clock.h"
#include "platform/computer.h"
#include "platform/data_folder.h"
#include "platform/files.h"
#include "platform/profile_file.h"
#include "sensors/sensor_table.h"
#include "ui/notice.h"

namespace kelvra::app {

// The sensor's name in section names. Characters of a serial number that would end the name are
// replaced.
std::string SectionStem(std::string sensorId);

class SettingsStore {
public:
    SettingsStore(platform::Files& files, driver::DebugLog& log, ui::Notice& notice)
        : files_(files), log_(log), notice_(notice), use_(files) {}

    // Call first. The file is in the program's folder, which counts as in use from here on.
    void Open(platform::Computer& computer);

    // Reads each slot's settings under "SENS" + channel number.
    void ReadSlots(sensors::SensorTable& table);
    // Reads the settings of each sensor under its SensorId.
    void Read(const std::vector<sensors::SensorEntry*>& entries);
    // Writes their settings with one pass over the file. Skips sensors without a SensorId.
    void Save(const std::vector<sensors::SensorEntry*>& entries);
    // The user has edited settings.
    void NoteEdit(platform::Duration now) { edited_ = now; }
    // Saves edits some seconds after the last one. Call about twice a second.
    void SaveEdits(platform::Duration now, const std::vector<sensors::SensorEntry*>& entries);
    // The failure of the last save, empty if there was none; for use after the windows have gone.
    const std::string& SaveFailure() const { return saveFailure_; }

    // Looks whether other programs that use the folder have ended, if there were any.
    void LookForOthers();

private:
    // The known settings of a sensor since they were first read.
    struct Kept {
        sensors::SensorSettings inFile = sensors::DefaultSettings();  // as last read or written
        bool read = false;  // false: the file may have other settings, which were not read yet
        std::optional<sensors::SensorSettings> unsaved;
    };

    void ShowUse();
    void NoteLoad(const platform::ProfileFile& file);
    void Keep(const std::string& sensorId, sensors::SensorSettings settings);
    bool HasUnsaved() const;
    std::string WriteUnsaved();
    std::error_code Write();
    std::string Complaint(const std::string& what, const std::string& why);
    void ShowTrouble();

    platform::Files& files_;
    driver::DebugLog& log_;
    ui::Notice& notice_;
    platform::FolderUse use_;
    std::string folder_;
    std::string iniPath_;
    std::map<std::string, Kept> kept_;  // by SensorId
    std::string loadFailure_;           // of the latest read
    std::string useTrouble_;            // as last shown
    std::string saveFailure_;
    std::optional<platform::Duration> edited_;  // the last edit that is not saved yet
};

}  // namespace kelvra::app
