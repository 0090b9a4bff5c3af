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

    // An error when no measurement runs.
    std::optional<std::string> ForPasses(std::int64_t passes);
    void ForTime(platform::Duration time);
    void ForIdle() { kind_ = Kind::Idle; }

    enum class Look { GoOn, Wait, Failed };
    // Failed: the measurement ended before the passes were there.
    Look At();
    std::optional<platform::Duration> WakesAt() const;

private:
    enum class Kind { Nothing, Passes, Time, Idle };

    bool MeasurementRuns() const { return state_.measuring && state_.commandRuns; }

    const measure::MeasureState& state_;
    platform::Clock& clock_;
    Kind kind_ = Kind::Nothing;
    std::int64_t passes_ = 0;
    platform::Duration until_{};
};

}  // namespace kelvra::console
