// SPDX-License-Identifier: GPL-3.0-or-later
// The commands of a script: one table, one function each. A command gives back what was wrong, or
// nothing.
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

// What commands work on.
struct CommandContext {
    app::Kelvra& kelvra;
    ScriptDialogs& dialogs;
    Output& output;
    Waiting& waiting;
    std::map<std::string, double, std::less<>> variables{};  // for eval
    controls::TextBox* typedInto = nullptr;  // its edit is committed when a person turns elsewhere
};

// Carries out one line.
CommandError RunCommand(CommandContext& context, std::string_view line);

}  // namespace kelvra::console
