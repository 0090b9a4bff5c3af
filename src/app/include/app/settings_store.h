// SPDX-License-Identifier: GPL-3.0-or-later
// The application INI file: what it keeps for each slot and each sensor. Saves here are the
// program's own; one that fails costs nothing that was there, and is told in the notice and the
// log. What could not be saved is kept and saved with the next; what could not be read is not
// written over.
#pragma once

#include <map>
#include <set>
#include <string>
#include <vector>

#include "driver/debug_log.h"
#include "platform/files.h"
#include "platform/profile_file.h"
#include "sensors/sensor_table.h"
#include "ui/notice.h"

namespace kelvra::app {

class SettingsStore {
public:
    SettingsStore(platform::Files& files, driver::DebugLog& log, ui::Notice& notice)
        : files_(files), log_(log), notice_(notice) {}

    std::string iniPath;

    // Reads each slot's settings under "SENS" + channel number.
    void ReadSlots(sensors::SensorTable& table);
    // Reads the settings of each sensor under its SensorId.
    void Read(const std::vector<sensors::SensorEntry*>& entries);
    // Writes them, with one pass over the file; a sensor without a SensorId is not written.
    void Save(const std::vector<sensors::SensorEntry*>& entries);
    // What is wrong with the last save, for whoever outlives the windows; empty when all is saved.
    const std::string& SaveFailure() const { return saveFailure_; }

private:
    std::string Tell(const char* what, const std::error_code& error);

    platform::Files& files_;
    driver::DebugLog& log_;
    ui::Notice& notice_;
    std::map<std::string, sensors::SensorSettings> unsaved_;  // by SensorId
    std::set<std::string> unread_;                            // SensorIds
    std::string saveFailure_;
};

}  // namespace kelvra::app
