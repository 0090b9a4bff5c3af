// SPDX-License-Identifier: GPL-3.0-or-later
#include <cstdio>

#include "console/console.h"
#include "console/output.h"
#include "platform/native.h"

int main(int argc, char** argv) {
    using namespace kelvra;
    platform::HoldStandardStreams();
    const options::Parsed parsed =
        options::Parse(argc, argv,
                       {"kelvra-console", "Kelvra without a display, driven by a script.",
                        "[words of the command line...] [SCRIPT | -]", true});
    if (!parsed.options) {
        console::Output(parsed.exitStatus == 0 ? stdout : stderr).Line(parsed.message);
        return parsed.exitStatus;
    }
    return console::RunConsole(*parsed.options);
}
