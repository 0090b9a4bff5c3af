// SPDX-License-Identifier: GPL-3.0-or-later
// Texts to and from the toolkit: bytes inside, valid UTF-8 for display.
#pragma once

#include <QString>
#include <string>
#include <string_view>

#include "util/text.h"

namespace kelvra::desktop {

inline QString Shown(std::string_view bytes) {
    return QString::fromStdString(util::ShownText(bytes));
}

inline std::string Bytes(const QString& text) {
    return text.toStdString();
}

}  // namespace kelvra::desktop
