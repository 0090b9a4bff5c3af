// SPDX-License-Identifier: GPL-3.0-or-later
// What the adapters of all widgets do: enabled, visible, tooltip, colours. Updates are frequent, so
// a tooltip that says what is shown already is not made again.
#pragma once

#include <QWidget>
#include <optional>
#include <string>

#include "controls/control.h"
#include "desktop/adapter.h"

namespace kelvra::desktop {

class WidgetAdapter : public Adapter {
protected:
    // The tooltip begins with the fault, if there is one.
    void UpdateCommon(QWidget& widget, const controls::Control& control,
                      const std::string& fault = {});

private:
    void UpdateTooltip(QWidget& widget, const controls::Control& control, const std::string& fault);

    std::optional<std::string> tooltip_;  // as shown
    std::string fault_;
    bool coloured_ = false;
};

}  // namespace kelvra::desktop
