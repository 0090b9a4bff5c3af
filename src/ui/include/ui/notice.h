// SPDX-License-Identifier: GPL-3.0-or-later
// The main window's notice: one line in a frame that is visible while there is a text to show.
// There are four ranks; the text of the highest rank is shown: a sensor's error, trouble with
// files, what the measurement waits for or has met, and what the user's command has done. Hiding
// one shows the next.
#pragma once

#include <array>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "driver/notices.h"
#include "forms/main_window.h"
#include "measure/listener.h"
#include "platform/clock.h"
#include "sensors/sensor_table.h"

namespace kelvra::ui {

class Notice final : public measure::MeasurementListener,
                     public measure::PassListener,
                     public driver::TransferMarks {
public:
    Notice(forms::MDIMain& window, const sensors::SensorTable& table, platform::Clock& clock)
        : window_(window), table_(table), clock_(clock), kept_(window.lblMeasAwait.caption.Get()) {}

    // A sensor's error; an empty text removes it.
    void ShowError(std::string text) { Set(Rank::Error, std::move(text)); }

    // Trouble with a file, shown until that file could be read or written. Of several files, the
    // first by path is shown.
    void ShowFileTrouble(const std::string& path, std::string text);
    void EndFileTrouble(const std::string& path);

    // What a sensor command is doing; an empty text removes it.
    void ShowCommand(std::string text) { Hint(std::move(text)); }

    // What a command has done, until it is old, the next one is shown, or a measurement starts.
    void ShowDone(std::string text);
    // Call about twice a second.
    void TakeBackOld();

    void Started() override;
    void StartFailed(measure::StartFailure /*why*/) override { EndStart(); }
    void Prepared() override { EndStart(); }
    void Awaited(int slot, const std::string& complaint) override;
    void PassSeen(platform::Duration /*now*/, platform::Duration /*lasted*/) override {
        if (!Text(Rank::Course).empty()) Set(Rank::Course, {});
    }
    void PassWaits(platform::Duration left) override;
    void PassEnded() override;
    void Stopped() override { EndStart(); }
    void SessionLost(const measure::LostSession& lost) override;

    // At Start: how many of the sensors have been reached.
    void TransferBegins(int slot) override;
    void TransferEnds(int /*slot*/) override {}

private:
    enum class Rank { Error, Files, Course, Done, Count };

    std::string& Text(Rank rank) { return texts_[static_cast<std::size_t>(rank)]; }
    void Set(Rank rank, std::string text);
    // A text of the course that does not remain in the hidden label.
    void Hint(std::string text);
    void EndStart();
    void ShowFirstTrouble();
    void Show();

    forms::MDIMain& window_;
    const sensors::SensorTable& table_;
    std::array<std::string, static_cast<std::size_t>(Rank::Count)> texts_;
    std::map<std::string, std::string> troubles_;  // by path
    platform::Clock& clock_;
    platform::Duration doneAt_{};
    std::vector<int> configured_;  // slots that this start configures; empty once it is over
    bool hint_ = false;            // the text of the course is a hint
    std::string kept_;             // what the hidden label says
};

}  // namespace kelvra::ui
