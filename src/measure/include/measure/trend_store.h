// SPDX-License-Identifier: GPL-3.0-or-later
// The readings of all sensors over time, each under what the sensor is known by, so that it does
// not matter which slot it has. Sensors that have gone stay until they are cleared, or make room.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "measure/trend_series.h"

namespace kelvra::measure {

class TrendStore {
public:
    // As many sensors are kept as that, or as are measured at once.
    static constexpr std::size_t Most = 16;

    // The sensor's readings, which are new if there are none. For that, those of the sensor whose
    // last reading is the oldest may be dropped, unless it is active.
    TrendSeries& Of(const std::string& key);
    // Null if there is none.
    const TrendSeries* Find(const std::string& key) const;
    // In the order of their first readings.
    const std::vector<std::unique_ptr<TrendSeries>>& All() const { return series_; }

    // Drops all readings. Active sensors remain, without readings.
    void Clear();

    std::size_t Bytes() const;

private:
    void MakeRoom();
    int FreePlace() const;

    std::vector<std::unique_ptr<TrendSeries>> series_;
};

}  // namespace kelvra::measure
