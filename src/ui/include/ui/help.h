// SPDX-License-Identifier: GPL-3.0-or-later
// Where the help about a topic is: in the compiled help file beside the program, or a page of the
// guide. The front end opens it.
#pragma once

#include "platform/host.h"
#include "util/number_text.h"

namespace kelvra::ui {

// Topic 0 is the beginning.
inline void OpenHelp(platform::Host& host, int topic) {
    platform::Computer& computer = host.computer;
    const std::string file = computer.Join(computer.ProgramFolder(), "KelvraHelp.chm");
    const std::string name =
        topic == 0 ? "index" : util::TrimmedNumberText(static_cast<std::int64_t>(topic));
    host.dialogs.OpenHelp({.compiledFile = file,
                           .topic = topic,
                           .opensCompiled = computer.OpensCompiledHelp() && host.files.Exists(file),
                           .path = computer.Join(computer.GuideFolder(), name + ".html")});
}

}  // namespace kelvra::ui
