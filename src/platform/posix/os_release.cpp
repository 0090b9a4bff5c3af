// SPDX-License-Identifier: GPL-3.0-or-later
#include "posix/os_release.h"

#include "util/text.h"

namespace kelvra::platform {

namespace {

// A value as a shell would read it: perhaps in quotes, a backslash before signs that are special.
std::string Unquoted(std::string_view value) {
    const bool quoted = value.size() >= 2 && (value.front() == '"' || value.front() == '\'') &&
                        value.front() == value.back();
    if (quoted) value = value.substr(1, value.size() - 2);
    std::string text;
    for (std::size_t i = 0; i < value.size(); ++i) {
        if (value[i] == '\\' && i + 1 < value.size()) ++i;
        text += value[i];
    }
    return text;
}

}  // namespace

std::string NameOfDistribution(std::string_view osRelease) {
    std::string name;
    while (!osRelease.empty()) {
        const auto line = util::SplitAtFirst(osRelease, '\n');
        osRelease = line.after;
        const auto [key, value, found] = util::SplitAtFirst(line.before, '=');
        if (key == "PRETTY_NAME") return Unquoted(util::TrimBlanks(value));
        if (key == "NAME") name = Unquoted(util::TrimBlanks(value));
    }
    return name;
}

}  // namespace kelvra::platform
