// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/data_form.h"

#include <cmath>
#include <optional>
#include <utility>

namespace kelvra::ui {

DataForm::DataForm(platform::Host& host)
    : host_(host), asked_(host.computer.Numbers().decimal == ".") {}

void DataForm::Ask(std::function<void()> goOn) {
    if (asked_) return goOn();
    host_.dialogs.Prompt(
        "Decimal separator of the data (a comma or a point):", host_.computer.Numbers().decimal,
        [this, goOn = std::move(goOn)](const std::optional<std::string>& answer) {
            if (!answer) return;
            if (*answer != "," && *answer != ".") return Ask(goOn);
            asked_ = true;
            form_.decimal = *answer;
            goOn();
        });
}

std::string DataForm::Number(double value) const {
    return std::isfinite(value) ? util::GeneralText(value, form_) : std::string();
}

}  // namespace kelvra::ui
