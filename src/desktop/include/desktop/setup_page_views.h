// SPDX-License-Identifier: GPL-3.0-or-later
// The five pages of the setup dialog.
#pragma once

#include <QWidget>

#include "desktop/widget_maker.h"
#include "forms/setup_form.h"

namespace kelvra::desktop {

QWidget* MakeGeneralPage(forms::SetupForm& form, WidgetMaker& maker);
QWidget* MakeModePage(forms::SetupForm& form, WidgetMaker& maker);
QWidget* MakeTriggerPage(forms::SetupForm& form, WidgetMaker& maker);
QWidget* MakeCorrectionPage(forms::SetupForm& form, WidgetMaker& maker);
QWidget* MakeAdvancedPage(forms::SetupForm& form, WidgetMaker& maker);

}  // namespace kelvra::desktop
