// SPDX-License-Identifier: GPL-3.0-or-later
#include "options/surroundings.h"

#include <random>

#include "options/version.h"

namespace kelvra::options {

namespace {

std::uint64_t AnySeed() {
    std::random_device device;
    return (std::uint64_t{device()} << 32) | device();
}

}  // namespace

Surroundings::Surroundings(const Options& options, const std::vector<std::string>& commandLine)
    : files_(platform::NativeFiles()),
      nativeClock_(platform::NativeClock()),
      ownClock_(options.clock ? std::make_unique<platform::SetClock>(*options.clock) : nullptr),
      computer_(platform::NativeComputer(
          *files_, {options.dataDir, options.driverDir, commandLine, Version()}, dataFolderError_)),
      random_(options.seed ? *options.seed : AnySeed()) {}

platform::Host Surroundings::HostWith(platform::Events& events, platform::Dialogs& dialogs) {
    return {events, dialogs, Clock(), *files_, *computer_, random_};
}

}  // namespace kelvra::options
