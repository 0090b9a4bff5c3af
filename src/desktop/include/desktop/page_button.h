// SPDX-License-Identifier: GPL-3.0-or-later
// A button that chooses a page: one of a row, with a bar under the one that is chosen. Arrow keys
// go from one to the next, as with radio buttons.
#pragma once

#include <QPushButton>

namespace kelvra::desktop {

class PageButton final : public QPushButton {
public:
    PageButton();

protected:
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace kelvra::desktop
