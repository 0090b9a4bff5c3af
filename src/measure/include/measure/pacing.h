// SPDX-License-Identifier: GPL-3.0-or-later
// Holds each pass back to the recording interval. While passes keep up, the deadlines are an
// interval apart exactly, so a recording doesn't drift; after a pass that took longer they start
// anew. Goes by the monotonic clock, so midnight and a clock that is set don't matter.
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

    // A measurement starts: no deadline yet.
    void Reset() { lastDeadline_.reset(); }
    void PassBegins(platform::Duration now) { passBegan_ = now; }
    // Waits until the pass has lasted as long as the recording interval, letting events run and
    // telling how long it still waits. Without an interval, and once the measurement is to
    // end, it returns at once.
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
