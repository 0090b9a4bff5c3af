// SPDX-License-Identifier: GPL-3.0-or-later
#include "console/console.h"

#include <cstdio>
#include <memory>
#include <random>

#include "app/kelvra.h"
#include "console/script.h"
#include "platform/native.h"

namespace kelvra::console {

namespace {

constexpr int CommandFailed = 1;
constexpr int WrongUsage = 2;

constexpr platform::ProgramVersion Version = {"Kelvra", KELVRA_VERSION_MAJOR, KELVRA_VERSION_MINOR,
                                              KELVRA_VERSION_REVISION};

std::uint64_t AnySeed() {
    std::random_device device;
    return (std::uint64_t{device()} << 32) | device();
}

}  // namespace

int RunConsole(const Options& options) {
    Output output(stdout);
    Output errors(stderr);
    std::error_code inputError;
    const auto input = platform::OpenLineInput(options.script, inputError);
    if (!input) {
        errors.Line("The script " + options.script + " can't be read: " + inputError.message());
        return WrongUsage;
    }
    platform::WatchForTermination();

    const auto files = platform::NativeFiles();
    const auto nativeClock = platform::NativeClock();
    std::unique_ptr<platform::SetClock> setClock;
    if (options.clock) setClock = std::make_unique<platform::SetClock>(*options.clock);
    platform::Clock& clock = setClock ? static_cast<platform::Clock&>(*setClock) : *nativeClock;
    std::error_code dataFolderError;
    const auto computer = platform::NativeComputer(
        *files, {options.dataDir, options.driverDir, options.commandLine, Version},
        dataFolderError);
    if (dataFolderError)
        errors.Line("The data folder " + computer->ProgramFolder() +
                    " can't be made: " + dataFolderError.message());

    ScriptEvents events(clock, setClock.get());
    ScriptDialogs dialogs(output);
    util::Random random(options.seed ? *options.seed : AnySeed());
    platform::Host host{events, dialogs, clock, *files, *computer, random};
    app::Kelvra kelvra(host);
    Script script({kelvra, *input, dialogs, output, errors, clock, setClock != nullptr,
                   options.echo});
    events.Connect(script);
    kelvra.Start();
    events.Run();
    return script.Failed() || !output.Good() ? CommandFailed : 0;
}

}  // namespace kelvra::console
