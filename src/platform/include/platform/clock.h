// SPDX-License-Identifier: GPL-3.0-or-later
// Wall clock, monotonic clock and sleep. The computer's own is in platform/posix. SetClock moves
// only when the program moves it, for repeatable runs and for tests.
#pragma once

#include <chrono>
#include <string>

#include "platform/files.h"

namespace kelvra::platform {

using Duration = std::chrono::nanoseconds;

// ISO 8601 with milliseconds and the offset from UTC: "2005-03-07T12:00:00.000+01:00".
std::string IsoText(const LocalTime& time);

class Clock {
public:
    virtual ~Clock() = default;

    virtual LocalTime Now() = 0;
    // The local time at a moment of the monotonic clock, by what the wall clock says now.
    virtual LocalTime At(Duration monotonic) = 0;
    // Time since some fixed moment; never goes back.
    virtual Duration Monotonic() = 0;
    virtual void Sleep(Duration duration) = 0;
};

// Starts at a given local time, which counts as UTC; days have 24 hours (no summer time).
class SetClock : public Clock {
public:
    explicit SetClock(const LocalTime& start);

    LocalTime Now() override { return At(elapsed_); }
    LocalTime At(Duration monotonic) override;
    Duration Monotonic() override { return elapsed_; }
    void Sleep(Duration duration) override { Advance(duration); }

    void Advance(Duration duration) { elapsed_ += duration; }
    // Does nothing if that moment has passed.
    void AdvanceTo(Duration monotonic);

private:
    std::chrono::sys_time<std::chrono::milliseconds> start_;
    Duration elapsed_{0};
};

}  // namespace kelvra::platform
