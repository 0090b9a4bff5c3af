// SPDX-License-Identifier: GPL-3.0-or-later
// What the trend window shows: the readings of each sensor in columns of equal width, between two
// moments of the monotonic clock, and how it becomes curves.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "controls/graph.h"
#include "measure/trend_store.h"

namespace kelvra::ui {

struct TrendPicture {
    struct Sensor {
        std::string key, name;
        int place = 0;               // of its readings in the trend
        std::optional<double> last;  // W, the newest reading before the end
        std::vector<measure::TrendColumn> columns;
    };
    // Over all columns.
    struct Statistics {
        double min = 0, max = 0, mean = 0;  // W
    };

    platform::Duration from{}, width{};  // of the first column
    std::vector<Sensor> sensors;

    platform::Duration At(std::size_t column) const {
        return from + width * static_cast<std::int64_t>(column);
    }
    // The column with readings that is nearest to that one, within `reach`; nothing without one.
    static std::optional<std::size_t> NearestTo(std::int64_t column, const Sensor& sensor,
                                                std::int64_t reach);
    static std::optional<Statistics> StatisticsOf(const Sensor& sensor);
};

// The unit in which powers are shown.
enum class TrendUnit { Dbm, Watts };
double InUnit(double powerW, TrendUnit unit);

// The mean of each column, and its range if any column has several readings. Between columns with
// readings that nothing has interrupted, the line is straight; elsewhere there is no value.
controls::Graph::Series SeriesOf(const TrendPicture::Sensor& sensor, TrendUnit unit);

// An axis with round ends around what the series show, and around limits that are not far from it.
// In dBm, powers of nearly nothing do not count. Nothing if there is nothing to show.
std::optional<controls::Graph::Axis> AxisAround(const std::vector<controls::Graph::Series>& series,
                                                const controls::Graph::Band& limits,
                                                TrendUnit unit);

}  // namespace kelvra::ui
