// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/trend_picture.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "util/levels.h"

namespace kelvra::ui {

using controls::Graph;
using measure::TrendColumn;

namespace {

constexpr double None = std::numeric_limits<double>::quiet_NaN();
constexpr double MostDecibels = 150;  // from the top of an axis to its bottom
constexpr double LeastDecibels = 0.1;
// A limit that is farther from all readings would leave them no room.
constexpr double FarLimit = 50;  // dB
constexpr double FarFactor = 10;
// A smaller axis in W would show the rounding of the numbers.
constexpr double LeastShare = 1e-3;  // of the power
constexpr double LeastWatts = 1e-15;

// A straight line from a value to one some columns later.
void Join(std::vector<double>& values, std::size_t from, std::size_t to) {
    for (std::size_t i = from + 1; i < to; ++i) {
        const double share = static_cast<double>(i - from) / static_cast<double>(to - from);
        values[i] = values[from] + (values[to] - values[from]) * share;
    }
}

// 1, 2 or 5 times a power of ten, about an eighth of the axis.
double RoundStep(double axis) {
    constexpr double steps = 8;
    const double power = std::pow(10, std::floor(std::log10(axis / steps)));
    for (const double factor : {1.0, 2.0, 5.0})
        if (power * factor >= axis / steps) return power * factor;
    return 10 * power;
}

}  // namespace

std::optional<std::size_t> TrendPicture::NearestTo(std::int64_t column, const Sensor& sensor,
                                                   std::int64_t reach) {
    const auto size = static_cast<std::int64_t>(sensor.columns.size());
    for (std::int64_t distance = 0; distance <= reach; ++distance)
        for (const std::int64_t near : {column - distance, column + distance})
            if (near >= 0 && near < size &&
                sensor.columns[static_cast<std::size_t>(near)].count > 0)
                return static_cast<std::size_t>(near);
    return std::nullopt;
}

std::optional<TrendPicture::Statistics> TrendPicture::StatisticsOf(const Sensor& sensor) {
    std::optional<Statistics> all;
    double sum = 0, count = 0;
    for (const TrendColumn& column : sensor.columns) {
        if (column.count == 0) continue;
        if (!all) all = Statistics{column.min, column.max, 0};
        all->min = std::min(all->min, column.min);
        all->max = std::max(all->max, column.max);
        sum += column.mean * column.count;
        count += column.count;
    }
    if (all) all->mean = sum / count;
    return all;
}

double InUnit(double powerW, TrendUnit unit) {
    return unit == TrendUnit::Dbm ? util::WToDbm(powerW) : powerW;
}

Graph::Series SeriesOf(const TrendPicture::Sensor& sensor, TrendUnit unit) {
    Graph::Series series;
    series.name = sensor.name;
    series.look = sensor.place;
    const std::vector<TrendColumn>& columns = sensor.columns;
    const bool ranges = std::any_of(columns.begin(), columns.end(),
                                    [](const TrendColumn& column) { return column.count > 1; });
    series.values.assign(columns.size(), None);
    if (ranges) series.low = series.high = series.values;
    std::optional<std::size_t> before;
    for (std::size_t i = 0; i < columns.size(); ++i) {
        const TrendColumn& column = columns[i];
        if (column.count == 0) continue;
        series.values[i] = InUnit(column.mean, unit);
        if (ranges) {
            series.low[i] = InUnit(column.min, unit);
            series.high[i] = InUnit(column.max, unit);
        }
        if (before && column.joined)
            for (std::vector<double>* values : {&series.values, &series.low, &series.high})
                if (!values->empty()) Join(*values, *before, i);
        before = i;
    }
    return series;
}

std::optional<Graph::Axis> AxisAround(const std::vector<Graph::Series>& series,
                                      const Graph::Band& limits, TrendUnit unit) {
    double low = std::numeric_limits<double>::infinity(), high = -low;
    const auto include = [&](double value) {
        if (!std::isfinite(value)) return;
        low = std::min(low, value);
        high = std::max(high, value);
    };
    for (const Graph::Series& each : series)
        for (const std::vector<double>* values : {&each.values, &each.low, &each.high})
            std::for_each(values->begin(), values->end(), include);
    if (low > high) return std::nullopt;
    const bool decibels = unit == TrendUnit::Dbm;
    const double least = decibels ? low - FarLimit : 0;
    const double most = decibels ? high + FarLimit : high * FarFactor;
    for (const std::optional<double>& limit : {limits.low, limits.high})
        if (limit && *limit >= least && *limit <= most) include(*limit);
    if (decibels) low = std::max(low, high - MostDecibels);
    const double narrowest =
        decibels ? LeastDecibels : std::max(std::abs(high) * LeastShare, LeastWatts);
    const double step = RoundStep(std::max(high - low, narrowest));
    return Graph::Axis{(std::floor(low / step) - (low == high ? 1 : 0)) * step,
                       (std::ceil(high / step) + (low == high ? 1 : 0)) * step};
}

}  // namespace kelvra::ui
