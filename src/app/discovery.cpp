// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/discovery.h"

#include <algorithm>
#include <string>

#include "ui/connection_label.h"
#include "util/number_text.h"

namespace kelvra::app {

using sensors::SensorEntry;
using sensors::SensorTable;

void Discovery::Search() {
    if (p_.state.exiting || running_ || p_.table.Slots() == 0) return;
    if (Rests()) {
        ShowConnection();
    } else {
        running_ = true;
        Tick();
        running_ = false;
    }
    p_.windows.readingAge.Look();
    p_.windows.calcGrid.ShowAge(p_.windows.readingAge);
    p_.windows.notice.TakeBackOld();
}

void Discovery::Tick() {
    p_.store.LookForOthers();
    changed_ = vanished_ = false;
    p_.catalogue.BuildDeviceList(p_.table);
    SaveWhatHasGone();
    SizeTable();
    ShowConnection();
    if (p_.catalogue.Connected() > 0)
        RealSensors();
    else
        Simulation();
    if (p_.table.deviceTableChanged) SwitchPresentOn();
    if (changed_) {
        Repaint();
        p_.modes.Find();
    }
    p_.windows.lists.Refresh();
    if (changed_) p_.windows.setupDialog.ShowCurrent(ui::Typing::Stays);
    p_.windows.errorStrip.Refresh();
    p_.windows.enabling.Refresh();
}

bool Discovery::Rests() const {
    return p_.state.measuring || p_.state.commandRuns || p_.session.configRunning;
}

void Discovery::ShowConnection() {
    ui::ShowConnected(p_.forms.mdiMain, p_.catalogue.Connected());
}

const driver::DeviceListEntry* Discovery::DeviceOf(const SensorEntry& entry) const {
    const auto& devices = p_.catalogue.deviceList;
    const auto found = std::find_if(devices.begin(), devices.end(), [&](const auto& device) {
        return !device.resourceName.empty() && device.resourceName == entry.resourceName;
    });
    return found == devices.end() ? nullptr : &*found;
}

// If one sensor has gone, all are saved, since all slots will be assigned again.
void Discovery::SaveWhatHasGone() {
    const sensors::TableLock lock(p_.table);
    std::vector<SensorEntry*> known;
    for (SensorEntry* entry : p_.table.Present())
        if (!entry->sensorId.empty()) known.push_back(entry);
    const auto gone = [&](const SensorEntry* entry) { return DeviceOf(*entry) == nullptr; };
    if (std::none_of(known.begin(), known.end(), gone)) return;
    p_.store.Save(known);
    for (SensorEntry* entry : known) {
        if (!gone(entry)) continue;
        sensors::ReleaseSlot(*entry);
        entry->slotStats.assign(1, {});
    }
    sensors::PrepareWorkArrays(p_.table, p_.table.currentSensor);
    changed_ = vanished_ = true;
}

// A slot that still holds a sensor is not removed; it is free by the next tick.
void Discovery::SizeTable() {
    SensorTable& table = p_.table;
    const auto listed = static_cast<int>(p_.catalogue.deviceList.size());
    int slots = listed > 1 ? listed : SensorTable::DefaultSlotCount;
    for (int slot = 0; slot < table.Slots(); ++slot)
        if (!table[slot].resourceName.empty() && !table.simulationMode)
            slots = std::max(slots, slot + 1);
    // Otherwise the rows below the new end would keep showing their former sensors.
    for (int slot = slots + 1; slot < table.Slots(); ++slot) p_.windows.results.PaintPresence(slot);
    table.Resize(slots);
}

void Discovery::RealSensors() {
    if (p_.table.simulationMode) {
        for (SensorEntry* entry : p_.table.Present()) sensors::ReleaseSlot(*entry);
        p_.table.deviceTableChanged = true;
    }
    p_.table.simulationMode = false;
    // The remaining sensors are found again at once, from the first slot on.
    if (vanished_) {
        ReleasePresent();
        SizeTable();
    }
    AssignDevices();
    FindPresent();
}

void Discovery::AssignDevices() {
    auto& slots = p_.table.entries;
    const auto end = slots.begin() + p_.table.Slots();
    for (const driver::DeviceListEntry& device : p_.catalogue.deviceList) {
        if (device.resourceName.empty()) continue;
        const auto has = [&](const std::string& resource) {
            return std::find_if(slots.begin(), end, [&](const SensorEntry& entry) {
                return entry.resourceName == resource;
            });
        };
        if (has(device.resourceName) != end) continue;
        const auto free = has("");
        if (free != end) free->resourceName = device.resourceName;
    }
}

void Discovery::FindPresent() {
    const sensors::TableLock lock(p_.table);
    std::vector<SensorEntry*> appeared;
    for (int slot = 0; slot < p_.table.Slots(); ++slot) {
        SensorEntry& entry = p_.table[slot];
        const driver::DeviceListEntry* device = DeviceOf(entry);
        if (device == nullptr) continue;
        if (!entry.present) {
            Appear(slot, *device);
            appeared.push_back(&entry);
        }
        NameSensor(slot, *device);
    }
    p_.store.Read(appeared);
}

void Discovery::Appear(int slot, const driver::DeviceListEntry& device) {
    SensorEntry& entry = p_.table[slot];
    entry.Begin({.resourceName = device.resourceName,
                 .present = true,
                 .sensorId = device.type + ";" + device.serial});
    entry.enabled = !p_.table.SwitchedOff(entry);
    p_.windows.sensorName.FindGivenName(slot);
    p_.table.slotReadings[static_cast<std::size_t>(slot)] = {};
    p_.windows.results.ClearValues(slot);
    changed_ = true;
}

void Discovery::NameSensor(int slot, const driver::DeviceListEntry& device) {
    if (p_.windows.sensorName.Name(slot, device.name)) changed_ = true;
}

void Discovery::Simulation() {
    if (!p_.table.simulationMode || !p_.table[0].present) EnterSimulation();
    for (int slot = 2; slot < p_.table.Slots(); ++slot) {
        SensorEntry& entry = p_.table[slot];
        if (entry.present) changed_ = true;
        sensors::ReleaseSlot(entry);
    }
}

void Discovery::EnterSimulation() {
    const struct {
        const char* name;
        const char* resource;
    } simulated[] = {{"SensSim1", "PS-101;"}, {"SensSim2", "PS-106;"}};
    int slot = 0;
    for (const auto& sensor : simulated) {
        p_.windows.results.ClearValues(slot);
        SensorEntry& entry = p_.table[slot++];
        entry.Begin({.resourceName = sensor.resource,
                     .present = true,
                     .enabled = true,
                     .logicalName = sensor.name});
        p_.table.RememberSwitch(entry);
    }
    p_.table.simulationMode = true;
    changed_ = true;
}

void Discovery::SwitchPresentOn() {
    for (SensorEntry* entry : p_.table.Present())
        if (!p_.table.SwitchedOff(*entry)) entry->enabled = true;
    p_.table.deviceTableChanged = false;
    changed_ = true;
}

// Their settings were saved together with those of the sensor that has gone.
void Discovery::ReleasePresent() {
    for (SensorEntry* entry : p_.table.Present()) sensors::ReleaseSlot(*entry);
    sensors::PrepareWorkArrays(p_.table, p_.table.currentSensor);
}

// Includes the spare element: one empty row below the last slot.
void Discovery::Repaint() {
    for (int slot = 0; slot <= p_.table.Slots(); ++slot) p_.windows.results.PaintPresence(slot);
}

}  // namespace kelvra::app
