// SPDX-License-Identifier: GPL-3.0-or-later
#include <cstdio>

#include "console/console.h"
#include "console/output.h"

int main(int argc, char** argv) {
    using namespace kelvra::console;
    const ParsedOptions parsed = ParseOptions(argc, argv);
    if (!parsed.options) {
        Output(parsed.exitStatus == 0 ? stdout : stderr).Line(parsed.message);
        return parsed.exitStatus;
    }
    return RunConsole(*parsed.options);
}
