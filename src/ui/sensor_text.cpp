// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/sensor_text.h"

#include "driver/session.h"
#include "util/number_text.h"

namespace kelvra::ui {

std::string SensorText(const sensors::SensorTable& table, int slot) {
    const std::string& name = table[slot].logicalName;
    const std::string number = util::TrimmedNumberText(std::int64_t{driver::ChannelOf(slot)});
    return "sensor " + number + (name.empty() || name == number ? "" : " (" + name + ")");
}

}  // namespace kelvra::ui
