// SPDX-License-Identifier: GPL-3.0-or-later
// What a run needs besides its front end: the computer's files and libraries, and the clock and
// random numbers that the command line has chosen.
#pragma once

#include <memory>
#include <string>
#include <system_error>
#include <vector>

#include "options/options.h"
#include "platform/clock.h"
#include "platform/host.h"
#include "platform/native.h"

namespace kelvra::options {

class Surroundings {
public:
    // Start-up reads the command line. Without a seed the random numbers differ from run to run.
    Surroundings(const Options& options, const std::vector<std::string>& commandLine);

    // Kelvra's own clock; null if the computer's is used.
    platform::SetClock* OwnClock() { return ownClock_.get(); }
    platform::Clock& Clock() { return ownClock_ ? *ownClock_ : *nativeClock_; }
    platform::Files& Files() { return *files_; }
    platform::Computer& Computer() { return *computer_; }
    // Why the data folder could not be made.
    std::error_code DataFolderError() const { return dataFolderError_; }

    platform::Host HostWith(platform::Events& events, platform::Dialogs& dialogs);

private:
    std::unique_ptr<platform::Files> files_;
    std::unique_ptr<platform::Clock> nativeClock_;
    std::unique_ptr<platform::SetClock> ownClock_;
    std::error_code dataFolderError_;
    std::unique_ptr<platform::Computer> computer_;
    util::Random random_;
};

}  // namespace kelvra::options
