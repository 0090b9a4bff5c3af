// SPDX-License-Identifier: GPL-3.0-or-later
// The About box: what the program is, links to its maker, the report for support and the legal
// notes. It is no part of the measurement, which goes on under it.
#pragma once

#include <string>
#include <vector>

#include "driver/driver_library.h"
#include "forms/forms.h"
#include "platform/host.h"
#include "ui/system_report.h"

namespace kelvra::ui {

class AboutBox {
public:
    AboutBox(forms::Forms& forms, const driver::DriverLibrary& drivers, platform::Host& host);

    // What the front end is built on; set before the box is opened.
    std::vector<LibraryVersion> frontEnd;

    // The report as plain text, built when the box was opened; lines end with CR LF.
    const std::string& SupportText() const { return supportText_; }

private:
    struct Page {
        controls::Button& button;
        controls::RichText& panel;
    };

    void Open();
    void ShowHeader();
    void BuildReport();
    void Turn(const Page& page);
    void HidePanels();
    void OpenProductPages();
    void WriteMail();

    forms::AboutForm& form_;
    const driver::DriverLibrary& drivers_;
    platform::Host& host_;
    const Page pages_[3];
    std::string supportText_;
};

}  // namespace kelvra::ui
