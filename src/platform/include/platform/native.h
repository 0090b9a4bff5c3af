// SPDX-License-Identifier: GPL-3.0-or-later
// The computer that the program was built for, through the interfaces of this room. Front ends get
// them only here.
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
// The error says why the data folder could not be made; the computer is returned all the same.
std::unique_ptr<Computer> NativeComputer(Files& files, const ComputerOptions& options,
                                         std::error_code& dataFolderError);

// Call first in a program. A standard stream that is closed becomes an empty input, or an output
// that fails. Otherwise the first files opened would take its place.
void HoldStandardStreams();

// Standard input for "-". Null, with an error, for a file that can't be read.
std::unique_ptr<LineInput> OpenLineInput(const std::string& path, std::error_code& error);

// From here on, a request by the system to end the program (a signal that is not ignored already)
// is noted and no longer ends it. Writing to a closed pipe, or beyond the user's file-size limit,
// becomes an error of the write.
void WatchForTermination();
bool TerminationRequested();
// Becomes readable at the first request, for event loops that sleep on descriptors.
int TerminationDescriptor();

}  // namespace kelvra::platform
