// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/error_strip.h"

#include "ui/setup_pages.h"
#include "util/text.h"

namespace kelvra::ui {

namespace {

constexpr int OpenHeight = 2835;  // twips, height of the dialog's header with the strip
constexpr int ClosedHeight = forms::SetupForm::HeaderHeight;

void SetHeaderHeight(forms::SetupForm& dialog, int height) {
    controls::Geometry place = dialog.Frame1.place;
    place.height = height;
    dialog.Frame1.place = place;
    PlaceVisiblePage(dialog);
}

}  // namespace

// What a driver has reported comes before what was typed.
void ErrorStrip::Refresh() {
    if (table_.simulationMode) return Close();
    for (const bool typed : {false, true})
        for (int slot = 0; slot < table_.Slots(); ++slot) {
            const std::string error = sensors::ErrorOf(table_[slot]);
            const bool onlyTyped = error == util::TrimLineBreaks(table_[slot].pointsError);
            if (!error.empty() && onlyTyped == typed)
                return Open(table_[slot].logicalName + ": " + error);
        }
    Close();
}

void ErrorStrip::OpeningFailed(int /*slot*/, const std::string& text) {
    dialogs_.Message({}, text, platform::MessageIcon::Exclamation);
}

void ErrorStrip::Open(const std::string& text) {
    errorShown_ = true;
    notice_.ShowError(text);
    dialog_.lblInputError.caption = text;
    dialog_.InputErrorFrame.visible = true;
    SetHeaderHeight(dialog_, OpenHeight);
}

void ErrorStrip::Close() {
    errorShown_ = false;
    notice_.ShowError({});
    dialog_.lblInputError.caption = "";
    dialog_.InputErrorFrame.visible = false;
    SetHeaderHeight(dialog_, ClosedHeight);
}

}  // namespace kelvra::ui
