// SPDX-License-Identifier: GPL-3.0-or-later
// The debug log: a text file that traces the driver calls, written while it is switched on. Opens,
// appends and closes for every line, so that the last line before a crash is there.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "platform/clock.h"
#include "platform/files.h"
#include "util/number_text.h"

namespace kelvra::driver {

class DebugLog {
public:
    DebugLog(platform::Files& files, platform::Clock& clock, const util::NumberForm& numbers)
        : files_(files), clock_(clock), numbers_(numbers) {}

    bool enabled = false;  // logging is on
    std::string path;
    bool timeStamps = false;  // each line begins with the time of day: "00,043,200.000:"
    std::string header;       // each line's prefix, after the time and a space

    // Writes one line. Does nothing while logging is off.
    void Write(std::string_view text);
    // Deletes an existing log file, whether logging is on or off.
    void RemoveOld();

    // Called with the system's message when the log can't be written while logging is on, and when
    // it can be written again.
    std::function<void(const std::string& path, const std::string& reason)> onFailure;
    std::function<void(const std::string& path)> onRecovery;

private:
    std::string Line(std::string_view text);

    platform::Files& files_;
    platform::Clock& clock_;
    const util::NumberForm& numbers_;
    bool failed_ = false;
};

}  // namespace kelvra::driver
