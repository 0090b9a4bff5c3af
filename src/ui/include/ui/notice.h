// SPDX-License-Identifier: GPL-3.0-or-later
// The main window's notice: one line in a frame that is visible while there is a text to show.
// There are three ranks; the text of the highest rank is shown: a sensor's error, trouble with
// files, and what the measurement waits for or has met. Hiding one shows the next.
#pragma once

#include <array>
#include <map>
#include <string>

#include "forms/main_window.h"
#include "measure/listener.h"
#include "sensors/sensor_table.h"

namespace kelvra::ui {

class Notice final : public measure::MeasurementListener, public measure::PassListener {
public:
    Notice(forms::MDIMain& window, const sensors::SensorTable& table)
        : window_(window), table_(table) {}

    // A sensor's error; an empty text removes it.
    void ShowError(std::string text) { Set(Rank::Error, std::move(text)); }

    // Trouble with a file, shown until that file could be read or written. Of several files, the
    // first by path is shown.
    void ShowFileTrouble(const std::string& path, std::string text);
    void EndFileTrouble(const std::string& path);

    void Started() override { Set(Rank::Course, {}); }
    void Awaited(int slot, const std::string& complaint) override;
    void PassSeen(platform::Duration /*now*/, platform::Duration /*lasted*/) override {
        Set(Rank::Course, {});
    }
    void PassWaits(platform::Duration left) override;
    void PassEnded() override;
    void Stopped() override { Set(Rank::Course, {}); }
    void SessionLost(const measure::LostSession& lost) override;

private:
    enum class Rank { Error, Files, Course, Count };

    std::string& Text(Rank rank) { return texts_[static_cast<std::size_t>(rank)]; }
    void Set(Rank rank, std::string text);
    void ShowFirstTrouble();
    void Show();

    forms::MDIMain& window_;
    const sensors::SensorTable& table_;
    std::array<std::string, static_cast<std::size_t>(Rank::Count)> texts_;
    std::map<std::string, std::string> troubles_;  // by path
};

}  // namespace kelvra::ui
