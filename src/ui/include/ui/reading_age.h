// SPDX-License-Identifier: GPL-3.0-or-later
// Marks the values in the result table that are no longer live: those of a slot whose last good
// reading is older than two seconds and than twice the pass in which it came. Readings come
// thousands of times a second, so their age is looked at by a timer.
#pragma once

#include <optional>
#include <vector>

#include "forms/status_form.h"
#include "measure/listener.h"
#include "platform/clock.h"
#include "sensors/sensor_table.h"

namespace kelvra::ui {

class ReadingAge final : public measure::MeasurementListener, public measure::PassListener {
public:
    ReadingAge(forms::StatusForm& form, const sensors::SensorTable& table, platform::Clock& clock)
        : grid_(form.ResultGrid), table_(table), clock_(clock) {}

    // Call about twice a second, and after the table has changed.
    void Look();

    bool IsStale(int slot) const {
        const auto index = static_cast<std::size_t>(slot);
        return index < readings_.size() && readings_[index].stale;
    }

    void Started() override;
    void ModesChanged() override { Look(); }
    void Stopped() override { Date(clock_.Monotonic(), std::nullopt); }

    void PassSeen(platform::Duration now, platform::Duration lasted) override { Date(now, lasted); }

    // The result table calls it, which costs less than listening to all that happens at a slot.
    void ReadingArrived(int slot);

private:
    // The last good reading of a slot.
    struct Reading {
        bool arrived = false;  // and not dated yet
        bool stale = false;
        std::optional<platform::Duration> came;  // monotonic time
        platform::Duration lasted{};             // of its pass
    };

    // Gives the readings that have arrived their time.
    void Date(platform::Duration now, std::optional<platform::Duration> lasted);
    void ShowAll();
    void ShowState(int slot);

    controls::Grid& grid_;
    const sensors::SensorTable& table_;
    platform::Clock& clock_;
    std::vector<Reading> readings_;  // by slot
};

}  // namespace kelvra::ui
