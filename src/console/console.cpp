// SPDX-License-Identifier: GPL-3.0-or-later
#include "console/console.h"

#include <cstdio>
#include <utility>

#include "app/kelvra.h"
#include "console/script.h"
#include "options/surroundings.h"
#include "platform/native.h"

namespace kelvra::console {

namespace {

constexpr int CommandFailed = 1;

}  // namespace

ScriptChoice ChooseScript(std::vector<std::string> words) {
    ScriptChoice choice;
    if (words.empty()) return choice;
    choice.script = std::move(words.back());
    words.pop_back();
    choice.commandLine = std::move(words);
    return choice;
}

int RunConsole(const options::Options& options) {
    const ScriptChoice choice = ChooseScript(options.words);
    Output output(stdout);
    Output errors(stderr);
    std::error_code inputError;
    const auto input = platform::OpenLineInput(choice.script, inputError);
    if (!input) {
        errors.Line("The script " + choice.script + " can't be read: " + inputError.message());
        return options::WrongUsage;
    }
    platform::WatchForTermination();

    options::Surroundings surroundings(options, choice.commandLine);
    if (const auto error = surroundings.DataFolderError())
        errors.Line("The data folder " + surroundings.Computer().ProgramFolder() +
                    " can't be made: " + error.message());

    platform::Clock& clock = surroundings.Clock();
    platform::SetClock* ownClock = surroundings.OwnClock();
    ScriptEvents events(clock, ownClock);
    ScriptDialogs dialogs(output);
    platform::Host host = surroundings.HostWith(events, dialogs);
    app::Kelvra kelvra(host);
    Script script(
        {kelvra, *input, dialogs, output, errors, clock, ownClock != nullptr, options.echo});
    events.Connect(script);
    kelvra.Start();
    events.Run();
    if (!kelvra.store.SaveFailure().empty()) errors.Line(kelvra.store.SaveFailure());
    return script.Failed() || !output.Good() ? CommandFailed : 0;
}

}  // namespace kelvra::console
