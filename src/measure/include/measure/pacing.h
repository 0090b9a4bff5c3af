// SPDX-License-Identifier: GPL-3.0-or-later
// Holds each pass back to the recording interval. While passes keep up, the deadlines are an
// interval apart exactly, so a recording doesn't drift; after a pass that took longer they start
// anew. Goes by the monotonic clock, so midnight and a clock that is set don't matter.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <utility>

#include "measure/state.h"
#include "platform/host.h"

namespace kelvra::measure {

class Pacing {
public:
    // What is left of a wait is shown by showDelay.
    Pacing(MeasureState& state, platform::Host& host,
           std::function<void(const std::string&)> showDelay)
        : state_(state), host_(host), showDelay_(std::move(showDelay)) {}

    // A measurement starts: no deadline yet.
    void Reset() { lastDeadline_.reset(); }
    void PassBegins() { passBegan_ = host_.clock.Monotonic(); }
    // Waits until the pass has lasted as long as the recording interval, letting events run and
    // showing the whole seconds that are left. Without an interval, and once the measurement is to
    // end, it returns at once.
    void WaitForDeadline();

private:
    platform::Duration Deadline() const;
    void ShowDelay(platform::Duration left);

    MeasureState& state_;
    platform::Host& host_;
    std::function<void(const std::string&)> showDelay_;
    platform::Duration passBegan_{};
    std::optional<platform::Duration> lastDeadline_;
};

}  // namespace kelvra::measure
