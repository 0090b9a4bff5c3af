// SPDX-License-Identifier: GPL-3.0-or-later
#include "measured_spans.h"

#include <algorithm>

#include "level_search.h"

namespace kelvra::virtual_sensors {
namespace {

constexpr double ShortestSpan = 1e-9;  // s, of settings that conflict and give no result
constexpr double WithoutBurst = 1e-3;  // s

}  // namespace

MeasuredSpans::MeasuredSpans(const SettingValues& settings, int32_t count)
    : count_(PointCount(settings)), begin_(settings[Setting::psdrv_trigger_setDelay]) {
    switch (ModeOf(settings)) {
        case Mode::Average:
        case Mode::Buffered:
            step_ = length_ = 2 * settings[Setting::psdrv_chan_setContAvAperture] * count;
            break;
        case Mode::Slots:
            begin_ += settings[Setting::ExcludeStart];
            step_ = settings[Setting::SlotWidth];
            length_ = step_ - settings[Setting::ExcludeStart] - settings[Setting::ExcludeStop];
            break;
        case Mode::Burst:
            burst_ = true;
            levelW_ = settings[Setting::psdrv_trigger_setLevel];
            dropOut_ = settings[Setting::psdrv_chan_setBurstDropoutTolerance];
            length_ = WithoutBurst;
            break;
        case Mode::Trace:
            begin_ += settings[Setting::psdrv_scope_setOffsetTime];
            step_ = length_ = settings[Setting::psdrv_scope_setTime] / count_;
            break;
    }
    length_ = std::max(length_, ShortestSpan);
}

double MeasuredSpans::PowerW(const Signal& signal, double trigger, int32_t index) const {
    if (!signal.Modulated()) return signal.MeanW();
    double begin = trigger + begin_ + index * step_;
    double length = length_;
    if (burst_) {
        if (const auto burst = FindBurst(signal, levelW_, dropOut_, begin)) {
            begin = burst->begin;
            length = burst->length;
        }
    }
    return signal.MeanW(begin, length);
}

}  // namespace kelvra::virtual_sensors
