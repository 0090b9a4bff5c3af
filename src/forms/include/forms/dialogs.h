// SPDX-License-Identifier: GPL-3.0-or-later
// The small dialogs: the recording interval, the About box with its reports, and a sensor's
// information entries. Texts from the computer or a sensor are filled in elsewhere.
#pragma once

#include "controls/kinds.h"
#include "controls/list.h"

namespace kelvra::forms {

struct TimeForm : controls::Window {
    explicit TimeForm(controls::Changes& changes)
        : Window(changes, "TimeForm", "Record Time Interval", {3000, 3000, 4800, 1500}) {
        TimeIntervalBox.access.helpTopic = 1114;
        TimeIntervalBox.access.name = "Interval";
        TimeIntervalBox.SetText("1");
        TimeIntervalBox.tooltip = "Time from one recorded line to the next, in whole seconds";
    }

    controls::Frame Frame1{*this, "Frame1", "", {60, 60, 4680, 1380}};
    controls::Picture Image1{Frame1, "Image1", "recordPic"};
    controls::Label lblRecText{Frame1, "lblRecText", "Record data every"};
    controls::TextBox TimeIntervalBox{Frame1, "TimeIntervalBox"};
    controls::Label Label2{Frame1, "Label2", "seconds"};
    controls::Button SubmitTimeButton{
        Frame1,
        "SubmitTimeButton",
        "",
        "submitTimePic",
        {.name = "Choose file", .mnemonic = 'C', .explanation = "Asks for the file and begins."}};
};

// The program's name and version, links, and three panels of which one at most is shown.
struct AboutForm : controls::Window {
    explicit AboutForm(controls::Changes& changes)
        : Window(changes, "AboutForm", "Info", {2400, 1800, 8400, 7200}) {
        topMost = true;
        for (controls::Button* button : {&ShowSystemInfo, &ShowDriverInfo, &ShowLegalNotes})
            button->tag = "show";
        for (controls::RichText* panel : {&SysInfoValue, &DriverInfoValue, &LizText})
            panel->visible = false;
        HomeLink.access.explanation = "Opens the maker's home page in the browser.";
        ProductLink.access.explanation =
            "Opens the application notes and the page of the support tool in the browser.";
        SupportMail.access.explanation = "Begins a mail to the maker's support.";
        SysInfoValue.access.name = "System info";
        DriverInfoValue.access.name = "Driver info";
        LizText.access.name = "Legal notes";
    }

    controls::Picture Image{*this, "Image", "aboutPic"};
    controls::Label AppName{*this, "AppName"};
    controls::Label AppDesc{*this, "AppDesc"};
    controls::Label AppVersion{*this, "AppVersion"};
    controls::Label AppCopy{*this, "AppCopy"};
    controls::Label HomeLink{*this, "HomeLink", "Home page"};
    controls::Label ProductLink{*this, "ProductLink", "Application notes and support tool"};
    controls::Label SupportMail{*this, "SupportMail", "Mail to support"};
    controls::Button ShowSystemInfo{
        *this,
        "ShowSystemInfo",
        "System info",
        "",
        {.mnemonic = 'S', .explanation = "Shows what is installed on this computer, or hides it."}};
    controls::Button ShowDriverInfo{
        *this,
        "ShowDriverInfo",
        "Driver info",
        "",
        {.mnemonic = 'D',
         .explanation = "Shows the instrument drivers on this computer, or hides "
                        "them."}};
    controls::Button ShowLegalNotes{
        *this,
        "ShowLegalNotes",
        "Legal notes",
        "",
        {.mnemonic = 'L',
         .explanation = "Shows the licences of the program and of what it is built on, or hides "
                        "them."}};
    controls::Button CreateSupportString{
        *this,
        "CreateSupportString",
        "Copy support info",
        "",
        {.mnemonic = 'C',
         .explanation = "Copies all that system and driver info say, as text for a mail."}};
    controls::Button Close{
        *this, "Close", "Close", "", {.mnemonic = 'o', .explanation = "Closes this window."}};
    controls::RichText SysInfoValue{*this, "SysInfoValue"};
    controls::RichText DriverInfoValue{*this, "DriverInfoValue"};
    controls::RichText LizText{*this, "LizText"};
};

// Names on the left, values on the right, an entry per line.
struct SensInfoForm : controls::Window {
    explicit SensInfoForm(controls::Changes& changes)
        : Window(changes, "SensInfoForm", "Sensor Information", {3000, 1800, 6900, 5400}) {
        topMost = true;
    }

    controls::Label lblInfoSensor{*this, "lblInfoSensor"};
    controls::List InfoHeader{*this, "InfoHeader", {}, -1, {.name = "Names"}};
    controls::List InfoValue{*this, "InfoValue", {}, -1, {.name = "Values"}};
    controls::Button cmdInfoCopy{
        *this,
        "cmdInfoCopy",
        "Copy",
        "",
        {.mnemonic = 'C', .explanation = "Copies all lines, name and value each."}};
    controls::Button cmdInfoSave{
        *this,
        "cmdInfoSave",
        "Save...",
        "",
        {.mnemonic = 'S', .explanation = "Asks for a file and writes all lines to it as text."}};
};

}  // namespace kelvra::forms
