// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/about_box.h"

#include "ui/driver_lists.h"
#include "ui/legal_notes.h"
#include "ui/program_name.h"

namespace kelvra::ui {

namespace {

// What a press on a panel's button does next, as the button's tag says.
constexpr const char* Show = "show";
constexpr const char* Hide = "hide";

}  // namespace

AboutBox::AboutBox(forms::Forms& forms, const driver::DriverLibrary& drivers, platform::Host& host)
    : form_(forms.aboutForm),
      drivers_(drivers),
      host_(host),
      pages_{{form_.ShowSystemInfo, form_.SysInfoValue},
             {form_.ShowDriverInfo, form_.DriverInfoValue},
             {form_.ShowLegalNotes, form_.LizText}} {
    form_.LizText.rtf = LegalNotes();
    forms.mdiMain.MHelpAbout.click.Connect([this] { Open(); });
    for (const Page& page : pages_) page.button.click.Connect([this, &page] { Turn(page); });
    form_.HomeLink.click.Connect(
        [this] { host_.dialogs.OpenAddress(host_.computer.Version().addresses.homePage); });
    form_.ProductLink.click.Connect([this] { OpenProductPages(); });
    form_.SupportMail.click.Connect([this] { WriteMail(); });
    form_.CreateSupportString.click.Connect([this] { host_.dialogs.CopyText(supportText_); });
    form_.Close.click.Connect([this] { form_.PersonCloses(); });
}

// A box that is open keeps what it shows and comes to the front.
void AboutBox::Open() {
    if (!form_.visible) {
        ShowHeader();
        BuildReport();
        HidePanels();
    }
    form_.Present();
}

void AboutBox::ShowHeader() {
    const platform::ProgramVersion program = host_.computer.Version();
    form_.AppName.caption = program.product;
    form_.AppDesc.caption = program.comments;
    form_.AppVersion.caption =
        "Version " + VersionText(program) + " from " + ProgramDate(host_.computer);
    form_.AppCopy.caption = "Copyright " + program.legalNotice;
}

void AboutBox::BuildReport() {
    std::vector<ReportSection> system = WindowsSections(host_);
    const std::vector<ReportSection> lists = DriverSections(host_);
    const ReportSection computer = ComputerSection(host_, drivers_, frontEnd);
    const platform::ProgramVersion program = host_.computer.Version();
    supportText_ = PlainLine("Product:", program.product) +
                   PlainLine("Version:", VersionText(program)) +
                   PlainLine("Date:", ProgramDate(host_.computer)) + PlainText(system) +
                   PlainText(lists) + PlainText({computer});
    system.push_back(computer);
    form_.SysInfoValue.rtf = PanelText(system);
    form_.DriverInfoValue.rtf = PanelText(lists);
}

void AboutBox::Turn(const Page& page) {
    const bool show = page.button.tag.Get() == Show;
    HidePanels();
    if (!show) return;
    page.panel.visible = true;
    page.button.tag = Hide;
}

void AboutBox::HidePanels() {
    for (const Page& page : pages_) {
        page.panel.visible = false;
        page.button.tag = Show;
    }
}

void AboutBox::OpenProductPages() {
    const platform::ProgramAddresses addresses = host_.computer.Version().addresses;
    host_.dialogs.OpenAddress(addresses.applicationNotes);
    host_.dialogs.OpenAddress(addresses.supportTool);
}

// The blanks stay as they are: whoever opens the address encodes them.
void AboutBox::WriteMail() {
    const platform::ProgramVersion program = host_.computer.Version();
    host_.dialogs.OpenAddress("mailto:" + program.addresses.supportMailbox +
                              "?SUBJECT=Question to " + program.product + ", version " +
                              VersionText(program) + " from " + ProgramDate(host_.computer));
}

}  // namespace kelvra::ui
