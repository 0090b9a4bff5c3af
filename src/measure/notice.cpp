// SPDX-License-Identifier: GPL-3.0-or-later
#include "measure/notice.h"

#include <utility>

namespace kelvra::measure {

void ShowNotice(forms::MDIMain& window, std::string text) {
    window.lblMeasAwait.caption = std::move(text);
    window.lblMeasAwait.visible = true;
    window.ConnectedFrame.visible = true;
}

void HideNotice(forms::MDIMain& window) {
    window.lblMeasAwait.visible = false;
    window.ConnectedFrame.visible = false;
}

}  // namespace kelvra::measure
