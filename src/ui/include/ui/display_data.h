// SPDX-License-Identifier: GPL-3.0-or-later
// What the displays show, as comma-separated values (RFC 4180) for a spreadsheet: copied or saved.
// Where the locale has a decimal comma, the user is asked once a run whether the numbers get it;
// then semicolons separate the values.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "forms/forms.h"
#include "platform/host.h"
#include "sensors/sensor_table.h"
#include "ui/text_saver.h"

namespace kelvra::ui {

class DisplayData {
public:
    DisplayData(forms::Forms& forms, const sensors::SensorTable& table, Notice& notice,
                platform::Host& host);

private:
    using Maker = std::string (DisplayData::*)() const;

    // Calls `goOn` when it is known how numbers are written.
    void WithSeparator(std::function<void()> goOn);
    void Copy(Maker make);
    void Save(const controls::List& sensors, const char* what, Maker make);
    std::string TraceText() const;
    std::string SlotText() const;
    struct Column {
        std::string heading;
        std::vector<double> values;
    };
    std::string Text(const std::vector<Column>& columns) const;

    forms::Forms& forms_;
    const sensors::SensorTable& table_;
    platform::Host& host_;
    TextSaver saver_;
    util::NumberForm form_;
    bool asked_;
};

}  // namespace kelvra::ui
