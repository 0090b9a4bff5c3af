// SPDX-License-Identifier: GPL-3.0-or-later
// The output of the console: whole lines of valid UTF-8 on standard output, each flushed.
#pragma once

#include <cstdio>
#include <string>
#include <string_view>

namespace kelvra::console {

class Output {
public:
    explicit Output(std::FILE* file) : file_(file) {}

    void Line(std::string_view text);
    // False once a line could not be written.
    bool Good() const { return good_; }

private:
    std::FILE* file_;
    bool good_ = true;
};

// Writes line breaks (CR LF, LF, CR) as "\n", for texts that must stay on one line.
std::string OneLine(std::string_view text);

}  // namespace kelvra::console
