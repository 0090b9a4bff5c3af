// SPDX-License-Identifier: GPL-3.0-or-later
// What the desktop program keeps for itself between runs, in a file of its own in the data folder:
// how large the readings are shown. The settings of sensors are elsewhere.
#pragma once

#include <QSettings>
#include <string>

namespace kelvra::desktop {

class Preferences {
public:
    explicit Preferences(const std::string& dataFolder);

    // Steps of the table's font size; 0 is the normal size.
    int Zoom(const QString& table) const;
    void SetZoom(const QString& table, int steps);

private:
    QSettings settings_;
};

}  // namespace kelvra::desktop
