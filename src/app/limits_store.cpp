// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/limits_store.h"

#include <cmath>

#include "app/settings_store.h"
#include "platform/data_folder.h"
#include "platform/profile_file.h"
#include "sensors/settings_file.h"
#include "util/number_reading.h"
#include "util/text.h"

namespace kelvra::app {

namespace {

constexpr const char* LowKey = "Low";
constexpr const char* HighKey = "High";

std::string SectionOf(const std::string& sensorId) {
    return SectionStem(sensorId) + "_LIMIT";
}

// An id has a type and a serial number; a simulated sensor has no serial number.
bool IsKept(const std::string& sensorId) {
    return !util::SplitAtFirst(sensorId, ';').after.empty();
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

std::optional<ui::LevelLimits> LimitsStore::Read(const std::string& sensorId) {
    if (!IsKept(sensorId)) return ui::LevelLimits{};
    platform::ProfileFile file(files_, iniPath_);
    if (Report("read", file.LoadError())) return std::nullopt;
    const std::string section = SectionOf(sensorId);
    const ui::LevelLimits limits{LevelAt(file.Text(), section, LowKey),
                                 LevelAt(file.Text(), section, HighKey)};
    return limits.low && limits.high && *limits.low > *limits.high ? ui::LevelLimits{} : limits;
}

bool LimitsStore::Save(const std::string& sensorId, const ui::LevelLimits& before,
                       const ui::LevelLimits& limits) {
    if (!IsKept(sensorId)) return true;
    return !Report("saved", Write(SectionOf(sensorId), before, limits));
}

std::error_code LimitsStore::Write(const std::string& section, const ui::LevelLimits& before,
                                   const ui::LevelLimits& limits) {
    const platform::FolderLock lock(files_, folder_);
    if (lock.Error()) return lock.Error();
    platform::ProfileFile file(files_, iniPath_);
    if (file.LoadError()) return file.LoadError();
    if (limits.low != before.low) WriteLevel(file.Text(), section, LowKey, limits.low);
    if (limits.high != before.high) WriteLevel(file.Text(), section, HighKey, limits.high);
    return file.Save();
}

bool LimitsStore::Report(const std::string& what, const std::error_code& error) {
    // The settings in the same file have a trouble of their own.
    const std::string trouble = iniPath_ + " (limits " + what + ")";
    if (!error) {
        notice_.EndFileTrouble(trouble);
        return false;
    }
    const std::string text =
        "The limits could not be " + what + ": " + iniPath_ + ": " + error.message();
    log_.Write(text);
    notice_.ShowFileTrouble(trouble, text);
    return true;
}

}  // namespace kelvra::app
