// SPDX-License-Identifier: GPL-3.0-or-later
// Reads the pulses of a trace, with the definitions of IEEE Std 181-2011: the state levels are the
// modes of the histogram of the power (in W) in the lower and the upper half of its range; the
// reference levels are 10, 50 and 90 % of the amplitude between them.
#pragma once

#include <limits>
#include <optional>
#include <span>

namespace kelvra::measure {

// Nothing where the trace does not show it.
struct PulseReadings {
    std::optional<double> peak;       // W, the largest value
    std::optional<double> average;    // W, over the gate
    std::optional<double> top;        // W, level of the upper state
    std::optional<double> base;       // W, level of the lower state
    std::optional<double> overshoot;  // % of the amplitude, of the first pulse's rising edge
    std::optional<double> riseTime;   // s, from 10 to 90 %, of the first rising edge
    std::optional<double> fallTime;   // s, from 90 to 10 %, of the first falling edge
    std::optional<double> width;      // s, between the 50 % instants of a pulse's edges
    std::optional<double> period;     // s, between the 50 % instants of the first like edges
    std::optional<double> dutyCycle;  // %, width to period
};

// s, counted from the trace's first value.
struct Gate {
    double start = 0;
    double stop = std::numeric_limits<double>::infinity();
};

// Values are powers in W at instants `step` (s) apart; those that are not finite are left out. A
// pulse is seen if the upper state has at least twice the power of the lower one.
PulseReadings ReadPulses(std::span<const double> traceW, double step, const Gate& gate = {});

}  // namespace kelvra::measure
