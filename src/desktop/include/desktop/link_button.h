// SPDX-License-Identifier: GPL-3.0-or-later
// A button that looks like a link: its text in the colour of links, underlined. A click, Enter or
// the space bar presses it.
#pragma once

#include <QPushButton>

namespace kelvra::desktop {

class LinkButton final : public QPushButton {
public:
    LinkButton();
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace kelvra::desktop
