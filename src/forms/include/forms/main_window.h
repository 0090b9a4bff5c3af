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
        for (MenuItem* item : {&Load_Sensor_Settings, &Save_Sensor_Settings, &MHelpAbout})
            item->opensDialog = true;
        StopIt.enabled = false;
        BusySign.tag = "1";
        MeasSpeedInfo.visible = false;
        ConnectedFrame.visible = false;
    }

    MenuItem MFile{*this, "MFile", "File", {.mnemonic = 'F'}};
    MenuItem Load_Sensor_Settings{MFile,
                                  "Load_Sensor_Settings",
                                  "Load sensor settings",
                                  {.mnemonic = 'L', .shortcut = "Ctrl+O"}};
    MenuItem Save_Sensor_Settings{MFile,
                                  "Save_Sensor_Settings",
                                  "Save sensor settings",
                                  {.mnemonic = 'S', .shortcut = "Ctrl+S"}};
    MenuItem line1{MFile, "line1", "-"};
    MenuItem FileSaveData{
        MFile, "FileSaveData", "Record Data...", {.mnemonic = 'R', .shortcut = "Ctrl+R"}};
    MenuItem line2{MFile, "line2", "-"};
    MenuItem MFileExit{MFile, "MFileExit", "Exit", {.mnemonic = 'x', .shortcut = "Ctrl+Q"}};

    MenuItem MenueWindow{*this, "MenueWindow", "Window", {.mnemonic = 'W'}};
    MenuItem SettingAlwaysOnTop{
        MenueWindow, "SettingAlwaysOnTop", "Settings always on top", {.mnemonic = 't'}};

    MenuItem MHelp{*this, "MHelp", "Help", {.mnemonic = 'H'}};
    MenuItem Helpfunction{MHelp, "Helpfunction", "Help", {.mnemonic = 'H', .shortcut = "F1"}};
    MenuItem MHelpAbout{MHelp, "MHelpAbout", "About", {.mnemonic = 'A'}};

    Frame MainTools{*this, "MainTools", "", {0, 0, 7800, 1800}};
    Button StartIt{
        MainTools, "StartIt", "", "startPic", {.name = "Start", .mnemonic = 'S', .shortcut = "F5"}};
    Button StopIt{MainTools,
                  "StopIt",
                  "",
                  "stopPic",
                  {.name = "Stop", .mnemonic = 't', .shortcut = "Shift+F5"}};
    Button Show_Settings{
        MainTools, "Show_Settings", "", "settingsPic", {.name = "Settings", .mnemonic = 'e'}};
    List SensSyncMode{MainTools, "SensSyncMode", {}, -1, {.name = "Synchronisation"}};
    Picture BusySign{MainTools, "BusySign", "busy1", {.name = "Activity"}};
    Label MeasSpeedInfo{MainTools, "MeasSpeedInfo", "???"};
    Label SensorLabel{MainTools, "SensorLabel", "Sensor"};
    List TimeSensor_select_new{MainTools, "TimeSensor_select_new", {}, -1, {.name = "Sensor"}};

    // The indicator is beside the notice's frame, so that it stays when the notice goes.
    Picture picConnected{MainTools, "picConnected", "connectedPic", {.name = "Connection"}};
    Label ConSensors{MainTools, "ConSensors"};
    Frame ConnectedFrame{MainTools, "ConnectedFrame", "", {60, 1320, 6000, 420}};
    Picture picNotice{ConnectedFrame, "picNotice", "noticeWait", {.name = "Kind of notice"}};
    Label lblMeasAwait{ConnectedFrame, "lblMeasAwait", "Waiting for a trigger signal at sensor "};

    Frame MainFuncFrame{*this, "MainFuncFrame", "", {7800, 0, 7200, 1800}};
    Frame CalcFrame{MainFuncFrame, "CalcFrame", "", {60, 60, 7080, 1680}};
    Grid CalcGrid{CalcFrame, "CalcGrid", 3, 3, {.name = "Calculated values"}};
};

}  // namespace kelvra::forms
