// SPDX-License-Identifier: GPL-3.0-or-later
// The report for support: what is installed on this computer, in sections of lines. A section is
// shown in a panel as rich text, and its lines are part of a plain text.
#pragma once

#include <string>
#include <vector>

#include "driver/driver_library.h"
#include "platform/host.h"

namespace kelvra::ui {

struct ReportLine {
    std::string panelLabel;  // empty: the panel shows the value alone
    std::string plainLabel;
    std::string value;
};

struct ReportSection {
    std::string panelHeading;
    std::string plainHeading;  // empty: the plain text has the lines alone
    std::vector<ReportLine> lines;
};

// What Windows knows: languages, versions of libraries. On other systems its registry is Kelvra's
// own, and the folders are those that stand for Windows'; the system's name is then empty.
std::vector<ReportSection> WindowsSections(platform::Host& host);

// A library of the front end, by its label in the report.
struct LibraryVersion {
    std::string label;    // "Plot library"
    std::string version;  // with its name
};

// What is true of this computer on every system.
ReportSection ComputerSection(platform::Host& host, const driver::DriverLibrary& drivers,
                              const std::vector<LibraryVersion>& frontEnd);

// The sections as a document in a panel.
std::string PanelText(const std::vector<ReportSection>& sections);

// A line of the plain text; its label is padded to 22 characters.
std::string PlainLine(const std::string& label, const std::string& value);
std::string PlainText(const std::vector<ReportSection>& sections);

}  // namespace kelvra::ui
