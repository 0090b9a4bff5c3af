// SPDX-License-Identifier: GPL-3.0-or-later
#include "console/console.h"
#include "options/options.h"
#include "platform/native.h"

int main(int argc, char** argv) {
    using namespace kelvra;
    platform::HoldStandardStreams();
    const options::Parsed parsed =
        options::Parse(argc, argv,
                       {"kelvra-console", "Kelvra without a display, driven by a script.",
                        "[words of the command line...] [SCRIPT | -]", true});
    return parsed.options ? console::RunConsole(*parsed.options) : options::Report(parsed);
}
