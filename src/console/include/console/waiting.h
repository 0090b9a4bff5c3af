// SPDX-License-Identifier: GPL-3.0-or-later
// What a script waits for before its next command: passes, time, or the end of a measurement.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "measure/state.h"
#include "platform/clock.h"

namespace kelvra::console {

class Waiting {
public:
    Waiting(const measure::MeasureState& state, platform::Clock& clock)
        : state_(state), clock_(clock) {}

    // An error when no measurement is running. Without a limit it waits as long as it takes.
    std::optional<std::string> ForPasses(std::int64_t passes,
                                         std::optional<platform::Duration> limit);
    void ForTime(platform::Duration time);
    void ForIdle();

    // Ended: the measurement, before the passes were complete. TimedOut: the passes were not
    // complete in time.
    enum class Look { GoOn, Wait, Ended, TimedOut };
    Look At();
    // When a wait that only time can end is over.
    std::optional<platform::Duration> WakesAt() const { return until_; }

private:
    enum class Kind { Nothing, Passes, Time, Idle };

    Look AtPasses() const;
    bool TimeIsUp() const;
    bool MeasurementRuns() const { return state_.measuring && state_.commandRuns; }

    const measure::MeasureState& state_;
    platform::Clock& clock_;
    Kind kind_ = Kind::Nothing;
    std::int64_t passes_ = 0;
    std::optional<platform::Duration> until_;
};

}  // namespace kelvra::console
