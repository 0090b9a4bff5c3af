// SPDX-License-Identifier: GPL-3.0-or-later
// Where a signal passes a level: the internal trigger and the bursts. The work of one call is
// limited, however fast the signal and however long the time.
#pragma once

#include <optional>

#include "seen_signal.h"

namespace kelvra::virtual_sensors {

struct TriggerLevel {
    double levelW = 0;
    bool rising = true;
    double hysteresisDb = 0;
};

// Looks for one trigger, as far as the bench's time has come.
class TriggerSearch {
public:
    // Takes the first trigger from `start` on that is not before `earliest`.
    TriggerSearch(const Signal& signal, const TriggerLevel& level, double start, double earliest);

    // The trigger's time, if it comes until `now`; later calls go on from there. A continuous wave
    // above the level triggers at once.
    std::optional<double> Find(const Signal& signal, double now);

private:
    bool Triggers(const Line& line);

    TriggerLevel level_;
    double armW_;  // the power must have been beyond this level before it triggers
    double earliest_;
    double searched_;  // the bench's time
    bool armed_ = false;
};

struct Burst {
    double begin = 0;  // the bench's time
    double length = 0;
};

// The burst at this time, or else the next one: power above the level, with gaps of less than
// dropOut s. Nothing if there is none in three periods of the slowest source, and no longer than
// these.
std::optional<Burst> FindBurst(const Signal& signal, double levelW, double dropOut, double time);

}  // namespace kelvra::virtual_sensors
