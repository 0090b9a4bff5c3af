// SPDX-License-Identifier: GPL-3.0-or-later
#include "seen_signal.h"

#include <algorithm>

namespace kelvra::virtual_sensors {

void Signal::Add(const std::shared_ptr<const Waveform>& waveform, double levelW) {
    lowestW_ += levelW * (waveform ? waveform->Lowest() : 1);
    highestW_ += levelW * (waveform ? waveform->Highest() : 1);
    meanW_ += levelW * (waveform ? waveform->Mean() : 1);
    if (!waveform) {
        constantW_ += levelW;
        return;
    }
    for (Part& part : parts_) {
        if (part.waveform != waveform) continue;
        part.levelW += levelW;
        return;
    }
    parts_.push_back({waveform, levelW});
}

double Signal::MeanW(double start, double length) const {
    double power = constantW_;
    for (const Part& part : parts_) power += part.levelW * part.waveform->Mean(start, length);
    return power;
}

double Signal::LongestPeriod() const {
    double longest = 0;
    for (const Part& part : parts_) longest = std::max(longest, part.waveform->Period());
    return longest;
}

double Line::Passes(double levelW) const {
    return from + (to - from) * ((levelW - fromW) / (toW - fromW));
}

SignalWalk::SignalWalk(const Signal& signal, double start) : constantW_(signal.constantW_) {
    for (const Signal::Part& part : signal.parts_) {
        const auto& points = part.waveform->Points();
        const double phase = part.waveform->PhaseOf(start);
        // A step at the very start is part of the walk.
        const auto next = std::lower_bound(
            points.begin() + 1, points.end() - 1, phase,
            [](const Waveform::Point& point, double time) { return point.time < time; });
        const auto point = static_cast<std::size_t>(next - points.begin()) - 1;
        places_.push_back({part.waveform.get(), part.levelW, phase, 0, point});
    }
    powerW_ = PowerW(0);
}

Line SignalWalk::Next(double until) {
    double end = until;
    for (const Place& place : places_) end = std::min(end, place.Time(place.point + 1));
    end = std::max(end, time_);
    Line line{time_, end, powerW_, constantW_};
    for (Place& place : places_) {
        if (place.Time(place.point + 1) <= end) place.Leave();
        line.toW += place.PowerW(end);
    }
    time_ = line.to;
    powerW_ = line.toW;
    return line;
}

double SignalWalk::PowerW(double time) const {
    double power = constantW_;
    for (const Place& place : places_) power += place.PowerW(time);
    return power;
}

double SignalWalk::Place::Time(std::size_t ofPoint) const {
    return periods * waveform->Period() - phase + waveform->Points()[ofPoint].time;
}

double SignalWalk::Place::PowerW(double time) const {
    const Waveform::Point& from = waveform->Points()[point];
    const Waveform::Point& to = waveform->Points()[point + 1];
    const double line = to.time - from.time;
    const double passed = time - Time(point);
    const double share = line > 0 ? std::clamp(passed / line, 0.0, 1.0) : 0;
    return levelW * (from.power + (to.power - from.power) * share);
}

void SignalWalk::Place::Leave() {
    ++point;
    if (point + 1 < waveform->Points().size()) return;
    point = 0;
    ++periods;
}

}  // namespace kelvra::virtual_sensors
