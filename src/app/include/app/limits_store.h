// SPDX-License-Identifier: GPL-3.0-or-later
// The limits of the sensors' levels in the application INI file, a section for each sensor. They
// are written when they are edited. Simulated sensors are not written. A failure is reported in
// the notice and the log until the file could be read or written.
#pragma once

#include <optional>
#include <string>
#include <system_error>

#include "driver/debug_log.h"
#include "platform/computer.h"
#include "platform/files.h"
#include "ui/notice.h"
#include "ui/trend_limits.h"

namespace kelvra::app {

class LimitsStore {
public:
    LimitsStore(platform::Files& files, driver::DebugLog& log, ui::Notice& notice)
        : files_(files), log_(log), notice_(notice) {}

    // Call first.
    void Open(platform::Computer& computer);

    // A value that is no level counts as none, and so do limits that exclude each other. Nothing if
    // the file could not be read.
    std::optional<ui::LevelLimits> Read(const std::string& sensorId);
    // Writes only what differs from `before`: another Kelvra may have changed the rest. False if it
    // could not be written.
    bool Save(const std::string& sensorId, const ui::LevelLimits& before,
              const ui::LevelLimits& limits);

private:
    std::error_code Write(const std::string& section, const ui::LevelLimits& before,
                          const ui::LevelLimits& limits);
    // Gives whether there was an error.
    bool Report(const std::string& what, const std::error_code& error);

    platform::Files& files_;
    driver::DebugLog& log_;
    ui::Notice& notice_;
    std::string folder_;
    std::string iniPath_;
};

}  // namespace kelvra::app
