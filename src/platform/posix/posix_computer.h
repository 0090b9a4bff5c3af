// SPDX-License-Identifier: GPL-3.0-or-later
// A computer of this family of systems. One data folder serves as program folder, drive C and
// registry.
#pragma once

#include <string>
#include <system_error>
#include <vector>

#include "platform/computer.h"
#include "platform/files.h"
#include "platform/native.h"
#include "posix/posix_locale.h"

namespace kelvra::platform {

class PosixComputer final : public Computer {
public:
    // Makes the data folder if it is missing. Relative folders start from the current one at this
    // moment.
    PosixComputer(Files& files, const ComputerOptions& options);

    // Why the data folder could not be made. Writes to it will fail as well.
    const std::error_code& DataFolderError() const { return dataFolderError_; }

    std::string ProgramFolder() override { return dataDir_; }
    // Beside the folder of the running program.
    std::string GuideFolder() override;
    bool OpensCompiledHelp() override { return false; }
    // A path that is on no drive stays as it is.
    std::string DrivePath(const std::string& windowsPath) override;
    std::string Join(const std::string& folder, const std::string& name) override;
    std::string SystemFolder() override { return Join(dataDir_, "System32"); }
    std::string WindowsFolder() override { return Join(dataDir_, "Windows"); }
    std::string CommandLine() override { return commandLine_; }
    ProgramVersion Version() override { return version_; }
    std::optional<LocalTime> ProgramFileDate() override;

    const util::NumberForm& Numbers() override { return locale_.Numbers(); }
    std::string DateText(const LocalTime& time) override { return locale_.DateText(time); }
    std::string TimeText(const LocalTime& time) override { return locale_.TimeText(time); }

    SystemDescription Describe() override;
    std::optional<WindowsVersion> Windows() override { return std::nullopt; }

    // Takes the first folder that has the file, whether it loads or not.
    LoadedLibrary LoadDriverLibrary(const std::string& name) override;

    // In "registry.ini" of the data folder, a section for each key.
    std::error_code WriteRegistry(const std::string& key, const std::string& name,
                                  const std::string& value) override;
    std::optional<std::string> ReadRegistry(const std::string& key,
                                            const std::string& name) override;
    std::optional<std::string> OwnRegistry() override { return registryPath_; }

private:
    Files& files_;
    std::string dataDir_;
    std::string registryPath_;
    std::vector<std::string> driverFolders_;  // absolute, in the order of the search
    std::string commandLine_;
    ProgramVersion version_;
    PosixLocale locale_;
    std::error_code dataFolderError_;
};

}  // namespace kelvra::platform
