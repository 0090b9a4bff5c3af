// SPDX-License-Identifier: GPL-3.0-or-later
// Lines of a file or of standard input, one at a time and never read ahead, so that the writer can
// see the effect of one line before it writes the next.
#pragma once

#include <memory>
#include <string>

#include "platform/clock.h"

namespace kelvra::platform {

class LineInput {
public:
    enum class Result {
        Line,
        NotYet,  // no complete line within the patience
        End,
        TooLong,  // more than LongestLine bytes without a line break
        Failed,
    };
    static constexpr std::size_t LongestLine = std::size_t{1} << 20;

    virtual ~LineInput() = default;

    // Waits up to `patience` for a complete line and gives it without its end (LF or CR LF). A last
    // line without an end counts. Returns early, with NotYet, when a signal arrives.
    virtual Result Read(std::string& line, Duration patience) = 0;
};

}  // namespace kelvra::platform
