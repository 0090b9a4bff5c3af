// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/settings_store.h"

#include <algorithm>

#include "sensors/settings_file.h"
#include "util/number_text.h"

namespace kelvra::app {

using sensors::Transfer;

namespace {

// A section's name for a sensor. What a device sends as its serial number must not end the name.
std::string Stem(std::string sensorId) {
    std::replace_if(
        sensorId.begin(), sensorId.end(), [](char c) { return c == ']' || c == '\r' || c == '\n'; },
        '_');
    return sensorId;
}

}  // namespace

void SettingsStore::ReadSlots(sensors::SensorTable& table) {
    platform::ProfileFile file(files_, iniPath);
    if (file.LoadError()) Tell("read", file.LoadError());
    for (int slot = 0; slot < table.Slots(); ++slot)
        sensors::TransferSettings(table[slot].settings, file.Text(),
                                  "SENS" + util::TrimmedNumberText(std::int64_t{slot + 1}),
                                  Transfer::Read);
}

void SettingsStore::Read(const std::vector<sensors::SensorEntry*>& entries) {
    if (entries.empty()) return;
    platform::ProfileFile file(files_, iniPath);
    if (file.LoadError()) Tell("read", file.LoadError());
    for (sensors::SensorEntry* entry : entries) {
        if (const auto kept = unsaved_.find(entry->sensorId); kept != unsaved_.end()) {
            entry->settings = kept->second;
            continue;
        }
        sensors::TransferSettings(entry->settings, file.Text(), Stem(entry->sensorId),
                                  Transfer::Read);
        if (file.LoadError())
            unread_.insert(entry->sensorId);
        else
            unread_.erase(entry->sensorId);
    }
}

void SettingsStore::Save(const std::vector<sensors::SensorEntry*>& entries) {
    for (sensors::SensorEntry* entry : entries)
        if (!entry->sensorId.empty() && !unread_.contains(entry->sensorId))
            unsaved_.insert_or_assign(entry->sensorId, entry->settings);
    if (unsaved_.empty()) return;
    platform::ProfileFile file(files_, iniPath);
    for (auto& [sensorId, settings] : unsaved_)
        sensors::TransferSettings(settings, file.Text(), Stem(sensorId), Transfer::Write);
    const std::error_code error = file.Save();
    saveFailure_ = error ? Tell("saved", error) : std::string();
    if (!error) unsaved_.clear();
}

std::string SettingsStore::Tell(const char* what, const std::error_code& error) {
    const std::string text =
        std::string("The settings could not be ") + what + ": " + iniPath + ": " + error.message();
    notice_.ShowFileTrouble(iniPath, text);
    log_.Write(text);
    return text;
}

}  // namespace kelvra::app
