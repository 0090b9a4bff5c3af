// SPDX-License-Identifier: GPL-3.0-or-later
// The command line of both front ends: options, and words.
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
    std::optional<platform::LocalTime> clock;  // start of Kelvra's own clock
    std::optional<std::uint64_t> seed;
    bool echo = false;               // only in a program with scripts
    std::vector<std::string> words;  // the arguments that are no options
};

// What a program says about itself.
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
    std::string message;  // help, version or error
};

// A word may begin with "-" ("-DEBUG"); an unknown option ("--debug") is wrong usage.
Parsed Parse(int argc, const char* const* argv, const Program& program);

// Writes the message of a program that ends here: help and version to standard output, errors to
// standard error. Returns the exit status, NotWritten if the output could not be written.
int Report(const Parsed& ended);

}  // namespace kelvra::options
