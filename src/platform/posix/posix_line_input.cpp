// SPDX-License-Identifier: GPL-3.0-or-later
#include "posix/posix_line_input.h"

#include <poll.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <iterator>
#include <limits>
#include <utility>

#include "platform/native.h"

namespace kelvra::platform {

namespace {

// A flood without a line's end must not keep everything else from running.
constexpr int MostAtOnce = 1 << 16;

// In milliseconds, rounded up, as poll wants it.
int PollTime(Duration patience) {
    const auto ms = std::chrono::ceil<std::chrono::milliseconds>(patience).count();
    if (ms <= 0) return 0;
    return ms > std::numeric_limits<int>::max() ? std::numeric_limits<int>::max()
                                                : static_cast<int>(ms);
}

}  // namespace

PosixLineInput::~PosixLineInput() {
    if (own_) ::close(descriptor_);
}

LineInput::Result PosixLineInput::Read(std::string& line, Duration patience) {
    using Steady = std::chrono::steady_clock;
    const auto start = Steady::now();
    for (int taken = 0; !ended_; ++taken) {
        if (taken == MostAtOnce) return Result::NotYet;
        // A request to end the program must not be slept through.
        pollfd inputs[] = {{descriptor_, POLLIN, 0}, {TerminationDescriptor(), POLLIN, 0}};
        const auto left = patience - (Steady::now() - start);
        const int ready = ::poll(inputs, std::size(inputs), PollTime(left));
        if (ready < 0) return errno == EINTR ? Result::NotYet : Result::Failed;
        if (ready == 0 || inputs[0].revents == 0) return Result::NotYet;
        char byte = 0;
        const ssize_t got = ::read(descriptor_, &byte, 1);
        if (got < 0) return errno == EINTR ? Result::NotYet : Result::Failed;
        if (got == 0) {
            ended_ = true;
            if (!partial_.empty()) return Take(line);
            break;
        }
        if (byte == '\n') return Take(line);
        if (partial_.size() == LongestLine) return Result::TooLong;
        partial_ += byte;
    }
    return Result::End;
}

LineInput::Result PosixLineInput::Take(std::string& line) {
    line = std::exchange(partial_, {});
    if (!line.empty() && line.back() == '\r') line.pop_back();
    return Result::Line;
}

}  // namespace kelvra::platform
