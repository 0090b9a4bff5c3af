// SPDX-License-Identifier: GPL-3.0-or-later
// The computer that the program runs on: where its files are, its command line, its locale, its
// registry and its shared libraries.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <system_error>

#include "platform/files.h"
#include "platform/windows_version.h"
#include "util/number_text.h"

namespace kelvra::platform {

// A shared library in this process. Symbols stay valid as long as the object lives.
class Library {
public:
    virtual ~Library() = default;
    // Address of an exported function, null if there is none of that name.
    virtual void* Find(const char* name) = 0;
};

struct LoadedLibrary {
    std::unique_ptr<Library> library;  // null when it could not be loaded
    std::string fileName;              // "libpsdrv_32.so": the file that was looked for
    std::string why;                   // the system's words when it could not be loaded
    std::string path{};                // of the file; empty if it was not found
};

// Where users find more, and whom they can ask.
struct ProgramAddresses {
    std::string homePage, applicationNotes, supportTool;  // "https://..."
    std::string supportMailbox;                           // "name@..."
};

// What the program says about itself, from the build.
struct ProgramVersion {
    std::string product;
    int major = 0, minor = 0, revision = 0;
    std::string comments{};
    std::string legalNotice{};  // who holds the copyright since when
    ProgramAddresses addresses{};
};

// What this computer runs, in its own words. Empty where the system doesn't say.
struct SystemDescription {
    std::string kernel;        // "Linux 6.1.0"
    std::string machine;       // "x86_64"
    std::string distribution;  // "Debian GNU/Linux 12 (bookworm)"
    std::string locale;        // the one that is in use: "de_DE.UTF-8"
};

class Computer {
public:
    virtual ~Computer() = default;

    // Folder of the application's own files (the INI file), without a separator at the end.
    virtual std::string ProgramFolder() = 0;
    // Folder of the guide's pages, which is installed with the program.
    virtual std::string GuideFolder() = 0;
    // Whether the system has a viewer for compiled help files.
    virtual bool OpensCompiledHelp() = 0;
    // A path on drive C, "C:\DebugKelvra.txt", as it is on this computer.
    virtual std::string DrivePath(const std::string& windowsPath) = 0;
    virtual std::string Join(const std::string& folder, const std::string& name) = 0;
    // Windows' folders of the system and of itself, or those of the data folder that stand for them
    // ("System32", "Windows"), which may be missing.
    virtual std::string SystemFolder() = 0;
    virtual std::string WindowsFolder() = 0;
    // The words after the program's name, joined by spaces.
    virtual std::string CommandLine() = 0;
    virtual ProgramVersion Version() = 0;
    // Local time of the program file: Kelvra.EXE in the program folder, else the running program.
    virtual std::optional<LocalTime> ProgramFileDate() = 0;

    virtual const util::NumberForm& Numbers() = 0;
    virtual std::string DateText(const LocalTime& time) = 0;  // the locale's short form
    virtual std::string TimeText(const LocalTime& time) = 0;

    virtual SystemDescription Describe() = 0;
    // Nothing on other systems.
    virtual std::optional<WindowsVersion> Windows() = 0;

    // By the library's plain name ("psdrv_32"). Looks in the driver folder, then in the folder of
    // the running program, and nowhere else.
    virtual LoadedLibrary LoadDriverLibrary(const std::string& name) = 0;

    // Key paths are those of Windows and begin with "HKLM\" or "HKCU\".
    virtual std::error_code WriteRegistry(const std::string& key, const std::string& name,
                                          const std::string& value) = 0;
    // Nothing when there is no such value, or it can't be read. A key's default value has no name.
    virtual std::optional<std::string> ReadRegistry(const std::string& key,
                                                    const std::string& name) = 0;
    // The file in which Kelvra keeps the registry. Nothing on systems with a registry of their own,
    // where the device-list library reads it directly.
    virtual std::optional<std::string> OwnRegistry() = 0;
};

}  // namespace kelvra::platform
