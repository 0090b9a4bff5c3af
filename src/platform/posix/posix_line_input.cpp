// SPDX-License-Identifier: GPL-3.0-or-later
#include "posix/posix_line_input.h"

#include <poll.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <iterator>
#include <limits>
#include <utility>

#include "platform/native.h"

namespace kelvra::platform {

namespace {

// Endless input without a line break must not keep everything else from running.
constexpr int MostAtOnce = 1 << 16;

// In milliseconds, rounded up, as poll expects it.
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
    for (int taken = 0; taken < MostAtOnce;) {
        if (at_ == count_) {
            if (ended_) return partial_.empty() ? Result::End : Take(line);
            const auto left = waiting_ > 0 ? patience : patience - (Steady::now() - start);
            if (const auto nothing = Fill(left)) return *nothing;
            continue;
        }
        const char byte = bytes_[at_++];
        ++taken;
        if (byte == '\n') return Take(line);
        if (partial_.size() == LongestLine) return Result::TooLong;
        partial_ += byte;
    }
    return Result::NotYet;
}

std::optional<LineInput::Result> PosixLineInput::Fill(Duration patience) {
    if (waiting_ <= 0 && !WaitForBytes(patience))
        return errno == EINTR ? Result::NotYet : Result::Failed;
    if (waiting_ <= 0) return Result::NotYet;
    const ssize_t got = ::read(descriptor_, bytes_.data(), own_ ? bytes_.size() : 1);
    if (got < 0) return errno == EINTR ? Result::NotYet : Result::Failed;
    ended_ = got == 0;
    waiting_ -= static_cast<int>(got);
    at_ = 0;
    count_ = static_cast<std::size_t>(got);
    return std::nullopt;
}

// Counts the bytes that are ready, so that a lot of input needs no wait for each byte. False is an
// error.
bool PosixLineInput::WaitForBytes(Duration patience) {
    // A request to end the program must end the wait too.
    pollfd inputs[] = {{descriptor_, POLLIN, 0}, {TerminationDescriptor(), POLLIN, 0}};
    if (::poll(inputs, std::size(inputs), PollTime(patience)) < 0) return false;
    if (inputs[0].revents == 0) return true;
    // 1 at the end of the input or after an error, which the read then reports.
    if (::ioctl(descriptor_, FIONREAD, &waiting_) != 0 || waiting_ < 1) waiting_ = 1;
    return true;
}

LineInput::Result PosixLineInput::Take(std::string& line) {
    line = std::exchange(partial_, {});
    if (!line.empty() && line.back() == '\r') line.pop_back();
    return Result::Line;
}

}  // namespace kelvra::platform
