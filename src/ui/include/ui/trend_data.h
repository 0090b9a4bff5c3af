// SPDX-License-Identifier: GPL-3.0-or-later
// What the trend window shows, as comma-separated values (RFC 4180): copied or saved. A line for
// each column of the picture that has readings: its local time (ISO 8601), and for each sensor
// mean, minimum and maximum in the shown unit.
#pragma once

#include <string>

#include "forms/trend.h"
#include "platform/host.h"
#include "ui/data_form.h"
#include "ui/text_saver.h"
#include "ui/trend_window.h"

namespace kelvra::ui {

class TrendData {
public:
    TrendData(forms::TrendForm& form, const TrendWindow& window, DataForm& dataForm, Notice& notice,
              platform::Host& host);

private:
    std::string Text() const;
    std::string Heading() const;
    std::string Line(std::size_t column) const;
    bool HasReadings(std::size_t column) const;

    const TrendWindow& window_;
    DataForm& form_;
    platform::Host& host_;
    TextSaver saver_;
};

}  // namespace kelvra::ui
