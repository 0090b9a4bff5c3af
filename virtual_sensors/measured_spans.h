// SPDX-License-Identifier: GPL-3.0-or-later
// What each value of a measurement is the mean of: a span of the signal, counted from the trigger.
#pragma once

#include <cstdint>

#include "seen_signal.h"
#include "setting_values.h"

namespace kelvra::virtual_sensors {

class MeasuredSpans {
public:
    MeasuredSpans() = default;

    // The averaging count lengthens the spans of the continuous modes. The others average the same
    // part of a waveform again and again, which changes nothing here.
    MeasuredSpans(const SettingValues& settings, int32_t count);

    int32_t Count() const { return count_; }

    // The mean power of value `index` when the trigger came at this time of the bench.
    double PowerW(const Signal& signal, double trigger, int32_t index) const;

private:
    int32_t count_ = 0;
    double begin_ = 0;  // s after the trigger
    double step_ = 0;   // s from each to the next
    double length_ = 0;

    // A burst is looked for from begin_ on; if there is none, length_ counts.
    bool burst_ = false;
    double levelW_ = 0;
    double dropOut_ = 0;
};

}  // namespace kelvra::virtual_sensors
