// SPDX-License-Identifier: GPL-3.0-or-later
// What is in the windows beside the frame, each made and mirrored by a function. Widgets and their
// adapters, no rules.
#pragma once

#include "desktop/widget_maker.h"
#include "forms/copy_form.h"
#include "forms/dialogs.h"
#include "forms/setup_form.h"
#include "ui/system_report.h"

namespace kelvra::desktop {

// The header with sensor, mode and pages, the page that is chosen, and the error strip, for which
// there is always room, so that nothing jumps. The keys of the frame's `shared` entries work there,
// too.
QWidget* MakeSetupDialog(forms::SetupForm& form, WidgetMaker& maker, const QList<QAction*>& shared);

// What is copied, the other sensors, the buttons.
QWidget* MakeCopyWindow(forms::CopyForm& form, WidgetMaker& maker);

// The interval of a recording, and the button that asks for its file.
QWidget* MakeRecordDialog(forms::TimeForm& form, WidgetMaker& maker);

// Names and values side by side, which scroll together.
QWidget* MakeInfoWindow(forms::SensInfoForm& form, WidgetMaker& maker);

// What the program is, links, and a place for one of the three panels, which is there while none is
// shown: the window does not jump.
QWidget* MakeAboutBox(forms::AboutForm& form, WidgetMaker& maker);
// What the front end is built on, for the report in that box.
std::vector<ui::LibraryVersion> FrontEndLibraries();

}  // namespace kelvra::desktop
