// SPDX-License-Identifier: GPL-3.0-or-later
// The command line of the front ends: the same options for both, and words.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "platform/files.h"

namespace kelvra::options {

struct Options {
    std::string driverDir;
    std::string dataDir;
    std::optional<platform::LocalTime> clock;  // Kelvra's own clock starts there
    std::optional<std::uint64_t> seed;
    bool echo = false;               // where the program says it has scripts
    std::vector<std::string> words;  // those that are no option
};

// What a program says of itself.
struct Program {
    const char* name = "";
    const char* description = "";
    const char* footer = "";  // the words in its usage
    bool hasScript = false;   // takes --echo
};

constexpr int NotWritten = 1;
constexpr int WrongUsage = 2;

struct Parsed {
    std::optional<Options> options;  // nothing: the program ends with `exitStatus`
    int exitStatus = 0;
    std::string message;  // help, the version, or what is wrong
};

// A word may begin with "-" ("-DEBUG"), an unknown option ("--debug") is wrong usage.
Parsed Parse(int argc, const char* const* argv, const Program& program);

// Writes the message of a program that ends here: help and version to standard output, what is
// wrong to standard error. Gives the exit status, NotWritten for an output that takes nothing.
int Report(const Parsed& ended);

}  // namespace kelvra::options
