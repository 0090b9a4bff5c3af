// SPDX-License-Identifier: GPL-3.0-or-later
#include "driver/call_log.h"

#include "util/text.h"

namespace kelvra::driver {

std::string CallFrame::Filled(std::string_view pattern, const std::string& result) const {
    std::string line;
    while (true) {
        const auto open = pattern.find('{');
        line += pattern.substr(0, open);
        if (open == std::string_view::npos) return line;
        const auto close = pattern.find('}', open);
        line += Field(pattern.substr(open + 1, close - open - 1), result);
        pattern.remove_prefix(close + 1);
    }
}

std::string CallFrame::Field(std::string_view field, const std::string& result) const {
    if (field == "name") return name_;
    if (field == "result") return result;
    const bool trimmed = field == "trimmed";
    if (!trimmed && field != "all") return arguments_.at(static_cast<std::size_t>(field[0] - '0'));
    std::string list;
    for (const std::string& argument : arguments_) {
        if (!list.empty()) list += ", ";
        list += trimmed ? util::TrimSpaces(argument) : argument;
    }
    return list;
}

}  // namespace kelvra::driver
