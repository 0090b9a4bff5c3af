// SPDX-License-Identifier: GPL-3.0-or-later
// Start-up in order: the debug log before any driver call, the INI path before settings are read,
// the sensor table before discovery.
#include <algorithm>
#include <chrono>
#include <string>

#include "app/kelvra.h"
#include "sensors/settings_fields.h"
#include "ui/program_name.h"
#include "ui/setup_rows.h"
#include "util/number_text.h"
#include "util/text.h"

namespace kelvra::app {

namespace {

constexpr auto SearchInterval = std::chrono::milliseconds(500);
constexpr const char* DebugFile = "C:\\DebugKelvra.txt";

std::string Number(int value) {
    return util::CleanText(util::NumberText(std::int64_t{value}));
}

}  // namespace

void Kelvra::Start() {
    controls::Geometry place = forms.mdiMain.place;
    const platform::ScreenSize screen = host.dialogs.Screen();
    place.left = (screen.width - place.width) / 2;
    place.top = (screen.height - place.height) / 6;
    forms.mdiMain.place = place;
    state.recordInterval = 0;
    windows.mainWindow.ApplyColourScheme();
    StartDebugLog();
    library.Load(host.computer, log);
    forms.mdiMain.caption = Title();
    store.Open(host.computer);
    limitsStore.Open(host.computer);
    host.events.StartTimer(SearchInterval, [this] {
        discovery.Search();
        if (!state.fetching && !state.exiting)
            store.SaveEdits(host.clock.Monotonic(), table.Present());
    });
    forms.mdiMain.FileSaveData.enabled = false;
    CreateTable();
    ui::ShowSettings(forms.setupForm, sensors::DefaultSettings());
    ui::ShowScaling(forms.setupForm, {});
    LayOutGrids();
    windows.mainWindow.PlaceWindows();
    for (int slot = 0; slot < table.Slots(); ++slot)
        table[slot].slotStats.assign(
            static_cast<std::size_t>(std::max<int>(table[slot].settings.TSlotCount, 1)), {});
    sensors::PrepareWorkArrays(table, table.currentSensor);
    StartDiscovery();
    forms.mdiMain.visible = true;
}

void Kelvra::StartDebugLog() {
    log.onFailure = [this](const std::string& path, const std::string& reason) {
        // No message box, since lines are written in the middle of driver calls.
        windows.notice.ShowFileTrouble(path,
                                       "The debug log can't be written: " + path + ": " + reason);
    };
    log.onRecovery = [this](const std::string& path) { windows.notice.EndFileTrouble(path); };
    const std::string commandLine = util::UpperCase(host.computer.CommandLine());
    log.enabled = commandLine.find("DEBUG") != std::string::npos;
    log.path = host.computer.DrivePath(DebugFile);
    log.timeStamps = true;
    log.RemoveOld();
}

std::string Kelvra::Title() {
    const platform::ProgramVersion version = host.computer.Version();
    std::string title = "Halvex " + version.product + ", Version " + ui::VersionText(version) +
                        " from " + ui::ProgramDate(host.computer);
    if (log.enabled) title += " [DEBUG MODE]";
    return title;
}

void Kelvra::CreateTable() {
    table.Resize(table.sensorSlotCount == 0 ? sensors::SensorTable::DefaultSlotCount
                                            : table.sensorSlotCount);
    state.stopRequested = false;
    store.ReadSlots(table);
    controls::List& sensorList = forms.setupForm.SensSelect;
    sensorList.Clear();
    for (int slot = 0; slot < table.Slots(); ++slot) sensorList.Add(Number(slot + 1), slot);
    table.currentSensor = 0;
}

void Kelvra::LayOutGrids() {
    windows.results.LayOut();
    windows.calcGrid.LayOut();
    controls::List& syncMode = forms.mdiMain.SensSyncMode;
    syncMode.Fill({{"Start Sync", 0}, {"Sequenced", 1}, {"Async", 2}});
    syncMode.SetIndex(2);
}

void Kelvra::StartDiscovery() {
    discovery.Search();
    table.deviceTableChanged = true;
    forms.mdiMain.SettingAlwaysOnTop.checked = true;
    ui::AlwaysOnTop(forms.setupForm, true);
}

}  // namespace kelvra::app
