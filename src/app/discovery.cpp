// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/discovery.h"

#include <algorithm>
#include <string>

#include "measure/command_buttons.h"
#include "util/number_text.h"

namespace kelvra::app {

using sensors::SensorEntry;
using sensors::SensorTable;

void Discovery::Search() {
    if (p_.state.exiting || running_ || p_.table.Slots() == 0) return;
    if (Rests()) {
        ShowConnection();
        return;
    }
    running_ = true;
    Tick();
    running_ = false;
}

void Discovery::Tick() {
    changed_ = presenceChanged_ = vanished_ = false;
    const std::vector<bool> enabledBefore = EnabledSlots();
    p_.catalogue.BuildDeviceList(p_.table);
    SaveWhatHasGone();
    SizeTable();
    ShowConnection();
    if (p_.catalogue.Connected() > 0)
        RealSensors();
    else
        Simulation();
    if (p_.table.deviceTableChanged) SwitchPresentOn();
    if (changed_) Repaint();
    // The sensors that are left are found again by the next tick, from the first slot on.
    if (vanished_ && !p_.table.simulationMode) ReleasePresent();
    if (presenceChanged_ || EnabledSlots() != enabledBefore) p_.selection.UpdateSensSelect();
}

bool Discovery::Rests() const {
    return p_.state.measuring || p_.state.commandRuns || p_.session.configRunning;
}

void Discovery::ShowConnection() {
    const int connected = p_.catalogue.Connected();
    controls::Label& label = p_.forms.mdiMain.ConSensors;
    if (connected == 0) {
        label.caption = "Simulation Mode";
        label.fore = controls::Red;
        return;
    }
    label.caption = util::TrimmedNumberText(std::int64_t{connected}) + " sensor" +
                    (connected > 1 ? "s" : "") + " connected";
    label.fore = controls::Green;
}

const driver::DeviceListEntry* Discovery::DeviceOf(const SensorEntry& entry) const {
    const auto& devices = p_.catalogue.deviceList;
    const auto found = std::find_if(devices.begin(), devices.end(), [&](const auto& device) {
        return !device.resourceName.empty() && device.resourceName == entry.resourceName;
    });
    return found == devices.end() ? nullptr : &*found;
}

std::vector<bool> Discovery::EnabledSlots() const {
    std::vector<bool> enabled;
    for (const SensorEntry& entry : p_.table.entries) enabled.push_back(entry.enabled);
    return enabled;
}

// When one sensor goes, all are saved, since all are assigned anew.
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
    changed_ = presenceChanged_ = vanished_ = true;
}

// A slot that still holds a sensor is not cut off; it is free by the next tick.
void Discovery::SizeTable() {
    SensorTable& table = p_.table;
    const auto listed = static_cast<int>(p_.catalogue.deviceList.size());
    int slots = listed > 1 ? listed : SensorTable::DefaultSlotCount;
    for (int slot = 0; slot < table.Slots(); ++slot)
        if (!table[slot].resourceName.empty() && !table.simulationMode)
            slots = std::max(slots, slot + 1);
    // Rows below the new end would otherwise keep showing who was there.
    for (int slot = slots + 1; slot < table.Slots(); ++slot) p_.results.PaintPresence(slot);
    table.Resize(slots);
}

void Discovery::RealSensors() {
    measure::OfferSensorCommands(p_.forms.setupForm, true);
    if (p_.table.simulationMode) {
        for (SensorEntry* entry : p_.table.Present()) sensors::ReleaseSlot(*entry);
        p_.table.deviceTableChanged = true;
        presenceChanged_ = true;
    }
    p_.table.simulationMode = false;
    if (vanished_) return;
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
    entry.sensorId = device.type + ";" + device.serial;
    entry.newTraceData = false;
    entry.newSlotData = false;
    entry.slotStatsActive = false;
    entry.present = true;
    entry.enabled = !p_.table.SwitchedOff(entry);
    p_.table.slotReadings[static_cast<std::size_t>(slot)] = {};
    p_.results.ClearValues(slot);
    if (!currentBefore_.empty() && entry.sensorId == currentBefore_)
        p_.table.currentSensor = static_cast<std::int16_t>(slot);
    changed_ = presenceChanged_ = true;
}

void Discovery::NameSensor(int slot, const driver::DeviceListEntry& device) {
    const std::string name = device.name.empty()
                                 ? util::TrimmedNumberText(std::int64_t{driver::ChannelOf(slot)})
                                 : device.name;
    if (p_.table[slot].logicalName == name) return;
    p_.table[slot].logicalName = name;
    changed_ = true;
}

void Discovery::Simulation() {
    measure::OfferSensorCommands(p_.forms.setupForm, false);
    if (!p_.table.simulationMode || !p_.table[0].present) EnterSimulation();
    for (int slot = 2; slot < p_.table.Slots(); ++slot) {
        SensorEntry& entry = p_.table[slot];
        if (entry.present) changed_ = presenceChanged_ = true;
        sensors::ReleaseSlot(entry);
    }
}

void Discovery::EnterSimulation() {
    p_.notices.SensorIsWell(0);  // the sensors have gone, and their errors with them
    const struct {
        const char* name;
        const char* resource;
    } simulated[] = {{"SensSim1", "PS-101;"}, {"SensSim2", "PS-106;"}};
    int slot = 0;
    for (const auto& sensor : simulated) {
        p_.results.ClearValues(slot);
        SensorEntry& entry = p_.table[slot++];
        sensors::ReleaseSlot(entry);
        entry.enabled = true;
        entry.present = true;
        entry.logicalName = sensor.name;
        entry.resourceName = sensor.resource;
        p_.table.RememberSwitch(entry);
    }
    p_.table.simulationMode = true;
    changed_ = presenceChanged_ = true;
}

void Discovery::SwitchPresentOn() {
    for (SensorEntry* entry : p_.table.Present())
        if (!p_.table.SwitchedOff(*entry)) entry->enabled = true;
    p_.table.deviceTableChanged = false;
    changed_ = true;
}

// Their settings have been saved with those of the sensor that went. Whoever is the current sensor
// stays it, in whatever slot it is found again.
void Discovery::ReleasePresent() {
    currentBefore_ = p_.table[p_.table.currentSensor].sensorId;
    for (SensorEntry* entry : p_.table.Present()) sensors::ReleaseSlot(*entry);
    sensors::PrepareWorkArrays(p_.table, p_.table.currentSensor);
}

// The spare element too: one empty row below the last slot.
void Discovery::Repaint() {
    for (int slot = 0; slot <= p_.table.Slots(); ++slot) p_.results.PaintPresence(slot);
}

}  // namespace kelvra::app
