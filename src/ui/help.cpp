// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/help.h"

#include "controls/kinds.h"
#include "util/number_text.h"

namespace kelvra::ui {

namespace {
constexpr const char* HelpKey = "F1";
}  // namespace

void OpenHelp(platform::Host& host, int topic) {
    platform::Computer& computer = host.computer;
    const std::string file = computer.Join(computer.ProgramFolder(), "KelvraHelp.chm");
    const std::string name =
        topic == 0 ? "index" : util::TrimmedNumberText(static_cast<std::int64_t>(topic));
    host.dialogs.OpenHelp({.compiledFile = file,
                           .topic = topic,
                           .opensCompiled = computer.OpensCompiledHelp() && host.files.Exists(file),
                           .path = computer.Join(computer.GuideFolder(), name + ".html")});
}

void ConnectHelp(controls::Control& control, platform::Host& host) {
    if (auto* focusable = dynamic_cast<controls::Focusable*>(&control);
        focusable != nullptr && control.access.helpTopic != 0)
        focusable->keyDown.Connect([&host, topic = control.access.helpTopic](const auto& key) {
            if (key == HelpKey) OpenHelp(host, topic);
        });
    for (controls::Control* child : control.Children()) ConnectHelp(*child, host);
}

}  // namespace kelvra::ui
