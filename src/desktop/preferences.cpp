// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/preferences.h"

#include "desktop/qt_text.h"

namespace kelvra::desktop {

namespace {
constexpr const char* ZoomKey = "ResultTable/Zoom";
}  // namespace

Preferences::Preferences(const std::string& dataFolder)
    : settings_(Shown(dataFolder) + "/Desktop.ini", QSettings::IniFormat) {}

int Preferences::TableZoom() const {
    return settings_.value(ZoomKey, 0).toInt();
}

void Preferences::SetTableZoom(int steps) {
    settings_.setValue(ZoomKey, steps);
}

}  // namespace kelvra::desktop
