// SPDX-License-Identifier: GPL-3.0-or-later
// Lines from a file descriptor. One that others read as well is read a byte at a time, so that the
// bytes after the line are left to them.
#pragma once

#include <array>
#include <optional>

#include "platform/line_input.h"

namespace kelvra::platform {

class PosixLineInput final : public LineInput {
public:
    // Closes the descriptor at the end if it is its own.
    PosixLineInput(int descriptor, bool own) : descriptor_(descriptor), own_(own) {}
    ~PosixLineInput() override;
    PosixLineInput(const PosixLineInput&) = delete;
    PosixLineInput& operator=(const PosixLineInput&) = delete;

    Result Read(std::string& line, Duration patience) override;

private:
    // Gets the next bytes; what there is to say when none have come.
    std::optional<Result> Fill(Duration patience);
    bool WaitForBytes(Duration patience);
    Result Take(std::string& line);

    int descriptor_;
    bool own_;
    bool ended_ = false;
    int waiting_ = 0;  // bytes that are known to be there
    std::array<char, 4096> bytes_{};
    std::size_t at_ = 0;     // the next of the bytes
    std::size_t count_ = 0;  // of them
    std::string partial_;
};

}  // namespace kelvra::platform
