// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/widget_adapter.h"

#include "desktop/colour_roles.h"
#include "desktop/common.h"
#include "desktop/qt_text.h"

namespace kelvra::desktop {

void WidgetAdapter::UpdateCommon(QWidget& widget, const controls::Control& control,
                                 const std::string& fault) {
    if (widget.testAttribute(Qt::WA_ForceDisabled) == control.enabled.Get())
        widget.setEnabled(control.enabled);
    // A widget outside a window would be shown as a window; it becomes visible once it is in one.
    const bool alone = widget.parentWidget() == nullptr;
    if (!alone || !control.visible) widget.setVisible(control.visible);
    UpdateTooltip(widget, control, fault);
    const bool coloured = control.back.Get() || control.fore.Get();
    if (coloured || coloured_) UpdateColours(widget, control);
    coloured_ = coloured;
}

void WidgetAdapter::UpdateTooltip(QWidget& widget, const controls::Control& control,
                                  const std::string& fault) {
    if (tooltip_ == control.tooltip.Get() && fault_ == fault) return;
    tooltip_ = control.tooltip.Get();
    fault_ = fault;
    QStringList parts{Shown(fault), Shown(control.tooltip.Get()).replace("\r\n", "\n"),
                      OwnTooltip(widget)};
    parts.removeAll(QString());
    ShowTooltip(widget, parts.join('\n'));
}

}  // namespace kelvra::desktop
