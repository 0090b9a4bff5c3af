// SPDX-License-Identifier: GPL-3.0-or-later
// The whole program over a fake driver and a fake computer, its files in a folder of its own. A
// test sets up what it wants, starts it, and does in the event rounds what a person would do.
#pragma once

#include <memory>
#include <string>

#include "app/kelvra.h"
#include "platform/native.h"
#include "support/fake_driver.h"
#include "support/fake_host.h"
#include "support/faulty_files.h"
#include "support/temp_folder.h"

namespace kelvra::test {

struct WholeKelvra {
    TempFolder folder;
    std::unique_ptr<platform::Files> disk = platform::NativeFiles();
    FaultyFiles files{*disk};
    FakeHost fake{files};
    FakeDriver driver;
    std::unique_ptr<app::Kelvra> program;

    WholeKelvra() {
        fake.computer.folder = folder.Path();
        fake.computer.libraries = {{"psdrv_32", FakeDriver::InstrumentFunctions()},
                                   {"TeskControl2", FakeDriver::DeviceListFunctions()}};
    }

    app::Kelvra& Start() {
        fake.events.Renew();
        program = std::make_unique<app::Kelvra>(fake.host);
        program->Start();
        return *program;
    }
    // Sensors of that type with the serial numbers 1, 2, ... and names A, B, ...
    app::Kelvra& StartWith(int sensors, const std::string& type = "PS-101") {
        for (int i = 0; i < sensors; ++i)
            driver.devices.push_back(
                {std::string(1, static_cast<char>('A' + i)), type, std::to_string(i + 1)});
        return Start();
    }

    // Half a second goes by and the search timer with it.
    void Tick() {
        fake.clock.Advance(std::chrono::milliseconds(500));
        fake.events.DoEvents({});
    }
    void PressStart() {
        fake.events.rounds = 0;
        program->forms.mdiMain.StartIt.Press();
    }
    void PressStop() { program->forms.mdiMain.StopIt.Press(); }
    void PressExit() { program->forms.mdiMain.MFileExit.Press(); }
    // Measures until that many passes are complete.
    void Measure(int passes) {
        const auto enough = program->state.passes + passes;
        fake.events.onRound = [this, enough](int) {
            if (program->state.passes >= enough) PressStop();
        };
        PressStart();
        fake.events.onRound = nullptr;
    }
    const controls::Grid::Cell& Cell(int slot, int column) const {
        return program->forms.statusForm.ResultGrid.At(slot + 1, column);
    }
    std::string Notice() const { return program->forms.mdiMain.lblMeasAwait.caption.Get(); }
};

}  // namespace kelvra::test
