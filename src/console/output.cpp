// SPDX-License-Identifier: GPL-3.0-or-later
#include "console/output.h"

#include <string>

#include "util/text.h"

namespace kelvra::console {

void Output::Line(std::string_view text) {
    const std::string line = util::ShownText(text) + "\n";
    if (std::fwrite(line.data(), 1, line.size(), file_) != line.size()) good_ = false;
    if (std::fflush(file_) != 0) good_ = false;
}

std::string OneLine(std::string_view text) {
    std::string line;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n') continue;
        if (text[i] == '\r' || text[i] == '\n')
            line += "\\n";
        else
            line += text[i];
    }
    return line;
}

}  // namespace kelvra::console
