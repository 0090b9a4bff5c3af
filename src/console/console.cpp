// SPDX-License-Identifier: GPL-3.0-or-later
#include "console/console.h"

#include <cstdio>
#include <memory>
#include <random>
#include <utility>

#include "app/kelvra.h"
#include "console/script.h"
#include "options/version.h"
#include "platform/native.h"

namespace kelvra::console {

namespace {

constexpr int CommandFailed = 1;

std::uint64_t AnySeed() {
    std::random_device device;
    return (std::uint64_t{device()} << 32) | device();
}

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

    const auto files = platform::NativeFiles();
    const auto nativeClock = platform::NativeClock();
    std::unique_ptr<platform::SetClock> setClock;
    if (options.clock) setClock = std::make_unique<platform::SetClock>(*options.clock);
    platform::Clock& clock = setClock ? static_cast<platform::Clock&>(*setClock) : *nativeClock;
    std::error_code dataFolderError;
    const auto computer = platform::NativeComputer(
        *files, {options.dataDir, options.driverDir, choice.commandLine, options::Version},
        dataFolderError);
    if (dataFolderError)
        errors.Line("The data folder " + computer->ProgramFolder() +
                    " can't be made: " + dataFolderError.message());

    ScriptEvents events(clock, setClock.get());
    ScriptDialogs dialogs(output);
    util::Random random(options.seed ? *options.seed : AnySeed());
    platform::Host host{events, dialogs, clock, *files, *computer, random};
    app::Kelvra kelvra(host);
    Script script(
        {kelvra, *input, dialogs, output, errors, clock, setClock != nullptr, options.echo});
    events.Connect(script);
    kelvra.Start();
    events.Run();
    return script.Failed() || !output.Good() ? CommandFailed : 0;
}

}  // namespace kelvra::console
