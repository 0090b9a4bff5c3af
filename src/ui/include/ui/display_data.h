// SPDX-License-Identifier: GPL-3.0-or-later
// What the displays show, as comma-separated values (RFC 4180) for a spreadsheet: copied or saved.
#pragma once

#include <string>
#include <vector>

#include "forms/forms.h"
#include "platform/host.h"
#include "sensors/sensor_table.h"
#include "ui/data_form.h"
#include "ui/text_saver.h"

namespace kelvra::ui {

class DisplayData {
public:
    DisplayData(forms::Forms& forms, const sensors::SensorTable& table, DataForm& dataForm,
                Notice& notice, platform::Host& host);

private:
    using Maker = std::string (DisplayData::*)() const;

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
    DataForm& form_;
    TextSaver saver_;
};

}  // namespace kelvra::ui
