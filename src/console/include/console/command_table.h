// SPDX-License-Identifier: GPL-3.0-or-later
// The commands of a script: one table, one function each. A command returns an error, or nothing.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "app/kelvra.h"
#include "console/output.h"
#include "console/script_dialogs.h"
#include "console/waiting.h"

namespace kelvra::console {

using CommandError = std::optional<std::string>;

// What the commands work on.
struct CommandContext {
    app::Kelvra& kelvra;
    ScriptDialogs& dialogs;
    Output& output;
    Waiting& waiting;
    std::map<std::string, double, std::less<>> variables{};  // for eval
    controls::TextBox* typedInto = nullptr;  // committed when a command uses another control
};

// Runs one line.
CommandError RunCommand(CommandContext& context, std::string_view line);

}  // namespace kelvra::console
