// SPDX-License-Identifier: GPL-3.0-or-later
#include "driver/debug_log.h"

#include <utility>

#include "platform/file_tools.h"
#include "util/text.h"

namespace kelvra::driver {

void DebugLog::Write(std::string_view text) {
    if (!enabled) return;
    const std::error_code error = platform::AppendToFile(files_, path, Line(text));
    if (std::exchange(failed_, static_cast<bool>(error)) == failed_) return;
    if (failed_ && onFailure) onFailure(path, error.message());
    if (!failed_ && onRecovery) onRecovery(path);
}

std::string DebugLog::Line(std::string_view text) {
    std::string line;
    if (timeStamps) {
        const auto timeOfDay = static_cast<float>(clock_.Now().SecondsSinceMidnight());
        line = util::GroupedText(timeOfDay, numbers_) + ":";
    }
    if (!util::TrimSpaces(header).empty()) line += " " + header;
    return line.append(text).append("\r\n");
}

void DebugLog::RemoveOld() {
    if (path.empty() || !files_.Exists(path)) return;
    const std::error_code error = files_.Remove(path);
    if (error && enabled && onFailure) onFailure(path, error.message());
}

}  // namespace kelvra::driver
