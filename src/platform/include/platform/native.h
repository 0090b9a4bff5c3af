// SPDX-License-Identifier: GPL-3.0-or-later
// The computer that the program was built for, behind the interfaces of this room. The one place
// where a front end gets them.
#pragma once

#include <memory>
#include <string>
#include <system_error>
#include <vector>

#include "platform/clock.h"
#include "platform/computer.h"
#include "platform/files.h"
#include "platform/line_input.h"

namespace kelvra::platform {

struct ComputerOptions {
    std::string
        dataDir;  // empty: the environment's (KELVRA_DATA_DIR), else the user's own data folder
    std::string
        driverDir;  // empty: the environment's (KELVRA_DRIVER_DIR), else the program's folder
    std::vector<std::string> commandLine;
    ProgramVersion version;
};

std::unique_ptr<Files> NativeFiles();
std::unique_ptr<Clock> NativeClock();
// The error says why the data folder could not be made; the computer is there all the same.
std::unique_ptr<Computer> NativeComputer(Files& files, const ComputerOptions& options,
                                         std::error_code& dataFolderError);

// For a program's first step: a standard stream that it was started without becomes an empty input,
// or an output that fails. Otherwise the first files opened would be taken for it.
void HoldStandardStreams();

// Standard input for "-". Null, with an error, for a file that can't be read.
std::unique_ptr<LineInput> OpenLineInput(const std::string& path, std::error_code& error);

// From now on a request of the system to end the program (a signal that is not ignored already) is
// noted instead of ending it at once, and an output that nobody reads any more is an error of the
// write, as is a file that would become larger than the user may have.
void WatchForTermination();
bool TerminationRequested();
// Becomes readable with the first request, for event loops that sleep on descriptors.
int TerminationDescriptor();

}  // namespace kelvra::platform
