// SPDX-License-Identifier: GPL-3.0-or-later
// The flags through which the cycle and the rest of the program talk to each other.
#pragma once

#include <cstdint>

namespace kelvra::measure {

struct MeasureState {
    bool measuring = false;           // from Start to Stop
    bool fetching = false;            // results are being read
    bool stopRequested = false;       // the cycle is to end when it next checks
    bool traceModeActive = false;     // an enabled sensor measures in trace mode
    bool timeSlotModeActive = false;  // an enabled sensor measures in time slot mode
    bool recording = false;           // a recording has been started and not ended
    std::int32_t recordInterval = 0;  // s between passes while recording; 0: no pauses

    bool exiting = false;      // the exit routine has run: touch nothing any more
    bool commandRuns = false;  // Start, or a sensor command, has not returned yet
    std::int64_t starts = 0;   // measurements started in this run of the program
    std::int64_t passes = 0;   // completed since start-up

    // Running handlers are to return when they next check.
    bool Ending() const { return stopRequested || exiting; }
};

// Guards a handler that must not be entered again, nor run with another one of its kind, nor after
// the exit routine. If the guard is false, the handler returns at once.
class CommandGuard {
public:
    explicit CommandGuard(MeasureState& state)
        : state_(state), entered_(!state.commandRuns && !state.exiting) {
        if (entered_) state_.commandRuns = true;
    }
    ~CommandGuard() {
        if (entered_) state_.commandRuns = false;
    }
    CommandGuard(const CommandGuard&) = delete;
    CommandGuard& operator=(const CommandGuard&) = delete;

    explicit operator bool() const { return entered_; }

private:
    MeasureState& state_;
    bool entered_;
};

}  // namespace kelvra::measure
