// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/preferences.h"

#include <algorithm>

#include "desktop/qt_text.h"

namespace kelvra::desktop {

namespace {
constexpr const char* FrameKey = "Frame/Geometry";
constexpr const char* ColoursKey = "Frame/Colours";
constexpr int MostWidth = 10000;  // pixels
}  // namespace

Preferences::Preferences(const std::string& dataFolder)
    : settings_(Shown(dataFolder) + "/Desktop.ini", QSettings::IniFormat) {}

int Preferences::Zoom(const QString& table) const {
    return settings_.value(table + "/Zoom", 0).toInt();
}

void Preferences::SetZoom(const QString& table, int steps) {
    settings_.setValue(table + "/Zoom", steps);
}

bool Preferences::Fitted(const QString& table) const {
    return settings_.value(table + "/Fitted", true).toBool();
}

void Preferences::SetFitted(const QString& table, bool fitted) {
    settings_.setValue(table + "/Fitted", fitted);
}

std::map<int, int> Preferences::Widths(const QString& table) const {
    std::map<int, int> widths;
    const QVariantMap kept = settings_.value(table + "/Widths").toMap();
    for (auto entry = kept.begin(); entry != kept.end(); ++entry) {
        bool numeric = false;
        const int column = entry.key().toInt(&numeric);
        const int width = entry.value().toInt();
        if (numeric && width > 0 && width < MostWidth) widths[column] = width;
    }
    return widths;
}

void Preferences::SetWidths(const QString& table, const std::map<int, int>& widths) {
    QVariantMap kept;
    for (const auto& [column, width] : widths) kept[QString::number(column)] = width;
    settings_.setValue(table + "/Widths", kept);
}

QByteArray Preferences::Frame() const {
    return settings_.value(FrameKey).toByteArray();
}

void Preferences::SetFrame(const QByteArray& geometry) {
    settings_.setValue(FrameKey, geometry);
}

QRect Preferences::Place(const QString& window) const {
    return settings_.value(window + "/Place").toRect();
}

void Preferences::SetPlace(const QString& window, const QRect& place) {
    settings_.setValue(window + "/Place", place);
}

Scheme Preferences::Colours() const {
    const QString name = settings_.value(ColoursKey).toString();
    const auto* found = std::find_if(std::begin(Schemes), std::end(Schemes),
                                     [&](Scheme scheme) { return name == NameOf(scheme); });
    return found == std::end(Schemes) ? Scheme::Classic : *found;
}

void Preferences::SetColours(Scheme scheme) {
    settings_.setValue(ColoursKey, NameOf(scheme));
}

}  // namespace kelvra::desktop
