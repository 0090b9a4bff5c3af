// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/info_window.h"

#include <algorithm>

#include "util/text.h"

namespace kelvra::ui {

namespace {

constexpr int Offset = 600;  // twips, from the corner of the setup dialog

// An entry is a line, and a TAB ends its name.
std::string InOneLine(std::string text) {
    std::replace_if(
        text.begin(), text.end(), [](char c) { return c == '\r' || c == '\n' || c == '\t'; }, ' ');
    return std::string(util::TrimSpaces(text));
}

}  // namespace

InfoWindow::InfoWindow(forms::Forms& forms, Notice& notice, platform::Host& host)
    : form_(forms.sensInfoForm), dialog_(forms.setupForm), host_(host), saver_(notice, host) {
    form_.InfoHeader.click.Connect([this] { form_.InfoValue.SetIndex(form_.InfoHeader.Index()); });
    form_.cmdInfoCopy.click.Connect([this] { Copy(); });
    form_.cmdInfoSave.click.Connect([this] { Save(); });
}

void InfoWindow::Show(const std::string& sensor, const std::vector<measure::InfoEntry>& entries) {
    sensor_ = sensor;
    entries_ = entries;
    form_.lblInfoSensor.caption = "Information of " + sensor;
    form_.InfoHeader.Clear();
    form_.InfoValue.Clear();
    for (const measure::InfoEntry& entry : entries) {
        form_.InfoHeader.Add(entry.name);
        form_.InfoValue.Add(entry.value);
    }
    for (controls::Button* button : {&form_.cmdInfoCopy, &form_.cmdInfoSave})
        button->enabled = !entries.empty();
    const controls::Geometry& at = dialog_.place.Get();
    form_.place = controls::Geometry{at.left + Offset, at.top + Offset, form_.place->width,
                                     form_.place->height};
    form_.Present();
}

std::string InfoWindow::Lines(const char* separator, const char* lineEnd) const {
    std::string lines;
    for (const measure::InfoEntry& entry : entries_)
        lines += InOneLine(entry.name) + separator + InOneLine(entry.value) + lineEnd;
    return lines;
}

void InfoWindow::Copy() {
    host_.dialogs.CopyText(Lines("\t", "\n"));
}

void InfoWindow::Save() {
    saver_.Save({"Information of ", sensor_, Lines(": ", "\r\n"), "Save sensor information",
                 "Text Files (*.txt)|*.txt", "SensorInfo.txt"});
}

}  // namespace kelvra::ui
