// SPDX-License-Identifier: GPL-3.0-or-later
// The result table's status column: the bar that grows with every pass, "CONF" while a sensor gets
// its settings, "ZERO" and "TEST" while it is zeroed or tested.
#pragma once

#include <string_view>
#include "driver/notices.h"
#include "forms/status_form.h"
#include "measure/listener.h"
#include "platform/events.h"

#include "sensors/sensor_table.h"

namespace kelvra::ui {

class StatusMarks final : public measure::SlotListener,
                          public measure::CommandListener,
                          public driver::TransferMarks {
public:
    StatusMarks(forms::StatusForm& form, const sensors::SensorTable& table,
                platform::Events& events)
        : grid_(form.ResultGrid), table_(table), events_(events) {}

    // The bar ends with a point while the sensor is waited for.
    void SlotStarted(int slot) override { ShowActivity(slot, true); }
    void SlotComplete(int slot) override { ShowActivity(slot, false); }

    void TransferBegins(int slot) override;
    void TransferEnds(int slot) override { ShowNoState(slot); }

    void SensorBegins(measure::SensorCommand command, int slot, int number, int sensors) override;
    void SensorEnds(int slot) override { ShowNoState(slot); }

private:
    void ShowActivity(int slot, bool waiting);
    void ShowState(int slot, std::string_view text, controls::Colour back, const char* tooltip);
    void ShowNoState(int slot);

    controls::Grid& grid_;
    const sensors::SensorTable& table_;
    platform::Events& events_;
};

}  // namespace kelvra::ui
