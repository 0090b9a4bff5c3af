// SPDX-License-Identifier: GPL-3.0-or-later
#include "posix/posix_computer.h"

#include <pwd.h>
#include <sys/utsname.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <utility>

#include "platform/data_folder.h"
#include "platform/file_tools.h"
#include "platform/profile_file.h"
#include "posix/os_release.h"
#include "posix/posix_library.h"

namespace kelvra::platform {

namespace {

namespace fs = std::filesystem;

constexpr const char* RunningProgram = "/proc/self/exe";
// From the program's folder; docs/CMakeLists.txt puts the guide there.
constexpr const char* Guide = "../share/doc/kelvra/help";

std::string Environment(const char* name) {
    const char* value = std::getenv(name);
    return value == nullptr ? std::string() : value;
}

// An empty path stays empty. No separator at the end.
std::string Absolute(const std::string& folder) {
    if (folder.empty()) return {};
    std::error_code noCurrentFolder;
    const fs::path absolute = fs::absolute(folder, noCurrentFolder).lexically_normal();
    const std::string path = noCurrentFolder ? folder : absolute.string();
    return path.size() > 1 && path.ends_with('/') ? path.substr(0, path.size() - 1) : path;
}

std::string HomeFolder() {
    if (std::string home = Environment("HOME"); !home.empty()) return home;
    const passwd* user = ::getpwuid(::getuid());
    return user == nullptr ? "/" : user->pw_dir;
}

std::string DataFolder(const std::string& option) {
    if (!option.empty()) return option;
    if (std::string own = Environment("KELVRA_DATA_DIR"); !own.empty()) return own;
    // XDG requires relative paths to be ignored.
    const fs::path shared = Environment("XDG_DATA_HOME");
    const fs::path base = shared.is_absolute() ? shared : fs::path(HomeFolder()) / ".local/share";
    return (base / "kelvra").string();
}

fs::path FolderOfProgram() {
    std::error_code unknown;
    return fs::read_symlink(RunningProgram, unknown).parent_path();
}

// Relative folders are left out: the search would depend on the current folder.
std::vector<std::string> DriverFolders(const std::string& option) {
    const std::string chosen = option.empty() ? Environment("KELVRA_DRIVER_DIR") : option;
    std::vector<std::string> folders{Absolute(chosen), FolderOfProgram().string()};
    std::erase_if(folders, [](const std::string& folder) { return !folder.starts_with('/'); });
    return folders;
}

std::string Joined(const std::vector<std::string>& words) {
    std::string line;
    for (const std::string& word : words) line += line.empty() ? word : ' ' + word;
    return line;
}

}  // namespace

PosixComputer::PosixComputer(Files& files, const ComputerOptions& options)
    : files_(files),
      dataDir_(Absolute(DataFolder(options.dataDir))),
      registryPath_(Join(dataDir_, "registry.ini")),
      driverFolders_(DriverFolders(options.driverDir)),
      commandLine_(Joined(options.commandLine)),
      version_(options.version),
      dataFolderError_(files_.MakeFolders(dataDir_)) {}

std::string PosixComputer::GuideFolder() {
    return (FolderOfProgram() / Guide).lexically_normal().string();
}

std::string PosixComputer::DrivePath(const std::string& windowsPath) {
    if (windowsPath.size() < 3 || windowsPath[1] != ':') return windowsPath;
    std::string below = windowsPath.substr(3);
    std::replace(below.begin(), below.end(), '\\', '/');
    return Join(dataDir_, below);
}

std::string PosixComputer::Join(const std::string& folder, const std::string& name) {
    return folder.ends_with('/') ? folder + name : folder + '/' + name;
}

std::optional<LocalTime> PosixComputer::ProgramFileDate() {
    const auto program = files_.ModifiedAt(Join(dataDir_, "Kelvra.EXE"));
    return program ? program : files_.ModifiedAt(RunningProgram);
}

SystemDescription PosixComputer::Describe() {
    SystemDescription system;
    system.locale = locale_.Name();
    utsname kernel{};
    if (::uname(&kernel) == 0) {
        system.kernel = std::string(kernel.sysname) + ' ' + kernel.release;
        system.machine = kernel.machine;
    }
    for (const char* path : {"/etc/os-release", "/usr/lib/os-release"}) {
        std::string bytes;
        if (ReadWholeFile(files_, path, bytes)) continue;
        system.distribution = NameOfDistribution(bytes);
        break;
    }
    return system;
}

LoadedLibrary PosixComputer::LoadDriverLibrary(const std::string& name) {
    LoadedLibrary loaded;
    loaded.fileName = "lib" + name + ".so";
    std::string searched;
    for (const std::string& folder : driverFolders_) {
        const std::string path = Join(folder, loaded.fileName);
        if (files_.Exists(path)) {
            loaded.path = path;
            loaded.library = LoadLibrary(path, loaded.why);
            return loaded;
        }
        searched += searched.empty() ? folder : ", " + folder;
    }
    loaded.why = "not found in " + searched;
    return loaded;
}

std::error_code PosixComputer::WriteRegistry(const std::string& key, const std::string& name,
                                             const std::string& value) {
    const FolderLock lock(files_, dataDir_);
    if (lock.Error()) return lock.Error();
    ProfileFile registry(files_, registryPath_);
    registry.Text().Write(key, name, value);
    return registry.Save();
}

std::optional<std::string> PosixComputer::ReadRegistry(const std::string& key,
                                                       const std::string& name) {
    return ProfileFile(files_, registryPath_).Text().Find(key, name);
}

}  // namespace kelvra::platform
