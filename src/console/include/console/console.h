// SPDX-License-Identifier: GPL-3.0-or-later
// The console front end: the whole program, driven by a script.
#pragma once

#include <string>
#include <vector>

#include "options/options.h"

namespace kelvra::console {

// The last word is the script ("-", or none: standard input); the words before it are the command
// line.
struct ScriptChoice {
    std::string script = "-";
    std::vector<std::string> commandLine;
};
ScriptChoice ChooseScript(std::vector<std::string> words);

// 0: the script ran to its end; 1: a command failed, or the run was interrupted; 2: the script
// can't be read.
int RunConsole(const options::Options& options);

}  // namespace kelvra::console
