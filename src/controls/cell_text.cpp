// SPDX-License-Identifier: GPL-3.0-or-later
#include "controls/cell_text.h"

namespace kelvra::controls {

bool CellText::Set(std::string_view text) {
    if (!figure_ && text_ == text) return false;
    figure_.reset();
    text_ = text;
    made_ = true;
    return true;
}

bool CellText::Set(const util::Figure& figure) {
    if (figure_ == figure) return false;
    figure_ = figure;
    made_ = false;
    return true;
}

const std::string& CellText::Get() const {
    if (!made_) {
        text_ = figure_->Text();
        made_ = true;
    }
    return text_;
}

}  // namespace kelvra::controls
