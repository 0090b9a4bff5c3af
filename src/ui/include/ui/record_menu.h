// SPDX-License-Identifier: GPL-3.0-or-later
// The File menu's entry for recording, available from the first pass on.
#pragma once

#include "forms/main_window.h"
#include "measure/listener.h"

namespace kelvra::ui {

class RecordMenu final : public measure::MeasurementListener, public measure::PassListener {
public:
    explicit RecordMenu(forms::MDIMain& window) : item_(window.FileSaveData) {}

    void PassStarted() override { item_.enabled = true; }
    void Stopped() override { item_.caption = "Record Data..."; }

private:
    controls::MenuItem& item_;
};

}  // namespace kelvra::ui
