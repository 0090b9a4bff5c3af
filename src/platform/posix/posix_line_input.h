// SPDX-License-Identifier: GPL-3.0-or-later
// Lines from a file descriptor. A descriptor shared with others is read a byte at a time, so that
// they get the bytes after the line.
#pragma once

#include <array>
#include <optional>

#include "platform/line_input.h"

namespace kelvra::platform {

class PosixLineInput final : public LineInput {
public:
    // Closes the descriptor in the destructor if it is its own.
    PosixLineInput(int descriptor, bool own) : descriptor_(descriptor), own_(own) {}
    ~PosixLineInput() override;
    PosixLineInput(const PosixLineInput&) = delete;
    PosixLineInput& operator=(const PosixLineInput&) = delete;

    Result Read(std::string& line, Duration patience) override;

private:
    // Gets the next bytes; the result to return if none have come.
    std::optional<Result> Fill(Duration patience);
    bool WaitForBytes(Duration patience);
    Result Take(std::string& line);

    int descriptor_;
    bool own_;
    bool ended_ = false;
    int waiting_ = 0;  // bytes known to be ready
    std::array<char, 4096> bytes_{};
    std::size_t at_ = 0;     // index of the next byte
    std::size_t count_ = 0;  // bytes in the buffer
    std::string partial_;
};

}  // namespace kelvra::platform
