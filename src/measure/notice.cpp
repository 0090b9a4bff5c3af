// SPDX-License-Identifier: GPL-3.0-or-later
#include "measure/notice.h"

#include <utility>

namespace kelvra::measure {

void ShowNotice(forms::MDIMain& window, std::string text) {
    window.lblMeasAwait.Caption = std::move(text);
    window.lblMeasAwait.Visible = true;
    window.ConnectedFrame.Visible = true;
}

void HideNotice(forms::MDIMain& window) {
    window.lblMeasAwait.Visible = false;
    window.ConnectedFrame.Visible = false;
}

}  // namespace kelvra::measure
