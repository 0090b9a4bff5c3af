// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/sensor_capabilities.h"

#include <utility>
#include <vector>

#include "driver/catalogue.h"

namespace kelvra::ui {

void ApplySensorCapabilities(forms::SetupForm& dialog, const sensors::SensorEntry& entry) {
    const driver::Capabilities group = driver::CapabilitiesOf(entry.sensorId);
    if (group != driver::Capabilities::Unknown) {
        std::vector<controls::List::Item> items;
        for (const driver::ModeEntry& mode : driver::ModesOf(group))
            items.push_back({mode.text, mode.mode});
        dialog.SensMode.Fill(std::move(items));
    }
    const int index = dialog.SensMode.IndexOfData(entry.settings.Mode);
    if (index >= 0) dialog.SensMode.SetIndex(index);
}

}  // namespace kelvra::ui
