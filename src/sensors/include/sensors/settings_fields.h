// SPDX-License-Identifier: GPL-3.0-or-later
// The one list of settings fields: name, where a file keeps it, type, default. Reset, load, save
// and dump all loop over it. A new setting is a line here and a member of SensorSettings.
#pragma once

#include <span>
#include <variant>

#include "sensors/sensor_settings.h"

namespace kelvra::sensors {

using SettingsMember = std::variant<bool SensorSettings::*, std::int16_t SensorSettings::*,
                                    std::int32_t SensorSettings::*, double SensorSettings::*>;

struct SettingsField {
    const char* name;
    const char* suffix;  // of the section that keeps it
    const char* key;     // null: not kept in a file
    SettingsMember member;
    double fallback;  // booleans: 1 is true
};

// In the order of the record.
std::span<const SettingsField> SettingsFields();

// The fields that a file keeps, in the order in which a new file gets them.
std::span<const SettingsField* const> FileFields();

// Every field at its default.
SensorSettings DefaultSettings();

}  // namespace kelvra::sensors
