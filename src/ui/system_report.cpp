// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/system_report.h"

#include <initializer_list>

#include "platform/file_lookup.h"
#include "platform/file_version.h"
#include "ui/rich_text.h"

namespace kelvra::ui {

namespace {

constexpr std::size_t PanelColumns = 20;
constexpr std::size_t PlainColumns = 22;

// Where an item's value comes from.
enum class Source {
    SystemName,
    Registry,    // `place`: the value's name, under the user's language settings
    SystemFile,  // `place`: a file of the system folder; `second`: one in its stead
    Browser,     // the program that is registered under `place`
};

struct Item {
    const char* panelLabel = "";
    const char* plainLabel = "";
    Source source{};
    const char* place = "";
    const char* second = "";
    const char* absent = "";  // what is said if there is no such file
};

struct Section {
    const char* heading = "";
    std::initializer_list<Item> items;
};

constexpr const char* LanguageKey = "HKCU\\Control Panel\\International";
constexpr const char* BrowserKey =
    R"(HKLM\SOFTWARE\Microsoft\Windows\CurrentVersion\App Paths\IEXPLORE.EXE)";

const Section Sections[] = {
    {"Operating system", {{"", "Operating system:", Source::SystemName}}},
    {"Language settings",
     {{" Country", "Country:", Source::Registry, "sCountry"},
      {" Language", "Language:", Source::Registry, "sLanguage"},
      {" Local ID", "Local ID:", Source::Registry, "Locale"}}},
    {"General informations",
     {{" IEEE driver", "IEEE driver version:", Source::SystemFile, "GPIB-32.dll", "sicl32.dll",
       "IEEE BUS IS NOT INSTALLED"},
      {" CVI runtime", "CVI runtime version:", Source::SystemFile, "cvirte.dll"},
      {" MSI service", "MSI service:", Source::SystemFile, "msi.dll"},
      {" Internet Explorer", "Internet Exp.:", Source::Browser, BrowserKey}}},
    {"NI ActiveX versions",
     {{" Analysis", "NI Analysis version:", Source::SystemFile, "cwanalysis.ocx"},
      {" UI", "NI UI version:", Source::SystemFile, "cwui.ocx"},
      {" 3D graph", "NI 3D graph version:", Source::SystemFile, "cw3dgrph.ocx"}}},
    {"VISA versions",
     {{" VISA", "NI VISA version:", Source::SystemFile, "visa32.dll", "", "VISA IS NOT INSTALLED"},
      {" Secondary VISA", "Secondary VISA version:", Source::SystemFile, "agvisa32.dll"},
      {" HVXR", "HVXR version:", Source::SystemFile, "HvxRemote.dll", "", "HVXR NOT INSTALLED"}}},
    {"Special files",
     {{" NB Control", "NB Control version:", Source::SystemFile, "nbcontrol.dll", "",
       "Halvex Nimbus USB NOT INSTALLED"},
      {" Tesk Control2", "Tesk Control2 version:", Source::SystemFile, "teskcontrol2.dll", "",
       "Halvex Tesk USB NOT INSTALLED"},
      {" Tesk Control", "Tesk Control version:", Source::SystemFile, "teskcontrol.dll"}}},
};

std::string FromSystemFile(platform::Host& host, const Item& item) {
    for (const std::string name : {item.place, item.second}) {
        if (name.empty()) continue;
        const std::string path = host.computer.Join(host.computer.SystemFolder(), name);
        if (const auto found = platform::FindPath(host.files, path))
            return platform::FileVersion(host.files, *found);
    }
    return item.absent;
}

std::string FromRegisteredProgram(platform::Host& host, const char* key) {
    const std::string registered = host.computer.ReadRegistry(key, "").value_or("");
    const auto found = platform::FindPath(host.files, host.computer.DrivePath(registered));
    return found ? platform::FileVersion(host.files, *found) : "";
}

std::string ValueOf(platform::Host& host, const Item& item) {
    switch (item.source) {
        case Source::SystemName: {
            const auto windows = host.computer.Windows();
            return windows ? platform::WindowsName(*windows) : "";
        }
        case Source::Registry:
            return host.computer.ReadRegistry(LanguageKey, item.place).value_or("");
        case Source::SystemFile:
            return FromSystemFile(host, item);
        case Source::Browser:
            break;
    }
    return FromRegisteredProgram(host, item.place);
}

// A label that fills its column is followed by one blank.
std::string Padded(const std::string& label, std::size_t columns) {
    return label + std::string(label.size() < columns ? columns - label.size() : 1, ' ');
}

}  // namespace

std::vector<ReportSection> WindowsSections(platform::Host& host) {
    std::vector<ReportSection> sections;
    for (const Section& section : Sections) {
        ReportSection& report = sections.emplace_back();
        report.panelHeading = section.heading;
        for (const Item& item : section.items)
            report.lines.push_back({item.panelLabel, item.plainLabel, ValueOf(host, item)});
    }
    return sections;
}

ReportSection ComputerSection(platform::Host& host, const driver::DriverLibrary& drivers,
                              const std::vector<LibraryVersion>& frontEnd) {
    const platform::SystemDescription system = host.computer.Describe();
    ReportSection section{"This computer", "", {}};
    const auto add = [&](const std::string& label, const std::string& value) {
        section.lines.push_back({" " + label, label + ":", value});
    };
    add("Kernel", system.kernel);
    add("Machine", system.machine);
    add("Distribution", system.distribution);
    add("Locale", system.locale);
    add("Data folder", host.computer.ProgramFolder());
    add("Sensor driver", driver::LibraryState(drivers.instrument));
    add("Device list driver", driver::LibraryState(drivers.deviceList));
    for (const LibraryVersion& library : frontEnd) add(library.label, library.version);
    return section;
}

std::string PanelText(const std::vector<ReportSection>& sections) {
    std::string document = RtfBeginning();
    for (const ReportSection& section : sections) {
        if (&section != &sections.front()) AddRtfLine(document, "", {.italic = true});
        AddRtfLine(document, section.panelHeading, {.bold = true});
        for (const ReportLine& line : section.lines) {
            if (!line.panelLabel.empty())
                AddRtfLine(document, Padded(line.panelLabel, PanelColumns),
                           {.newLine = false, .italic = true});
            AddRtfLine(document, line.value);
        }
    }
    return ShownRtf(document);
}

std::string PlainLine(const std::string& label, const std::string& value) {
    return Padded(label, PlainColumns) + value + "\r\n";
}

std::string PlainText(const std::vector<ReportSection>& sections) {
    std::string text;
    for (const ReportSection& section : sections) {
        if (!section.plainHeading.empty()) text += section.plainHeading + "\r\n";
        for (const ReportLine& line : section.lines) text += PlainLine(line.plainLabel, line.value);
    }
    return text;
}

}  // namespace kelvra::ui
