// SPDX-License-Identifier: GPL-3.0-or-later
// A console program at the other end of three pipes, with a data folder of its own and a clock of
// its own, fed from standard input.
#pragma once

#include <sys/types.h>

#include <string>
#include <vector>

#include "support/temp_folder.h"

namespace kelvra::test {

class RunningConsole {
public:
    // Without a driver folder it simulates.
    explicit RunningConsole(const std::string& driverDir = {},
                            const std::vector<std::string>& words = {});
    RunningConsole(const RunningConsole&) = delete;
    RunningConsole& operator=(const RunningConsole&) = delete;
    ~RunningConsole();

    void Write(const std::string& bytes) const;
    // The next line of output, with its end; waits for it.
    std::string Line() const;
    void Signal(int signal) const;

    struct End {
        int status;
        std::string output, errors, unread;  // unread: what is left in the input pipe
    };
    // Ends the input, and waits for the program.
    End Finish();

    TempFolder data;

private:
    pid_t process_ = -1;
    int input_[2] = {-1, -1};  // to read, to write
    int output_[2] = {-1, -1};
    int errors_[2] = {-1, -1};
};

}  // namespace kelvra::test
