// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/settings_store.h"

#include <algorithm>
#include <chrono>

#include "sensors/settings_file.h"
#include "util/number_text.h"

namespace kelvra::app {

using sensors::Transfer;

namespace {

constexpr auto QuietTime = std::chrono::seconds(3);

}  // namespace

std::string SectionStem(std::string sensorId) {
    std::replace_if(
        sensorId.begin(), sensorId.end(), [](char c) { return c == ']' || c == '\r' || c == '\n'; },
        '_');
    return sensorId;
}

void SettingsStore::Open(platform::Computer& computer) {
    folder_ = computer.ProgramFolder();
    iniPath_ = computer.Join(folder_, "Kelvra.INI");
    use_.Begin(folder_);
    ShowUse();
}

// If this program was the first in the folder, later ones don't matter to it.
void SettingsStore::LookForOthers() {
    if (!use_.Shared() && !use_.Error()) return;
    use_.LookAgain();
    ShowUse();
}

void SettingsStore::ShowUse() {
    std::string text;
    if (use_.Error())
        text = "The data folder can't be locked: " + folder_ + ": " + use_.Error().message();
    else if (use_.Shared())
        text = "Another Kelvra is using the data folder: " + folder_;
    if (text == useTrouble_) return;
    useTrouble_ = text;
    if (text.empty()) return notice_.EndFileTrouble(folder_);
    notice_.ShowFileTrouble(folder_, text);
    log_.Write(text);
}

void SettingsStore::ReadSlots(sensors::SensorTable& table) {
    platform::ProfileFile file(files_, iniPath_);
    NoteLoad(file);
    for (int slot = 0; slot < table.Slots(); ++slot)
        sensors::TransferSettings(table[slot].settings, file.Text(),
                                  "SENS" + util::TrimmedNumberText(std::int64_t{slot + 1}),
                                  Transfer::Read);
}

void SettingsStore::Read(const std::vector<sensors::SensorEntry*>& entries) {
    if (entries.empty()) return;
    LookForOthers();
    platform::ProfileFile file(files_, iniPath_);
    NoteLoad(file);
    for (sensors::SensorEntry* entry : entries) {
        Kept& kept = kept_[entry->sensorId];
        if (!kept.unsaved && !file.LoadError()) {
            sensors::TransferSettings(kept.inFile, file.Text(), SectionStem(entry->sensorId),
                                      Transfer::Read);
            kept.read = true;
        }
        entry->settings = kept.unsaved.value_or(kept.inFile);
    }
}

void SettingsStore::NoteLoad(const platform::ProfileFile& file) {
    loadFailure_ = file.LoadError() ? Complaint("read", file.LoadError().message()) : std::string();
    ShowTrouble();
}

void SettingsStore::Save(const std::vector<sensors::SensorEntry*>& entries) {
    edited_.reset();
    for (const sensors::SensorEntry* entry : entries)
        if (!entry->sensorId.empty()) Keep(entry->sensorId, entry->settings);
    saveFailure_ = HasUnsaved() ? WriteUnsaved() : std::string();
    ShowTrouble();
}

void SettingsStore::SaveEdits(platform::Duration now,
                              const std::vector<sensors::SensorEntry*>& entries) {
    if (edited_ && now - *edited_ >= QuietTime) Save(entries);
}

void SettingsStore::Keep(const std::string& sensorId, sensors::SensorSettings settings) {
    Kept& kept = kept_[sensorId];
    settings.ContMeas = false;  // never kept in a file
    // Defaults that were never read and never changed need no save.
    if (kept.read || settings != kept.inFile)
        kept.unsaved = settings;
    else
        kept.unsaved.reset();
}

bool SettingsStore::HasUnsaved() const {
    return std::any_of(kept_.begin(), kept_.end(),
                       [](const auto& sensor) { return sensor.second.unsaved.has_value(); });
}

std::string SettingsStore::WriteUnsaved() {
    LookForOthers();
    if (const auto error = Write()) return Complaint("saved", error.message());
    std::string complaint;
    for (auto& [sensorId, kept] : kept_) {
        if (!kept.unsaved) continue;
        if (kept.read)
            kept.inFile = *std::exchange(kept.unsaved, {});
        else
            complaint = Complaint("saved", "those of " + sensorId +
                                               " in the file could not be read before, and would "
                                               "be lost");
    }
    return complaint;
}

std::error_code SettingsStore::Write() {
    const platform::FolderLock lock(files_, folder_);
    if (lock.Error()) return lock.Error();
    platform::ProfileFile file(files_, iniPath_);
    if (file.LoadError()) return file.LoadError();
    loadFailure_.clear();
    for (const auto& [sensorId, kept] : kept_)
        if (kept.unsaved && kept.read)
            sensors::WriteChanges(*kept.unsaved, kept.inFile, file.Text(), SectionStem(sensorId));
    return file.Save();
}

std::string SettingsStore::Complaint(const std::string& what, const std::string& why) {
    std::string text = "The settings could not be " + what + ": " + iniPath_ + ": " + why;
    log_.Write(text);
    return text;
}

void SettingsStore::ShowTrouble() {
    const std::string& text = saveFailure_.empty() ? loadFailure_ : saveFailure_;
    if (text.empty())
        notice_.EndFileTrouble(iniPath_);
    else
        notice_.ShowFileTrouble(iniPath_, text);
}

}  // namespace kelvra::app
