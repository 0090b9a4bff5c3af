// SPDX-License-Identifier: GPL-3.0-or-later
#include "measure/simulation.h"

#include <algorithm>

#include "util/levels.h"

namespace kelvra::measure {

namespace {

// A random level in dBm: spread * r + base, r uniform in [0, 1).
struct Level {
    double spread;
    double base;
};

double Draw(const Level& level, util::Random& random) {
    return util::DbmToW(static_cast<double>(random.Next()) * level.spread + level.base);
}

constexpr Level FirstSensor{0.1, -8.72};
constexpr Level OtherSensors{0.051, -4.05};

// A trace by eighths: floor, rising edge's overshoot, a step, a gap, the main pulse, its tail.
constexpr Level TraceEighths[] = {{5, -65},  {5, -65}, {0.2, 1},   {0.5, -12},
                                  {10, -55}, {0.1, 6}, {0.5, -25}, {0.5, -25}};

// Time slots, repeated in this order.
constexpr Level SlotLevels[] = {{5, -65}, {0.05, 1}, {0.3, -12}, {10, -55}, {0.1, 6}, {1, -25}};

template <class LevelAt>
std::vector<double> DrawArray(int count, int most, util::Random& random, LevelAt levelAt) {
    std::vector<double> values(static_cast<std::size_t>(std::clamp(count, 0, most)));
    for (std::size_t i = 0; i < values.size(); ++i)
        values[i] = Draw(levelAt(i, values.size()), random);
    return values;
}

}  // namespace

double SimulatedReading(int slot, util::Random& random) {
    return Draw(slot == 0 ? FirstSensor : OtherSensors, random);
}

std::vector<double> SimulatedArray(const sensors::SensorSettings& settings, int most,
                                   util::Random& random) {
    switch (settings.Mode) {
        case sensors::Trace:
            return DrawArray(settings.ScopePoints, most, random, [](std::size_t i, std::size_t n) {
                return TraceEighths[i * std::size(TraceEighths) / n];
            });
        case sensors::TimeSlot:
            return DrawArray(settings.TSlotCount, most, random, [](std::size_t i, std::size_t) {
                return SlotLevels[i % std::size(SlotLevels)];
            });
        default:
            return {};
    }
}

}  // namespace kelvra::measure
