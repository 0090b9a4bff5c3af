// SPDX-License-Identifier: GPL-3.0-or-later
// Holds each pass back to the recording interval. While passes keep up, the deadlines are exactly
// an interval apart, so a recording doesn't drift; after a pass that took longer they start anew.
// Uses the monotonic clock, so that midnight and a change of the clock don't matter.
#pragma once

#include <optional>

#include "measure/listener.h"
#include "measure/state.h"
#include "platform/host.h"

namespace kelvra::measure {

class Pacing {
public:
    Pacing(MeasureState& state, platform::Host& host, const News& news)
        : state_(state), host_(host), news_(news) {}

    // Call when a measurement starts: there is no deadline yet.
    void Reset() { lastDeadline_.reset(); }
    void PassBegins(platform::Duration now) { passBegan_ = now; }
    // Waits until the pass has lasted as long as the recording interval. Meanwhile it lets events
    // run and reports the time left. Returns at once without an interval, and when the measurement
    // is to end.
    void WaitForDeadline();

private:
    platform::Duration Deadline() const;

    MeasureState& state_;
    platform::Host& host_;
    const News& news_;
    platform::Duration passBegan_{};
    std::optional<platform::Duration> lastDeadline_;
};

}  // namespace kelvra::measure
