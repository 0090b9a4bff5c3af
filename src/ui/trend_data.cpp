// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/trend_data.h"

#include <algorithm>
#include <cmath>

#include "platform/clock.h"
#include "util/text.h"

namespace kelvra::ui {

namespace {

constexpr const char* Quantities[] = {"mean", "min", "max"};

// To the digits that the trend keeps.
double Rounded(double value) {
    constexpr int digits = 7;
    if (value == 0 || !std::isfinite(value)) return value;
    const double scale = std::pow(10, digits - 1 - std::floor(std::log10(std::abs(value))));
    return std::isfinite(scale) ? std::nearbyint(value * scale) / scale : value;
}

}  // namespace

TrendData::TrendData(forms::TrendForm& form, const TrendWindow& window, DataForm& dataForm,
                     Notice& notice, platform::Host& host)
    : window_(window), form_(dataForm), host_(host), saver_(notice, host) {
    form.CopyTrend.click.Connect([this] { form_.Ask([this] { host_.dialogs.CopyText(Text()); }); });
    form.SaveTrend.click.Connect([this] {
        form_.Ask([this] {
            saver_.Save({"Data of ", "the trend", Text(), "Save data",
                         "Comma-separated (*.csv)|*.csv", "Trend.csv"});
        });
    });
}

std::string TrendData::Text() const {
    std::string text = Heading() + DataForm::LineEnd;
    for (std::size_t column = 0; column < TrendWindow::Columns; ++column)
        if (HasReadings(column)) text += Line(column) + DataForm::LineEnd;
    return text;
}

std::string TrendData::Heading() const {
    std::string text = "Time";
    const std::string unit = window_.Unit() == TrendUnit::Watts ? " (W)" : " (dBm)";
    for (const TrendPicture::Sensor& sensor : window_.Picture().sensors)
        for (const char* quantity : Quantities)
            text += form_.Separator() + util::CsvField(sensor.name + " " + quantity + unit);
    return text;
}

bool TrendData::HasReadings(std::size_t column) const {
    const auto& sensors = window_.Picture().sensors;
    return std::any_of(sensors.begin(), sensors.end(), [column](const auto& sensor) {
        return column < sensor.columns.size() && sensor.columns[column].count > 0;
    });
}

std::string TrendData::Line(std::size_t column) const {
    const TrendPicture& picture = window_.Picture();
    std::string text = platform::IsoText(host_.clock.At(picture.At(column)));
    for (const TrendPicture::Sensor& sensor : picture.sensors) {
        const bool has = column < sensor.columns.size() && sensor.columns[column].count > 0;
        const measure::TrendColumn values = has ? sensor.columns[column] : measure::TrendColumn{};
        for (const double power : {values.mean, values.min, values.max}) {
            text += form_.Separator();
            if (has) text += form_.Number(Rounded(InUnit(power, window_.Unit())));
        }
    }
    return text;
}

}  // namespace kelvra::ui
