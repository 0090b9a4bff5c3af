// SPDX-License-Identifier: GPL-3.0-or-later
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>

#include "platform/native.h"
#include "posix/posix_clock.h"
#include "posix/posix_computer.h"
#include "posix/posix_files.h"
#include "posix/posix_line_input.h"

namespace kelvra::platform {

namespace {

// A signal handler may touch only these: a flag, and a pipe that wakes a sleeping event loop.
volatile std::sig_atomic_t terminationRequested = 0;
int terminationPipe[2] = {-1, -1};

extern "C" void NoteTermination(int) {
    const int error = errno;
    terminationRequested = 1;
    const char byte = 0;
    // A full pipe wakes the loop just as well.
    [[maybe_unused]] const ssize_t written = ::write(terminationPipe[1], &byte, 1);
    errno = error;
}

}  // namespace

std::unique_ptr<Files> NativeFiles() {
    return std::make_unique<PosixFiles>();
}
std::unique_ptr<Clock> NativeClock() {
    return std::make_unique<PosixClock>();
}

std::unique_ptr<Computer> NativeComputer(Files& files, const ComputerOptions& options,
                                         std::error_code& dataFolderError) {
    auto computer = std::make_unique<PosixComputer>(files, options);
    dataFolderError = computer->DataFolderError();
    return computer;
}

void HoldStandardStreams() {
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
        if (::fcntl(stream, F_GETFD) == -1 && errno == EBADF) {
            // Open takes the lowest free descriptor, which is this one. If it fails, nothing gets
            // worse.
            [[maybe_unused]] const int taken = ::open("/dev/null", O_RDONLY);
        }
}

std::unique_ptr<LineInput> OpenLineInput(const std::string& path, std::error_code& error) {
    error.clear();
    if (path == "-") return std::make_unique<PosixLineInput>(STDIN_FILENO, false);
    const int descriptor = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (descriptor < 0) {
        error = {errno, std::generic_category()};
        return nullptr;
    }
    auto input = std::make_unique<PosixLineInput>(descriptor, true);
    struct stat about = {};
    if (::fstat(descriptor, &about) == 0 && S_ISDIR(about.st_mode)) {
        error = std::make_error_code(std::errc::is_a_directory);
        return nullptr;
    }
    return input;
}

void WatchForTermination() {
    if (terminationPipe[0] < 0 && ::pipe2(terminationPipe, O_CLOEXEC | O_NONBLOCK) != 0) return;
    struct sigaction action = {};
    action.sa_handler = NoteTermination;
    for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
        struct sigaction inherited = {};
        ::sigaction(signal, nullptr, &inherited);
        // An ignored signal stays ignored: the program may be meant to outlive a logout.
        if (inherited.sa_handler != SIG_IGN) ::sigaction(signal, &action, nullptr);
    }
    // A closed pipe and a file-size limit then show up as failed writes.
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
}

bool TerminationRequested() {
    return terminationRequested != 0;
}
int TerminationDescriptor() {
    return terminationPipe[0];
}

}  // namespace kelvra::platform
