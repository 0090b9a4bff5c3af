// SPDX-License-Identifier: GPL-3.0-or-later
// The main window as data: menus, tool strip, connection indicator and calculation grid. Its rules
// are elsewhere; closing it is one of them.
#pragma once

#include "forms/kinds.h"

namespace kelvra::forms {

struct MDIMain : Window {
    explicit MDIMain(controls::Changes& changes)
        : Window(changes, "MDIMain", "", {0, 0, 15000, 9900}) {
        closesByRule = true;
        SettingAlwaysOnTop.checkable = true;
        EditUndo.enabled = false;
        EditRedo.enabled = false;
        for (MenuItem* item :
             {&Load_Sensor_Settings, &Save_Sensor_Settings, &CopySettings, &MHelpAbout})
            item->opensDialog = true;
        StopIt.enabled = false;
        BusySign.tag = "1";
        MeasSpeedInfo.visible = false;
        NotMeasuring.visible = false;
        SensSyncMode.enabled = false;
        SensSyncMode.tooltip = "Has no effect: each sensor starts with its own trigger.";
        ConnectedFrame.visible = false;
        RecordFrame.visible = false;
        lblRecord.access.explanation =
            "What has been recorded, how long, when the next line is due, and in which file.";
        MeasSpeedInfo.access.explanation =
            "Speed: passes over all sensors per second, not counting pauses between them.";
        NotMeasuring.access.explanation = "The start has failed; Stop makes the next one possible.";
        SensorLabel.access.explanation = "The list beside it chooses the current sensor.";
        ConSensors.access.explanation =
            "How many sensors are plugged in; without any, two simulated ones are measured.";
        lblMeasAwait.access.explanation =
            "What went wrong, what the measurement waits for, or what has been done.";
    }

    MenuItem MFile{*this,
                   "MFile",
                   "File",
                   {.mnemonic = 'F', .explanation = "Settings files, recording and exit."}};
    MenuItem Load_Sensor_Settings{
        MFile,
        "Load_Sensor_Settings",
        "Load sensor settings",
        {.mnemonic = 'L',
         .shortcut = "Ctrl+O",
         .explanation = "Asks for a file and gives the current sensor the settings in it."}};
    MenuItem Save_Sensor_Settings{
        MFile,
        "Save_Sensor_Settings",
        "Save sensor settings",
        {.mnemonic = 'S',
         .shortcut = "Ctrl+S",
         .explanation = "Asks for a file and writes the current sensor's settings to it."}};
    MenuItem line1{MFile, "line1", "-"};
    MenuItem FileSaveData{
        MFile,
        "FileSaveData",
        "Record Data...",
        {.mnemonic = 'R',
         .shortcut = "Ctrl+R",
         .explanation = "Records readings to a file while a measurement goes on."}};
    MenuItem line2{MFile, "line2", "-"};
    MenuItem MFileExit{MFile,
                       "MFileExit",
                       "Exit",
                       {.mnemonic = 'x',
                        .shortcut = "Ctrl+Q",
                        .explanation = "Ends a measurement, saves all settings and exits."}};

    MenuItem MEdit{
        *this,
        "MEdit",
        "Edit",
        {.mnemonic = 'E', .explanation = "Edits of settings and formulas, and copying settings."}};
    MenuItem EditUndo{MEdit,
                      "EditUndo",
                      "Undo",
                      {.mnemonic = 'U',
                       .shortcut = "Ctrl+Z",
                       .explanation = "Takes back the latest edit of the current sensor's settings "
                                      "or of a formula."}};
    MenuItem EditRedo{MEdit,
                      "EditRedo",
                      "Redo",
                      {.mnemonic = 'R',
                       .shortcut = "Ctrl+Shift+Z",
                       .explanation = "Makes the edit again that was taken back last."}};

    MenuItem line3{MEdit, "line3", "-"};
    MenuItem CopySettings{
        MEdit,
        "CopySettings",
        "Copy settings to",
        {.mnemonic = 'C',
         .explanation = "Gives all settings of the current sensor to others of your choice."}};

    MenuItem MenueWindow{
        *this, "MenueWindow", "Window", {.mnemonic = 'W', .explanation = "How windows are shown."}};
    MenuItem SettingAlwaysOnTop{
        MenueWindow,
        "SettingAlwaysOnTop",
        "Settings always on top",
        {.mnemonic = 't', .explanation = "Keeps the settings above the other windows, or not."}};
    MenuItem WindowTrace{MenueWindow,
                         "WindowTrace",
                         "Scope display",
                         {.mnemonic = 'c', .explanation = "Shows the power over time."}};
    MenuItem WindowSlots{MenueWindow,
                         "WindowSlots",
                         "Time slot display",
                         {.mnemonic = 'd', .explanation = "Shows the power of each time slot."}};
    MenuItem WindowSlotTable{
        MenueWindow,
        "WindowSlotTable",
        "Time slot table",
        {.mnemonic = 'b', .explanation = "Shows the statistics of each time slot."}};

    MenuItem MHelp{
        *this, "MHelp", "Help", {.mnemonic = 'H', .explanation = "Help, and about this program."}};
    MenuItem Helpfunction{
        MHelp,
        "Helpfunction",
        "Help",
        {.mnemonic = 'H', .shortcut = "F1", .explanation = "Opens the help at its contents."}};
    MenuItem MHelpAbout{
        MHelp,
        "MHelpAbout",
        "About",
        {.mnemonic = 'A', .explanation = "Shows the versions of the program and its drivers."}};

    Frame MainTools{*this, "MainTools", "", {0, 0, 7800, 1800}};
    Button StartIt{
        MainTools,
        "StartIt",
        "",
        "startPic",
        {.name = "Start",
         .mnemonic = 'S',
         .shortcut = "F5",
         .explanation = "Starts measuring with all sensors that are switched on, until Stop."}};
    Button StopIt{
        MainTools,
        "StopIt",
        "",
        "stopPic",
        {.name = "Stop",
         .mnemonic = 't',
         .shortcut = "Shift+F5",
         .explanation = "Ends the measurement, or zeroing; the last readings stay in the table."}};
    Button Show_Settings{MainTools,
                         "Show_Settings",
                         "",
                         "settingsPic",
                         {.name = "Settings",
                          .mnemonic = 'n',
                          .explanation = "Shows the settings of the current sensor."}};
    List SensSyncMode{MainTools, "SensSyncMode", {}, -1, {.name = "Synchronisation"}};
    Picture BusySign{
        MainTools,
        "BusySign",
        "busy1",
        {.name = "Activity", .explanation = "Moves about once a second while measuring."}};
    Label MeasSpeedInfo{MainTools, "MeasSpeedInfo", "???"};
    Label NotMeasuring{MainTools, "NotMeasuring", "Not measuring: press Stop"};
    Label SensorLabel{MainTools, "SensorLabel", "Sensor"};
    List TimeSensor_select_new{
        MainTools,
        "TimeSensor_select_new",
        {},
        -1,
        {.name = "Sensor",
         .explanation = "Chooses the current sensor, which Settings and the File menu act on."}};

    // The indicator is beside the notice's frame, so that it stays when the notice goes.
    Picture picConnected{
        MainTools,
        "picConnected",
        "connectedPic",
        {.name = "Connection", .explanation = "Beside it is how many sensors are plugged in."}};
    Label ConSensors{MainTools, "ConSensors"};
    Frame ConnectedFrame{MainTools, "ConnectedFrame", "", {60, 1320, 6000, 420}};
    Picture picNotice{
        ConnectedFrame,
        "picNotice",
        "noticeWait",
        {.name = "Kind of notice",
         .explanation = "Whether it is an error, trouble with files, waiting, or done."}};
    Label lblMeasAwait{ConnectedFrame, "lblMeasAwait", "Waiting for a trigger signal at sensor "};

    // The recording that runs, or has ended.
    Frame RecordFrame{MainTools, "RecordFrame", "", {60, 900, 6000, 420}};
    Picture picRecord{RecordFrame,
                      "picRecord",
                      "recordPic",
                      {.name = "Recording", .explanation = "Beside it is how the recording goes."}};
    Label lblRecord{RecordFrame, "lblRecord"};
    Button OpenRecordFolder{RecordFrame,
                            "OpenRecordFolder",
                            "Open folder",
                            "",
                            {.mnemonic = 'O', .explanation = "Opens the folder of the recording."}};

    Frame MainFuncFrame{*this, "MainFuncFrame", "", {7800, 0, 7200, 1800}};
    Frame CalcFrame{MainFuncFrame, "CalcFrame", "", {60, 60, 7080, 1680}};
    Grid CalcGrid{CalcFrame,
                  "CalcGrid",
                  3,
                  3,
                  {.name = "Calculated values",
                   .explanation = "Two formulas over the latest readings, computed in each pass. "
                                  "A click on a cell edits it."}};
};

}  // namespace kelvra::forms
