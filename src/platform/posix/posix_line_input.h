// SPDX-License-Identifier: GPL-3.0-or-later
// Lines from a file descriptor, a byte at a time.
#pragma once

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
    Result Take(std::string& line);

    int descriptor_;
    bool own_;
    bool ended_ = false;
    std::string partial_;
};

}  // namespace kelvra::platform
