// SPDX-License-Identifier: GPL-3.0-or-later
// What the desktop program keeps for itself between runs, in a file of its own in the data folder:
// sizes, places, widths, colours. The settings of sensors are elsewhere. A value that makes no
// sense reads as the default.
#pragma once

#include <QByteArray>
#include <QRect>
#include <QSettings>
#include <map>
#include <string>

#include "desktop/schemes.h"

namespace kelvra::desktop {

class Preferences {
public:
    explicit Preferences(const std::string& dataFolder);

    // Steps of the table's font size; 0 is the normal size.
    int Zoom(const QString& table) const;
    void SetZoom(const QString& table, int steps);
    // Whether the table has the largest font with which all is in sight; true at first.
    bool Fitted(const QString& table) const;
    void SetFitted(const QString& table, bool fitted);
    // Widths of the columns that the user has changed, in pixels at the normal font size.
    std::map<int, int> Widths(const QString& table) const;
    void SetWidths(const QString& table, const std::map<int, int>& widths);

    // The frame's size, place and state, as the toolkit writes them; empty at first.
    QByteArray Frame() const;
    void SetFrame(const QByteArray& geometry);
    // A window inside the frame; null where it was not changed by the user.
    QRect Place(const QString& window) const;
    void SetPlace(const QString& window, const QRect& place);

    Scheme Colours() const;
    void SetColours(Scheme scheme);

private:
    QSettings settings_;
};

}  // namespace kelvra::desktop
