// SPDX-License-Identifier: GPL-3.0-or-later
// The table below the trend: for each sensor its last reading, smallest, largest and mean power of
// the shown time, and how many readings have been outside its limits.
#pragma once

#include "controls/grid.h"
#include "ui/trend_limits.h"
#include "ui/trend_picture.h"

namespace kelvra::ui {

class TrendTable {
public:
    TrendTable(controls::Grid& grid, TrendLimits& limits, const util::NumberForm& numbers);

    void Write(const TrendPicture& picture, TrendUnit unit);

private:
    void WriteHeading(TrendUnit unit);
    void WriteRow(int row, const TrendPicture::Sensor& sensor, TrendUnit unit);
    void WritePower(int row, int column, std::optional<double> powerW, TrendUnit unit);

    controls::Grid& grid_;
    TrendLimits& limits_;
    const util::NumberForm& numbers_;
};

}  // namespace kelvra::ui
