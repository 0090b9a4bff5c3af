// SPDX-License-Identifier: GPL-3.0-or-later
#include "driver/debug_log.h"

#include "platform/file_tools.h"
#include "util/text.h"

namespace kelvra::driver {

void DebugIf::OutputDebug(std::string_view text) {
    if (!STAT) return;
    const std::error_code error = platform::AppendToFile(files_, DebugFileName, Line(text));
    if (!error || failed_) return;
    failed_ = true;
    if (onFailure) onFailure(DebugFileName, error.message());
}

std::string DebugIf::Line(std::string_view text) {
    std::string line;
    if (TimeSamping) {
        const auto timeOfDay = static_cast<float>(clock_.Now().SecondsSinceMidnight());
        line = util::GroupedText(timeOfDay, numbers_) + ":";
    }
    if (!util::TrimSpaces(DebugHeader).empty()) line += " " + DebugHeader;
    return line.append(text).append("\r\n");
}

void DebugIf::KillOld() {
    if (DebugFileName.empty() || !files_.Exists(DebugFileName)) return;
    const std::error_code error = files_.Remove(DebugFileName);
    if (error && STAT && onFailure) onFailure(DebugFileName, error.message());
}

}  // namespace kelvra::driver
