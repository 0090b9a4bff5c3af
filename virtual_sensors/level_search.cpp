// SPDX-License-Identifier: GPL-3.0-or-later
#include "level_search.h"

#include <algorithm>
#include <cmath>

namespace kelvra::virtual_sensors {
namespace {

constexpr int MaxLines = 100'000;        // that one call looks at
constexpr double ShortestBurst = 10e-9;  // s

double PassedAt(const Line& line, double levelW) {
    const bool startsBelow = line.fromW <= levelW;
    return startsBelow == (line.toW <= levelW) ? line.from : line.Passes(levelW);
}

double ArmingLevel(const TriggerLevel& level) {
    const double hysteresis = std::pow(10, level.hysteresisDb / 10);
    return level.rising ? level.levelW / hysteresis : level.levelW * hysteresis;
}

}  // namespace

// A long hold-off is passed over but for two periods, which show whether the search is armed.
TriggerSearch::TriggerSearch(const Signal& signal, const TriggerLevel& level, double start,
                             double earliest)
    : level_(level),
      armW_(ArmingLevel(level)),
      earliest_(std::max(start, earliest)),
      searched_(std::max(start, earliest_ - 2 * signal.LongestPeriod())) {}

std::optional<double> TriggerSearch::Find(const Signal& signal, double now) {
    if (now < searched_) return std::nullopt;
    if (!signal.Modulated()) {
        if (now >= earliest_ && signal.MeanW() > level_.levelW) return earliest_;
        return std::nullopt;
    }
    if (!signal.MayCross(level_.levelW) || !signal.MayCross(armW_)) return std::nullopt;
    SignalWalk walk(signal, searched_);
    const double start = searched_;
    for (int lines = 0; lines < MaxLines && searched_ < now; ++lines) {
        const Line line = walk.Next(now - start);
        searched_ = line.to < now - start ? start + line.to : now;
        if (!Triggers(line)) continue;
        const double time = start + PassedAt(line, level_.levelW);
        if (time >= earliest_) return time;
    }
    // A search that can't keep up goes on at the present.
    if (searched_ < now) armed_ = false;
    searched_ = now;
    return std::nullopt;
}

// A falling slope is a rising one of the negative power.
bool TriggerSearch::Triggers(const Line& line) {
    const double sign = level_.rising ? 1 : -1;
    if (std::min(sign * line.fromW, sign * line.toW) < sign * armW_) armed_ = true;
    if (!armed_ || sign * line.toW <= sign * level_.levelW) return false;
    armed_ = false;
    return true;
}

std::optional<Burst> FindBurst(const Signal& signal, double levelW, double dropOut, double time) {
    SignalWalk walk(signal, time);
    const double horizon = 3 * signal.LongestPeriod();
    std::optional<double> begin;
    std::optional<double> end;  // unless it goes on before dropOut is over
    double reached = 0;
    for (int lines = 0; lines < MaxLines && reached < horizon; ++lines) {
        const Line line = walk.Next(horizon);
        reached = line.to;
        const double passed = PassedAt(line, levelW);
        const bool above = line.toW > levelW;
        if (end && (above ? passed : line.to) - *end >= dropOut) break;
        if (above) {
            if (!begin) begin = passed;
            end.reset();
        } else if (line.fromW > levelW) {
            if (!begin) begin = line.from;
            end = passed;
            if (*end - *begin < ShortestBurst) begin = end = std::nullopt;
        }
    }
    if (!begin) return std::nullopt;
    return Burst{time + *begin, std::max(end.value_or(reached) - *begin, ShortestBurst)};
}

}  // namespace kelvra::virtual_sensors
