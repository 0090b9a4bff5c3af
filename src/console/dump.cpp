// SPDX-License-Identifier: GPL-3.0-or-later
#include "console/dump.h"

#include <variant>

#include "app/flags.h"
#include "console/json_line.h"
#include "sensors/settings_fields.h"

namespace kelvra::console {

namespace {

template <class Range>
void Numbers(JsonLine& json, const char* key, const Range& values) {
    json.Key(key).BeginList();
    for (const double value : values) json.Value(value);
    json.EndList();
}

void SlotStatistics(JsonLine& json, const sensors::SensorEntry& entry) {
    json.Key("TSlotStats").BeginList();
    for (const sensors::ReadingRing& ring : entry.slotStats) {
        const bool empty = ring.Index() < 0;
        const auto stat = ring.Statistics().value_or(sensors::LevelStatistics{});
        json.BeginObject();
        json.Member("Restart", empty ? -1 : (ring.Index() + 1) % sensors::ReadingRing::Length);
        Numbers(json, "Values", ring.Values());
        json.Member("Power", empty ? 0 : ring.LastLevel());
        json.Member("Max", stat.max).Member("Min", stat.min);
        json.Member("Mean", stat.mean).Member("Sigma", stat.sigma).EndObject();
    }
    const bool full = !entry.slotStats.empty() && entry.slotStats.front().Full();
    json.EndList().Member("TSlotStatsFull", full);
}

void Settings(JsonLine& json, const sensors::SensorSettings& settings) {
    json.Key("Settings").BeginObject();
    for (const sensors::SettingsField& field : sensors::SettingsFields())
        std::visit([&](auto member) { json.Member(field.name, settings.*member); }, field.member);
    json.EndObject();
}

void Sensor(JsonLine& json, const sensors::SensorEntry& entry) {
    json.BeginObject();
    json.Member("ResourceName", entry.resourceName).Member("Present", entry.present);
    json.Member("SessionOpen", entry.sessionOpen).Member("Enabled", entry.enabled);
    json.Member("NewTSlotData", entry.newSlotData).Member("NewScopeData", entry.newTraceData);
    json.Member("TSlotStatsActive", entry.slotStatsActive);
    json.Member("LogicalName", entry.logicalName).Member("SensorId", entry.sensorId);
    json.Member("MeasPending", entry.measPending).Member("WaitTicks", entry.waitTicks);
    json.Member("LastReading", entry.lastReading);
    Numbers(json, "Results", entry.results);
    Numbers(json, "History", entry.history.Values());
    json.Member("HistoryIndex", entry.history.Index());
    json.Member("HistoryWrapped", entry.history.Wrapped());
    SlotStatistics(json, entry);
    json.Member("AvgCountRead", entry.avgCountRead);
    json.Member("SettingsChanged", entry.settingsChanged);
    Settings(json, entry.settings);
    json.Member("LastErrorText", entry.lastErrorText);
    json.Member("TriggerNowRequest", entry.triggerNowRequest);
    json.Member("TSlotTriggerCursor", entry.slotTriggerCursor);
    json.Member("ScopeTriggerCursor", entry.traceTriggerCursor);
    json.EndObject();
}

std::string Sensors(const app::Kelvra& kelvra) {
    JsonLine json;
    json.BeginList();
    for (const sensors::SensorEntry& entry : kelvra.table.entries) Sensor(json, entry);
    return json.EndList().Text();
}

std::string Scaling(const app::Kelvra& kelvra) {
    JsonLine json;
    json.BeginList();
    for (const sensors::DisplayScaling& scaling : kelvra.table.scaling) {
        json.BeginObject();
        json.Member("AutoScaleScope", scaling.autoScaleScope);
        json.Member("AutoScaleTime", scaling.autoScaleTime);
        json.Member("MinScope", scaling.minScope).Member("MaxScope", scaling.maxScope);
        json.Member("MinTime", scaling.minTime).Member("MaxTime", scaling.maxTime).EndObject();
    }
    return json.EndList().Text();
}

std::string SlotReadings(const app::Kelvra& kelvra) {
    JsonLine json;
    json.BeginList();
    for (const auto& reading : kelvra.table.slotReadings)
        json.BeginList().Value(reading[0]).Value(reading[1]).EndList();
    return json.EndList().Text();
}

std::string Flags(const app::Kelvra& kelvra) {
    JsonLine json;
    json.BeginObject();
    for (const app::Flag& flag : app::Flags())
        std::visit([&](auto value) { json.Member(flag.name, value); }, flag.value(kelvra));
    return json.EndObject().Text();
}

constexpr struct {
    std::string_view name;
    std::string (*dump)(const app::Kelvra& kelvra);
} Tables[] = {
    {"Sensors", Sensors},
    {"Scaling", Scaling},
    {"SlotReadings", SlotReadings},
    {"Flags", Flags},
};

}  // namespace

std::optional<std::string> DumpTable(const app::Kelvra& kelvra, std::string_view name) {
    for (const auto& table : Tables)
        if (table.name == name) return table.dump(kelvra);
    return std::nullopt;
}

}  // namespace kelvra::console
