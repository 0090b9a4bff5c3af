// SPDX-License-Identifier: GPL-3.0-or-later
// The command line of the console front end.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "platform/files.h"

namespace kelvra::console {

struct Options {
    std::string driverDir;
    std::string dataDir;
    std::optional<platform::LocalTime> clock;  // Kelvra's own clock starts there
    std::optional<std::uint64_t> seed;
    bool echo = false;
    std::string script = "-";              // the last word; standard input
    std::vector<std::string> commandLine;  // the words before it
};

struct ParsedOptions {
    std::optional<Options> options;  // nothing: the program ends with `exitStatus`
    int exitStatus = 0;
    std::string message;  // help, or what is wrong
};

ParsedOptions ParseOptions(int argc, const char* const* argv);

}  // namespace kelvra::console
