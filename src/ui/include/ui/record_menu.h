// SPDX-License-Identifier: GPL-3.0-or-later
// The File menu's entry that starts and ends a recording, and the dialog that asks for the interval
// and the file. Nothing waits for it: a measurement goes on while the user answers. A file that
// can't be made gives a message, and no recording begins.
#pragma once

#include <string>

#include "forms/forms.h"
#include "measure/listener.h"
#include "measure/recorder.h"
#include "platform/host.h"

namespace kelvra::ui {

class RecordMenu final : public measure::PassListener, public measure::RecordListener {
public:
    RecordMenu(forms::Forms& forms, measure::Recorder& recorder, platform::Host& host);

    // Available from the first pass on.
    void PassStarted() override { entry_.enabled = true; }
    void RecordingBegins() override;
    void RecordingEnds() override;

private:
    void StartOrStop();
    void AskFile();
    std::string Proposed() const;
    void Begin(const platform::ChosenFile& file);
    void Judge();

    controls::MenuItem& entry_;
    forms::TimeForm& dialog_;
    measure::Recorder& recorder_;
    platform::Host& host_;
    bool asking_ = false;  // for the file
};

}  // namespace kelvra::ui
