// SPDX-License-Identifier: GPL-3.0-or-later
// Counts the calls of each function and finds the scenario's faults and events that apply to a
// call. The bench and the exported functions carry them out.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

#include "scenario.h"

namespace kelvra::virtual_sensors {

// The fault of one call.
struct Twist {
    std::optional<int32_t> status;  // returned at once; the function does nothing
    std::optional<int32_t> count;   // returned in place of the whole number
    std::optional<double> value;    // returned in place of every reading
    bool unended = false;           // texts fill their buffers without a NUL
};

class Faults {
public:
    explicit Faults(const Scenario& scenario)
        : faults_(scenario.faults), events_(scenario.events), seen_(faults_.size()) {}

    // The faults of the next call of a function. The channel is 0 for functions without one.
    Twist Meet(Operation operation, int64_t channel);

    // The events that are due after Meet, in the order of the scenario. Each is returned once.
    std::vector<Event> TakeEvents(double now);

private:
    std::vector<Fault> faults_;
    std::vector<Event> events_;  // still to come
    std::vector<int64_t> seen_;  // calls that each fault has counted
    std::array<int64_t, OperationCount> calls_{};
};

}  // namespace kelvra::virtual_sensors
