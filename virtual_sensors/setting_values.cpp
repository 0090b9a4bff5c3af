// SPDX-License-Identifier: GPL-3.0-or-later
#include "setting_values.h"

namespace kelvra::virtual_sensors {

SettingValues::SettingValues() {
    for (std::size_t i = 0; i < SettingCount; ++i) {
        values_[i] = LimitsOf(static_cast<Setting>(i)).afterReset;
    }
}

bool SettingValues::Set(Setting setting, double value) {
    const SettingLimits& limits = LimitsOf(setting);
    if (!(value >= limits.smallest && value <= limits.largest)) return false;
    values_[static_cast<std::size_t>(setting)] = value;
    return true;
}

Mode ModeOf(const SettingValues& settings) {
    return static_cast<Mode>(settings[Setting::psdrv_chan_mode]);
}

bool GivesArray(Mode mode) {
    return mode != Mode::Average && mode != Mode::Burst;
}

int32_t PointCount(const SettingValues& settings) {
    switch (ModeOf(settings)) {
        case Mode::Buffered:
            return static_cast<int32_t>(settings[Setting::psdrv_chan_setContAvBufferSize]);
        case Mode::Slots:
            return static_cast<int32_t>(settings[Setting::SlotCount]);
        case Mode::Trace:
            return static_cast<int32_t>(settings[Setting::psdrv_scope_setPoints]);
        default:
            return 1;
    }
}

TriggerSource SourceOf(const SettingValues& settings) {
    return static_cast<TriggerSource>(settings[Setting::psdrv_trigger_setSource]);
}

}  // namespace kelvra::virtual_sensors
