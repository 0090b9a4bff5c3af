// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/driver_lists.h"

#include <initializer_list>
#include <string_view>

#include "platform/file_lookup.h"
#include "platform/file_version.h"

namespace kelvra::ui {

namespace {

constexpr std::string_view Prefix = "hx";
constexpr const char* FrameworkKey = R"(HKLM\SOFTWARE\VXIPNP_Alliance\VXIPNP\CurrentVersion)";
constexpr const char* WindowsKey = R"(HKLM\SOFTWARE\Microsoft\Windows\CurrentVersion)";

// The first of the values that is not empty.
std::string Registered(platform::Host& host, const char* key,
                       std::initializer_list<const char*> names) {
    for (const char* name : names)
        if (const auto value = host.computer.ReadRegistry(key, name); value && !value->empty())
            return *value;
    return {};
}

ReportSection Headed(const std::string& heading, const std::string& folder) {
    return {heading + " (path: " + folder + ")", heading + ":", {}};
}

void AddFile(ReportSection& section, const std::string& name, const std::string& version) {
    section.lines.push_back({" " + name, name, version});
}

std::string Below(platform::Computer& computer, std::string folder,
                  std::initializer_list<const char*> names) {
    for (const char* name : names) folder = computer.Join(folder, name);
    return folder;
}

// The drivers below a folder that the registry names as Windows writes it. Without it there is no
// list, and no path.
ReportSection InstrumentDrivers(platform::Host& host, const std::string& heading,
                                const std::string& registered,
                                std::initializer_list<const char*> below) {
    if (registered.empty()) return Headed(heading, "");
    std::string shown = registered.ends_with('\\') ? registered : registered + '\\';
    for (const char* name : below) shown.append(name).append("\\");
    ReportSection section = Headed(heading, shown);
    const std::string folder = Below(host.computer, host.computer.DrivePath(registered), below);
    for (const std::string& name : platform::NamesLike(host.files, folder, Prefix, ".dll"))
        if (const auto path = platform::FindPath(host.files, host.computer.Join(folder, name)))
            AddFile(section, name, platform::FileVersion(host.files, *path));
    return section;
}

// Of the driver file, which is in the system folder. Where a data folder stands for Windows' own,
// that may be beside the Windows folder or in it.
std::string SystemDriverVersion(platform::Host& host, const std::string& name) {
    platform::Computer& computer = host.computer;
    for (const std::string& folder :
         {Below(computer, computer.WindowsFolder(), {"System32", "Drivers"}),
          Below(computer, computer.SystemFolder(), {"Drivers"})})
        if (const auto path = platform::FindPath(host.files, computer.Join(folder, name)))
            return platform::FileVersion(host.files, *path);
    return {};
}

ReportSection UsbDrivers(platform::Host& host) {
    constexpr std::string_view ending = ".inf";
    platform::Computer& computer = host.computer;
    const std::string windows = computer.WindowsFolder();
    ReportSection section = Headed("Installed Halvex USB drivers", computer.Join(windows, ".."));
    for (const std::string& name :
         platform::NamesLike(host.files, computer.Join(windows, "INF"), Prefix, ending)) {
        const std::string driver = name.substr(0, name.size() - ending.size()) + ".SYS";
        AddFile(section, driver, SystemDriverVersion(host, driver));
    }
    return section;
}

}  // namespace

std::vector<ReportSection> DriverSections(platform::Host& host) {
    return {
        InstrumentDrivers(host, "Installed Halvex VXI PnP drivers",
                          Registered(host, FrameworkKey, {"FrameworkPath", "FRAMEWORK_PATH"}),
                          {"bin"}),
        InstrumentDrivers(host, "Installed Halvex IVI drivers",
                          Registered(host, WindowsKey, {"ProgramFilesDir"}), {"IVI", "Bin"}),
        UsbDrivers(host),
    };
}

}  // namespace kelvra::ui
