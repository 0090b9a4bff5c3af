// SPDX-License-Identifier: GPL-3.0-or-later
// Says in the main window that a recording runs: lines, time since its start, when the next line is
// due, the file, and how much room the disk has when that gets short. After its end it stays, with
// a button for the folder, until a measurement starts. Trouble with the file is in the notice until
// a line could be written.
#pragma once

#include <optional>
#include <string>

#include "forms/main_window.h"
#include "measure/listener.h"
#include "measure/recorder.h"
#include "platform/host.h"
#include "ui/notice.h"

namespace kelvra::ui {

class RecordStatus final : public measure::MeasurementListener,
                           public measure::PassListener,
                           public measure::RecordListener {
public:
    RecordStatus(forms::MDIMain& window, measure::Recorder& recorder,
                 const measure::MeasureState& state, const sensors::SensorTable& table,
                 Notice& notice, platform::Host& host);

    void Started() override;
    void PassWaits(platform::Duration left) override;
    void PassEnded() override { nextLine_.reset(); }
    void RecordingBegins() override;
    void LineWritten() override;
    void LineMissing(const std::error_code& why) override;
    void RecordingEnds() override;

private:
    void Show();
    std::string CourseText() const;
    std::string Remainder() const;
    std::string SpaceText() const;
    void OpenFolder();

    forms::MDIMain& window_;
    measure::Recorder& recorder_;
    const measure::MeasureState& state_;
    const sensors::SensorTable& table_;
    Notice& notice_;
    platform::Host& host_;
    platform::Events::TimerId timer_ = 0;
    std::optional<platform::Duration> nextLine_;  // on the monotonic clock
};

}  // namespace kelvra::ui
