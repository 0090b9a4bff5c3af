// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/settings_store.h"

#include "measure/notice.h"
#include "platform/profile_file.h"
#include "sensors/settings_file.h"
#include "util/number_text.h"

namespace kelvra::app {

using sensors::Transfer;

void SettingsStore::ReadSlots(sensors::SensorTable& table) {
    platform::ProfileFile file(files_, AppIniPath);
    if (file.LoadError()) Tell("read", file.LoadError().message());
    for (int slot = 0; slot < table.Slots(); ++slot)
        sensors::TransferSettings(table[slot].Settings, file.Text(),
                                  "SENS" + util::TrimmedNumberText(std::int64_t{slot + 1}),
                                  Transfer::Read);
}

void SettingsStore::Read(const std::vector<sensors::SensorEntry*>& entries) {
    if (entries.empty()) return;
    platform::ProfileFile file(files_, AppIniPath);
    if (file.LoadError()) Tell("read", file.LoadError().message());
    for (sensors::SensorEntry* entry : entries)
        sensors::TransferSettings(entry->Settings, file.Text(), entry->SensorId, Transfer::Read);
}

void SettingsStore::Save(const std::vector<sensors::SensorEntry*>& entries) {
    if (entries.empty()) return;
    platform::ProfileFile file(files_, AppIniPath);
    for (sensors::SensorEntry* entry : entries)
        if (!entry->SensorId.empty())
            sensors::TransferSettings(entry->Settings, file.Text(), entry->SensorId,
                                      Transfer::Write);
    if (const std::error_code error = file.Save()) Tell("saved", error.message());
}

void SettingsStore::Tell(const char* what, const std::string& reason) {
    const std::string text =
        std::string("The settings could not be ") + what + ": " + AppIniPath + ": " + reason;
    measure::ShowNotice(window_, text);
    log_.OutputDebug(text);
}

}  // namespace kelvra::app
