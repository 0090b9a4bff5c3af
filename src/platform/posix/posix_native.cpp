// SPDX-License-Identifier: GPL-3.0-or-later
#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>

#include "platform/native.h"
#include "platform/posix/posix_clock.h"
#include "platform/posix/posix_computer.h"
#include "platform/posix/posix_files.h"
#include "platform/posix/posix_line_input.h"

namespace kelvra::platform {

namespace {

volatile std::sig_atomic_t terminationRequested = 0;  // all that a signal handler may write

extern "C" void NoteTermination(int) { terminationRequested = 1; }

}  // namespace

std::unique_ptr<Files> NativeFiles() { return std::make_unique<PosixFiles>(); }
std::unique_ptr<Clock> NativeClock() { return std::make_unique<PosixClock>(); }

std::unique_ptr<Computer> NativeComputer(Files& files, const ComputerOptions& options,
                                         std::error_code& dataFolderError) {
    auto computer = std::make_unique<PosixComputer>(files, options);
    dataFolderError = computer->DataFolderError();
    return computer;
}

std::unique_ptr<LineInput> OpenLineInput(const std::string& path, std::error_code& error) {
    error.clear();
    if (path == "-") return std::make_unique<PosixLineInput>(STDIN_FILENO, false);
    const int descriptor = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (descriptor < 0) {
        error = {errno, std::generic_category()};
        return nullptr;
    }
    return std::make_unique<PosixLineInput>(descriptor, true);
}

void WatchForTermination() {
    struct sigaction action = {};
    action.sa_handler = NoteTermination;
    for (const int signal : {SIGTERM, SIGINT, SIGHUP}) ::sigaction(signal, &action, nullptr);
}

bool TerminationRequested() { return terminationRequested != 0; }

}  // namespace kelvra::platform
