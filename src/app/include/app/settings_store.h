// SPDX-License-Identifier: GPL-3.0-or-later
// The application INI file: what it keeps for each slot and each sensor. Saves here are the
// program's own; one that fails costs nothing that was there, and is reported in the notice and the
// log until one succeeds. What could not be saved is kept and saved with the next; what could not
// be read is not written over. Another Kelvra may change the file as well: a save writes what this
// one has changed.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

#include "driver/debug_log.h"
#include "platform/computer.h"
#include "platform/data_folder.h"
#include "platform/files.h"
#include "platform/profile_file.h"
#include "sensors/sensor_table.h"
#include "ui/notice.h"

namespace kelvra::app {

class SettingsStore {
public:
    SettingsStore(platform::Files& files, driver::DebugLog& log, ui::Notice& notice)
        : files_(files), log_(log), notice_(notice), use_(files) {}

    // Before all else: the file is in the program's folder, which is in use from now on.
    void Open(platform::Computer& computer);

    // Reads each slot's settings under "SENS" + channel number.
    void ReadSlots(sensors::SensorTable& table);
    // Reads the settings of each sensor under its SensorId.
    void Read(const std::vector<sensors::SensorEntry*>& entries);
    // Writes them, with one pass over the file; a sensor without a SensorId is not written.
    void Save(const std::vector<sensors::SensorEntry*>& entries);
    // What is wrong with the last save, for whoever outlives the windows; empty when all is saved.
    const std::string& SaveFailure() const { return saveFailure_; }

private:
    // What is known of a sensor's settings since its first reading.
    struct Kept {
        sensors::SensorSettings inFile = sensors::DefaultSettings();  // as last read or written
        bool read = false;  // not yet, or the file could not be read: it may have other settings
        std::optional<sensors::SensorSettings> unsaved;
    };

    void LookForOthers();
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
    std::string loadFailure_;           // of the last reading
    std::string saveFailure_;
};

}  // namespace kelvra::app
