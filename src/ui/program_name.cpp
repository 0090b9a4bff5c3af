// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/program_name.h"

#include "util/number_text.h"

namespace kelvra::ui {

using util::TrimmedNumberText;

std::string VersionText(const platform::ProgramVersion& version) {
    std::string text = TrimmedNumberText(version.major) + "." + TrimmedNumberText(version.minor);
    if (version.revision != 0) text += "." + TrimmedNumberText(version.revision);
    return text;
}

std::string ProgramDate(platform::Computer& computer) {
    const auto date = computer.ProgramFileDate();
    if (!date) return {};
    return TrimmedNumberText(date->month) + "/" + TrimmedNumberText(date->day) + "/" +
           TrimmedNumberText(date->year);
}

}  // namespace kelvra::ui
