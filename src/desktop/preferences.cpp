// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/preferences.h"

#include "desktop/qt_text.h"

namespace kelvra::desktop {

namespace {

QString ZoomKey(const QString& table) {
    return table + "/Zoom";
}

}  // namespace

Preferences::Preferences(const std::string& dataFolder)
    : settings_(Shown(dataFolder) + "/Desktop.ini", QSettings::IniFormat) {}

int Preferences::Zoom(const QString& table) const {
    return settings_.value(ZoomKey(table), 0).toInt();
}

void Preferences::SetZoom(const QString& table, int steps) {
    settings_.setValue(ZoomKey(table), steps);
}

}  // namespace kelvra::desktop
