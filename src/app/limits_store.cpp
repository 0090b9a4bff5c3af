// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/limits_store.h"

#include <cmath>

#include "app/settings_store.h"
#include "platform/data_folder.h"
#include "platform/profile_file.h"
#include "sensors/settings_file.h"
#include "util/number_reading.h"

namespace kelvra::app {

namespace {

constexpr const char* LowKey = "Low";
constexpr const char* HighKey = "High";

std::string SectionOf(const std::string& sensorId) {
    return SectionStem(sensorId) + "_LIMIT";
}

// An id has a type and a serial number; a simulated sensor has no id.
bool IsKept(const std::string& sensorId) {
    return sensorId.find(';') != std::string::npos;
}

std::optional<double> LevelAt(const platform::ProfileText& text, const std::string& section,
                              const char* key) {
    const auto value = text.Find(section, key);
    if (!value) return std::nullopt;
    const util::NumberRead number = util::ReadNumberAt(*value);
    const bool isLevel = number.length == value->size() && number.length > 0 &&
                         std::abs(number.value) <= ui::HighestLevel;
    return isLevel ? std::optional(number.value) : std::nullopt;
}

void WriteLevel(platform::ProfileText& text, const std::string& section, const char* key,
                const std::optional<double>& level) {
    if (level)
        sensors::IniWrite(text, section, key, *level);
    else
        text.DeleteKey(section, key);
}

}  // namespace

void LimitsStore::Open(platform::Computer& computer) {
    folder_ = computer.ProgramFolder();
    iniPath_ = computer.Join(folder_, "Kelvra.INI");
}

ui::LevelLimits LimitsStore::Read(const std::string& sensorId) {
    if (!IsKept(sensorId)) return {};
    platform::ProfileFile file(files_, iniPath_);
    Report("read", file.LoadError());
    const std::string section = SectionOf(sensorId);
    const ui::LevelLimits limits{LevelAt(file.Text(), section, LowKey),
                                 LevelAt(file.Text(), section, HighKey)};
    return limits.low && limits.high && *limits.low > *limits.high ? ui::LevelLimits{} : limits;
}

void LimitsStore::Save(const std::string& sensorId, const ui::LevelLimits& limits) {
    if (IsKept(sensorId)) Report("saved", Write(SectionOf(sensorId), limits));
}

std::error_code LimitsStore::Write(const std::string& section, const ui::LevelLimits& limits) {
    const platform::FolderLock lock(files_, folder_);
    if (lock.Error()) return lock.Error();
    platform::ProfileFile file(files_, iniPath_);
    if (file.LoadError()) return file.LoadError();
    WriteLevel(file.Text(), section, LowKey, limits.low);
    WriteLevel(file.Text(), section, HighKey, limits.high);
    return file.Save();
}

void LimitsStore::Report(const std::string& what, const std::error_code& error) {
    // The settings in the same file have a trouble of their own.
    const std::string trouble = iniPath_ + " (limits)";
    if (!error) return notice_.EndFileTrouble(trouble);
    const std::string text =
        "The limits could not be " + what + ": " + iniPath_ + ": " + error.message();
    log_.Write(text);
    notice_.ShowFileTrouble(trouble, text);
}

}  // namespace kelvra::app
