// SPDX-License-Identifier: GPL-3.0-or-later
// The main window: menus, tool strip, connection indicator and calculation grid, as data. Its rules
// are elsewhere; closing it is one of them.
#pragma once

#include "controls/grid.h"
#include "controls/kinds.h"
#include "controls/list.h"

namespace kelvra::forms {

struct MDIMain : controls::Window {
    explicit MDIMain(controls::Changes& changes)
        : Window(changes, "MDIMain", "", {0, 0, 15000, 9900}) {
        closesByRule = true;
        StopIt.enabled = false;
        BusySign.tag = "1";
        ConnectedFrame.visible = false;
    }

    controls::MenuItem MFile{*this, "MFile", "File"};
    controls::MenuItem Load_Sensor_Settings{MFile, "Load_Sensor_Settings", "Load sensor settings"};
    controls::MenuItem Save_Sensor_Settings{MFile, "Save_Sensor_Settings", "Save sensor settings"};
    controls::MenuItem line1{MFile, "line1", "-"};
    controls::MenuItem FileSaveData{MFile, "FileSaveData", "Record Data..."};
    controls::MenuItem line2{MFile, "line2", "-"};
    controls::MenuItem MFileExit{MFile, "MFileExit", "Exit"};

    controls::MenuItem MenueWindow{*this, "MenueWindow", "Window"};
    controls::MenuItem SettingAlwaysOnTop{MenueWindow, "SettingAlwaysOnTop",
                                          "Settings always on top"};

    controls::MenuItem MHelp{*this, "MHelp", "Help"};
    controls::MenuItem Helpfunction{MHelp, "Helpfunction", "Help"};
    controls::MenuItem MHelpAbout{MHelp, "MHelpAbout", "About"};

    controls::Frame MainTools{*this, "MainTools", "", {0, 0, 7800, 1800}};
    controls::Button StartIt{MainTools, "StartIt", "", "startPic"};
    controls::Button StopIt{MainTools, "StopIt", "", "stopPic"};
    controls::Button Show_Settings{MainTools, "Show_Settings", "", "settingsPic"};
    controls::List SensSyncMode{MainTools, "SensSyncMode"};
    controls::Picture BusySign{MainTools, "BusySign", "busy1"};
    controls::Label MeasSpeedInfo{MainTools, "MeasSpeedInfo", "???"};
    controls::Label SensorLabel{MainTools, "SensorLabel", "Sensor"};
    controls::List TimeSensor_select_new{MainTools, "TimeSensor_select_new"};

    // The indicator stands beside the frame of the notice, so that it stays when the notice goes.
    controls::Picture picConnected{MainTools, "picConnected", "connectedPic"};
    controls::Label ConSensors{MainTools, "ConSensors"};
    controls::Frame ConnectedFrame{MainTools, "ConnectedFrame", "", {60, 1320, 6000, 420}};
    controls::Label lblMeasAwait{ConnectedFrame, "lblMeasAwait",
                                 "Waiting for a trigger signal at sensor "};

    controls::Frame MainFuncFrame{*this, "MainFuncFrame", "", {7800, 0, 7200, 1800}};
    controls::Frame CalcFrame{MainFuncFrame, "CalcFrame", "", {60, 60, 7080, 1680}};
    controls::Grid CalcGrid{CalcFrame, "CalcGrid", 3, 3};
};

}  // namespace kelvra::forms
