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
    for (const sensors::TimeSlotStat& stat : entry.TSlotStats) {
        json.BeginObject().Member("Restart", stat.Restart);
        Numbers(json, "Values", stat.Values);
        json.Member("Power", stat.Power).Member("Max", stat.Max).Member("Min", stat.Min);
        json.Member("Mean", stat.Mean).Member("Sigma", stat.Sigma).EndObject();
    }
    json.EndList().Member("TSlotStatsFull", entry.TSlotStatsFull);
}

void Settings(JsonLine& json, const sensors::SensorSettings& settings) {
    json.Key("Settings").BeginObject();
    for (const sensors::SettingsField& field : sensors::SettingsFields())
        std::visit([&](auto member) { json.Member(field.name, settings.*member); }, field.member);
    json.EndObject();
}

void Sensor(JsonLine& json, const sensors::SensorEntry& entry) {
    json.BeginObject();
    json.Member("ResourceName", entry.ResourceName).Member("Present", entry.Present);
    json.Member("SessionOpen", entry.SessionOpen).Member("Enabled", entry.Enabled);
    json.Member("NewTSlotData", entry.NewTSlotData).Member("NewScopeData", entry.NewScopeData);
    json.Member("TSlotStatsActive", entry.TSlotStatsActive);
    json.Member("LogicalName", entry.LogicalName).Member("SensorId", entry.SensorId);
    json.Member("MeasPending", entry.MeasPending).Member("WaitTicks", entry.WaitTicks);
    json.Member("LastReading", entry.LastReading);
    Numbers(json, "Results", entry.Results);
    Numbers(json, "History", entry.History.Values());
    json.Member("HistoryIndex", entry.History.Index());
    json.Member("HistoryWrapped", entry.History.Wrapped());
    SlotStatistics(json, entry);
    json.Member("AvgCountRead", entry.AvgCountRead);
    json.Member("SettingsChanged", entry.SettingsChanged);
    Settings(json, entry.Settings);
    json.Member("LastErrorText", entry.LastErrorText);
    json.Member("TriggerNowRequest", entry.TriggerNowRequest);
    json.Member("TSlotTriggerCursor", entry.TSlotTriggerCursor);
    json.Member("ScopeTriggerCursor", entry.ScopeTriggerCursor);
    json.EndObject();
}

std::string Sensors(const app::Kelvra& kelvra) {
    JsonLine json;
    json.BeginList();
    for (const sensors::SensorEntry& entry : kelvra.table.Sensors) Sensor(json, entry);
    return json.EndList().Text();
}

std::string Scaling(const app::Kelvra& kelvra) {
    JsonLine json;
    json.BeginList();
    for (const sensors::DisplayScaling& scaling : kelvra.table.Scaling) {
        json.BeginObject();
        json.Member("AutoScaleScope", scaling.AutoScaleScope);
        json.Member("AutoScaleTime", scaling.AutoScaleTime);
        json.Member("MinScope", scaling.MinScope).Member("MaxScope", scaling.MaxScope);
        json.Member("MinTime", scaling.MinTime).Member("MaxTime", scaling.MaxTime).EndObject();
    }
    return json.EndList().Text();
}

std::string SlotReadings(const app::Kelvra& kelvra) {
    JsonLine json;
    json.BeginList();
    for (const auto& reading : kelvra.table.SlotReadings)
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
