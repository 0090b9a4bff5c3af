// SPDX-License-Identifier: GPL-3.0-or-later
// Counts the calls of each function and finds the faults and events of the scenario that apply to
// a call. Carrying them out is left to the bench and to the exported functions.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

#include "scenario.h"

namespace kelvra::virtual_sensors {

// What goes wrong with one call.
struct Twist {
    std::optional<int32_t> status;  // answered at once, nothing is done
    std::optional<int32_t> count;   // instead of the whole number that is given back
    std::optional<double> value;    // instead of every reading
    bool unended = false;           // texts fill their buffer without a NUL
};

class Faults {
public:
    explicit Faults(const Scenario& scenario)
        : faults_(scenario.faults), events_(scenario.events), seen_(faults_.size()) {}

    // The next call of a function. The channel is 0 where there is none.
    Twist Meet(Operation operation, int64_t channel);

    // The events that are due after Meet, in the order of the scenario; each is returned once.
    std::vector<Event> TakeEvents(double now);

private:
    std::vector<Fault> faults_;
    std::vector<Event> events_;  // still to come
    std::vector<int64_t> seen_;  // calls that each fault has counted
    std::array<int64_t, OperationCount> calls_{};
};

}  // namespace kelvra::virtual_sensors
