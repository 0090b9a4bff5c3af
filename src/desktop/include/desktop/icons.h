// SPDX-License-Identifier: GPL-3.0-or-later
// Pictures by the names that controls use, drawn for this program as SVG in one style.
#pragma once

#include <QIcon>
#include <QPixmap>
#include <string>

namespace kelvra::desktop {

QIcon Icon(const std::string& name);

// The picture at a size in logical pixels; "busy1" .. "busy8" are each turned by a further eighth.
QPixmap PictureOf(const std::string& name, int size, qreal pixelRatio);

}  // namespace kelvra::desktop
