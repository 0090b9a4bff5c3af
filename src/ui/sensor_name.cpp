// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/sensor_name.h"

#include <algorithm>
#include <string_view>
#include <system_error>
#include <utility>

#include "driver/session.h"
#include "util/number_reading.h"
#include "util/number_text.h"
#include "util/text.h"

namespace kelvra::ui {

namespace {

constexpr const char* NamesKey = R"(HKLM\SOFTWARE\Halvex\TeskDll\Sensors)";

bool IsBlank(std::string_view name) {
    return util::TrimSpaces(name).empty();
}

// What a device sends as its serial number must not end the name of the value.
std::string RegistryName(std::string sensorId) {
    std::replace_if(
        sensorId.begin(), sensorId.end(), [](char c) { return c == '=' || c == '\r' || c == '\n'; },
        '_');
    return sensorId;
}

std::string SlotName(int slot) {
    return util::TrimmedNumberText(std::int64_t{driver::ChannelOf(slot)});
}

}  // namespace

SensorName::SensorName(const Parts& parts) : p_(parts) {
    p_.selection.listeners.Add(*this);
    p_.dialog.SensLogicalName.commit.Connect([this] { StoreLogicalName(p_.table.currentSensor); });
}

// A name that the user is typing stays as long as the box is for the same sensor.
void SensorName::CurrentSensorChanged() {
    const sensors::SensorEntry& entry = p_.table[p_.table.currentSensor];
    controls::TextBox& box = p_.dialog.SensLogicalName;
    if (box.Edited() && shownFor_ == entry.resourceName) return;
    shownFor_ = entry.resourceName;
    box.SetText(entry.logicalName);
}

void SensorName::Started() {
    for (int slot = 0; slot < p_.table.Slots(); ++slot)
        if (p_.table[slot].namedBySlot) p_.table[slot].logicalName = SlotName(slot);
}

void SensorName::FindGivenName(int slot) {
    sensors::SensorEntry& entry = p_.table[slot];
    if (const auto given = given_.find(entry.sensorId); given != given_.end()) {
        entry.givenName = given->second;
    } else if (p_.computer.OwnRegistry()) {
        entry.givenName = p_.computer.ReadRegistry(NamesKey, RegistryName(entry.sensorId));
        if (entry.givenName && util::ReadWholeNumber(*entry.givenName)) entry.givenName = "";
    }
}

bool SensorName::Name(int slot, const std::string& listed) {
    sensors::SensorEntry& entry = p_.table[slot];
    const std::string own = entry.givenName.value_or(listed);
    entry.namedBySlot = IsBlank(own);
    std::string name = entry.namedBySlot ? SlotName(slot) : own;
    if (entry.logicalName == name) return false;
    entry.logicalName = std::move(name);
    return true;
}

void SensorName::StoreLogicalName(int slot) {
    if (!p_.table[slot].present) return;
    controls::TextBox& box = p_.dialog.SensLogicalName;
    sensors::SensorEntry& entry = p_.table[slot];
    entry.namedBySlot = IsBlank(box.Text());
    if (entry.namedBySlot) box.SetText(SlotName(slot));
    entry.logicalName = box.Text();
    entry.givenName = entry.namedBySlot ? std::string() : entry.logicalName;
    if (!entry.sensorId.empty()) Store(slot);
    p_.results.PaintName(slot);
    p_.selection.TellListed();
}

void SensorName::Store(int slot) {
    const sensors::SensorEntry& entry = p_.table[slot];
    given_.insert_or_assign(entry.sensorId, *entry.givenName);
    const std::string name(util::TrimSpaces(entry.logicalName));
    const std::string path = p_.computer.OwnRegistry().value_or("registry");
    const std::error_code error =
        p_.computer.WriteRegistry(NamesKey, RegistryName(entry.sensorId), name);
    if (error)
        p_.notice.ShowFileTrouble(
            path, "The sensor's name could not be stored: " + path + ": " + error.message());
    else
        p_.notice.EndFileTrouble(path);
}

}  // namespace kelvra::ui
