// SPDX-License-Identifier: GPL-3.0-or-later
// Runs a script as the events of a run: reads a line when its turn comes, runs it, and ends the
// program at the end of the script or at the first command that fails.
#pragma once

#include "console/command_table.h"
#include "console/script_events.h"
#include "platform/line_input.h"

namespace kelvra::console {

struct ScriptParts {
    app::Kelvra& kelvra;
    platform::LineInput& input;
    ScriptDialogs& dialogs;
    Output& output;
    Output& errors;
    platform::Clock& clock;
    bool ownClock;  // time stops while the script waits for a line
    bool echo;
};

class Script final : public EventSource {
public:
    explicit Script(const ScriptParts& parts);

    bool Step(platform::Duration patience) override;
    std::optional<platform::Duration> WakesAt() const override { return waiting_.WakesAt(); }
    bool EndRequested() const override;
    void End() override;

    // The script did not run to its end: a command failed, a line could not be read, or the system
    // wanted the program to end.
    bool Failed() const { return failed_ || interrupted_; }

private:
    platform::LineInput::Result ReadLine(std::string& line, platform::Duration patience);
    void Run(const std::string& line);
    void Fail(const std::string& why);

    ScriptParts p_;
    Waiting waiting_;
    CommandContext context_;
    int lineNumber_ = 0;
    bool ended_ = false;
    bool failed_ = false;
    bool interrupted_ = false;
};

}  // namespace kelvra::console
