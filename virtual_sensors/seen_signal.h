// SPDX-License-Identifier: GPL-3.0-or-later
// The power over time that a sensor sees: the sum of its sources, each a continuous wave or a
// waveform. It depends on nothing but the bench's time.
#pragma once

#include <cstddef>
#include <memory>
#include <vector>

#include "waveform.h"

namespace kelvra::virtual_sensors {

class Signal {
public:
    // The waveform of a source of this level; without one it is a continuous wave.
    void Add(const std::shared_ptr<const Waveform>& waveform, double levelW);

    bool Modulated() const { return !parts_.empty(); }

    // In the long run, and over `length` s (above 0) from the bench's time `start` on.
    double MeanW() const { return meanW_; }
    double MeanW(double start, double length) const;

    double LongestPeriod() const;
    // False if the power is never above, or never below this level.
    bool MayCross(double levelW) const { return lowestW_ < levelW && levelW < highestW_; }

private:
    friend class SignalWalk;

    struct Part {
        std::shared_ptr<const Waveform> waveform;
        double levelW;
    };

    double constantW_ = 0;  // of the continuous waves
    double meanW_ = 0;
    double lowestW_ = 0;
    double highestW_ = 0;
    std::vector<Part> parts_;
};

// A straight part of a signal, or one of its steps. Times are in s since the walk's start.
struct Line {
    double from, to;
    double fromW, toW;

    // When the line passes the level, which must lie between its two ends.
    double Passes(double levelW) const;
};

// Follows a signal line by line from the bench's time `start` on.
class SignalWalk {
public:
    SignalWalk(const Signal& signal, double start);

    // The next line, cut off at `until`, which is not before the last line's end.
    Line Next(double until);

private:
    struct Place {
        const Waveform* waveform;
        double levelW;
        double phase;       // at the walk's start
        double periods;     // whole ones since then
        std::size_t point;  // at which the line begins

        double Time(std::size_t ofPoint) const;
        double PowerW(double time) const;
        void Leave();
    };

    double PowerW(double time) const;

    double constantW_;
    std::vector<Place> places_;
    double time_ = 0;
    double powerW_;
};

}  // namespace kelvra::virtual_sensors
