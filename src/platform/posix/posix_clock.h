// SPDX-License-Identifier: GPL-3.0-or-later
// The computer's own clocks.
#pragma once

#include "platform/clock.h"

namespace kelvra::platform {

class PosixClock final : public Clock {
public:
    LocalTime Now() override;
    LocalTime At(Duration monotonic) override;
    Duration Monotonic() override;
    // Continues after signals; returns at once for a zero or negative duration.
    void Sleep(Duration duration) override;
};

}  // namespace kelvra::platform
