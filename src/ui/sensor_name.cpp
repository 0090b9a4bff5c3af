// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/sensor_name.h"

#include <string>

#include "driver/session.h"
#include "util/number_text.h"
#include "util/text.h"

namespace kelvra::ui {

namespace {
constexpr const char* NamesKey = "HKLM\\SOFTWARE\\Halvex\\TeskDll\\Sensors";
}  // namespace

SensorName::SensorName(forms::Forms& forms, sensors::SensorTable& table, platform::Host& host,
                       ResultTable& results, SensorSelection& selection, SelectionLists& lists,
                       Notice& notice)
    : forms_(forms), table_(table), host_(host), results_(results), lists_(lists), notice_(notice) {
    selection.listeners.Add(*this);
    forms_.setupForm.SensLogicalName.commit.Connect(
        [this] { StoreLogicalName(table_.currentSensor); });
}

void SensorName::CurrentSensorChanged() {
    forms_.setupForm.SensLogicalName.SetText(table_[table_.currentSensor].logicalName);
}

void SensorName::StoreLogicalName(int slot) {
    if (!table_[slot].present) return;
    controls::TextBox& box = forms_.setupForm.SensLogicalName;
    if (box.Text().empty())
        box.SetText(util::TrimmedNumberText(std::int64_t{driver::ChannelOf(slot)}));
    sensors::SensorEntry& entry = table_[slot];
    entry.logicalName = box.Text();
    if (!entry.sensorId.empty()) Keep(entry);
    if (entry.enabled) results_.PaintName(slot);
    lists_.Refresh();
}

void SensorName::Keep(const sensors::SensorEntry& entry) {
    const auto error = host_.computer.WriteRegistry(
        NamesKey, entry.sensorId, std::string(util::TrimSpaces(entry.logicalName)));
    const std::string path = host_.computer.OwnRegistry().value_or("registry");
    if (error)
        notice_.ShowFileTrouble(
            path, "The sensor's name could not be stored: " + path + ": " + error.message());
    else
        notice_.EndFileTrouble(path);
}

}  // namespace kelvra::ui
